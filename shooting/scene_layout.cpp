// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/scene_layout.h"

#include "platform/runtime.h"
#include "platform/settings.h"
#include "shell/game_state.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int kTopOffsetTwips = 60;

int twipsPerPixel() {
  return std::max<int>(1, Game.TwipsPerPixel);
}

// The hunting screen when it is up; else the screen the game runs on.
QRect huntingScreenRect() {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->isVisible() && QLatin1String(w->metaObject()->className()) == QLatin1String("surround"))
      return w->geometry();
  const QScreen* screen = QApplication::primaryScreen();
  return QRect(screen ? screen->geometry().topLeft() : QPoint(0, 0), sharedScreenPixels());
}

}  // namespace

int clipDisplayScale(int heightPx, bool smallVideo) {
  if (smallVideo) return 1;
  return rt::to16(static_cast<double>(heightPx) / kClipFrame.height());
}

QPoint clipDisplayOrigin(QSize screenPx, int scale) {
  const QSize shown = kClipFrame * scale;
  return {static_cast<int>(rt::Int((screenPx.width() - shown.width()) / 2.0)),
          static_cast<int>(rt::Int((screenPx.height() - shown.height()) / 2.0))};
}

QSize sharedScreenPixels() {
  if (Game.ScreenWidth > 0 && Game.ScreenHeight > 0)
    return {static_cast<int>(rt::Int(static_cast<double>(Game.ScreenWidth) / twipsPerPixel())),
            static_cast<int>(rt::Int(static_cast<double>(Game.ScreenHeight) / twipsPerPixel()))};
  const QScreen* screen = QApplication::primaryScreen();
  return screen ? screen->geometry().size() : QSize(1024, 768);
}

void placeFullScreenScene(QWidget& scene) {
  scene.resize(sharedScreenPixels());
  const QRect hunt = huntingScreenRect();
  const int left = hunt.left() + Game.LayoutX / twipsPerPixel();
  const int top = hunt.top() + kTopOffsetTwips / twipsPerPixel();
  scene.move(std::max(hunt.left(), std::min(left, hunt.right() + 1 - scene.width())),
             std::max(hunt.top(), std::min(top, hunt.bottom() + 1 - scene.height())));
}

bool smallVideoSetting() {
  const QString value = platform::settings().GetSetting(platform::kSettingsSection, QStringLiteral("SMAVI"),
                                                        QStringLiteral("0"));
  return value.trimmed().toDouble() != 0;
}
