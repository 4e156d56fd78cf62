// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/screens_host.h"

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>

namespace platform {
namespace {

// Ends a local event loop when the watched screen is hidden or closed.
class HideWatcher final : public QObject {
 public:
  explicit HideWatcher(QEventLoop& loop) : loop_(loop) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Hide) loop_.quit();
    return QObject::eventFilter(watched, event);
  }

 private:
  QEventLoop& loop_;
};

int waitUntilHidden(QWidget& screen) {
  QEventLoop loop;
  HideWatcher watcher(loop);
  QPointer<QWidget> guard(&screen);
  QObject::connect(&screen, &QObject::destroyed, &loop, &QEventLoop::quit);
  screen.installEventFilter(&watcher);
  screen.setWindowModality(Qt::ApplicationModal);
  screen.show();
  loop.exec(QEventLoop::DialogExec);
  if (guard) guard->removeEventFilter(&watcher);
  return 0;
}

}  // namespace

int QtScreensHost::ShowModal(QWidget& screen) {
  if (auto* dialog = qobject_cast<QDialog*>(&screen)) return dialog->exec();
  return waitUntilHidden(screen);
}

template <>
std::unique_ptr<ScreensHost> Service<ScreensHost>::makeDefault() {
  return std::make_unique<QtScreensHost>();
}

}  // namespace platform
