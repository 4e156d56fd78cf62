// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/hunt_media.h"

#include "platform/media/media_window.h"
#include "shell/screen_instance.h"

#include <QPointer>

#include <memory>

namespace {

QPointer<platform::MCIWnd>& registered() {
  static QPointer<platform::MCIWnd> window;
  return window;
}

std::unique_ptr<platform::MCIWnd>& standIn() {
  static std::unique_ptr<platform::MCIWnd> window;
  return window;
}

}  // namespace

platform::MCIWnd& huntMediaWindow() {
  if (registered()) return *registered();
  auto& own = standIn();
  if (!own) {
    own.reset(platform::createMediaWindow(nullptr));
    own->hide();
    // Dropped with the screens, while the application (and any test's media service) lives.
    registerScreenUnloader([] { standIn().reset(); });
  }
  return *own;
}

void setHuntMediaWindow(platform::MCIWnd* window) {
  registered() = window;
}
