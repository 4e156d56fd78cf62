// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/fakes/media_fake_window.h"

#include "platform/media/media_errors.h"

namespace platform {

void FakeMediaWindow::setFileName(const QString& gamePath) {
  fileName_ = gamePath;
  log_ << QStringLiteral("file ") + gamePath;
}

int FakeMediaWindow::command(const QString& text) {
  log_ << text;
  return 0;
}

QStringList FakeMediaWindow::commands() const {
  QStringList sent;
  for (const QString& entry : log_)
    if (!entry.startsWith(QStringLiteral("file "))) sent << entry;
  return sent;
}

void FakeMediaWindow::raiseModeChange(int mode) {
  mode_ = mode;
  emit ExtendedModeChange(mode);
}

void FakeMediaWindow::raiseError(int error) {
  emit Error(error, mediaErrorText(error));
}

MCIWnd* FakeMediaWindows::create(QWidget* parent) {
  auto* window = new FakeMediaWindow(parent);
  made_ << window;
  return window;
}

}  // namespace platform
