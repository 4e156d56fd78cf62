// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/lodge_frame.h"

#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/screen_layout.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace lodge {
namespace {

constexpr int kTopOffsetTwips = 60;

// The hunting screen when it is up; else the screen the game runs on, at the game's size.
QRect huntingScreenRect() {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->isVisible() && QLatin1String(w->metaObject()->className()) == QLatin1String("surround"))
      return w->geometry();
  const QScreen* screen = QApplication::primaryScreen();
  QRect rect = screen ? screen->geometry() : QRect(0, 0, 1024, 768);
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  if (Game.ScreenWidth > 0 && Game.ScreenHeight > 0)
    rect.setSize(QSize(Game.ScreenWidth / twips, Game.ScreenHeight / twips));
  return rect;
}

const char* const kLodgeStyle =
    "QLabel[paper=\"true\"] { color: #2b1d0e; background: rgba(250, 243, 226, 228);"
    " border: 1px solid rgba(120, 90, 40, 160); border-radius: 4px; padding: 2px 6px; }"
    "QPushButton { color: #2b1d0e; background: #e9dcb8; border: 2px solid #7a5a24;"
    " border-radius: 5px; padding: 2px 8px; font-weight: bold; }"
    "QPushButton:hover { background: #f5ead0; }"
    "QPushButton:pressed { background: #d4c39a; }"
    "QPushButton:disabled { color: #8a7a60; border-color: #a89470; }"
    "QTabBar::tab { color: #2b1d0e; background: #d9c9a0; border: 1px solid #7a5a24; padding: 4px 10px; }"
    "QTabBar::tab:selected { background: #f5ead0; font-weight: bold; }"
    "QListWidget { color: #2b1d0e; background: rgba(250, 243, 226, 235); border: 1px solid #7a5a24; }"
    "QListWidget::item { padding: 3px; }"
    "QListWidget::item:selected { color: #fbf6e9; background: #7a5a24; }";

}  // namespace

void prepareLodgeScreen(QWidget& screen, const QString& title) {
  screen.setWindowTitle(title);
  screen.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  // Dark wood behind the world's picture, so a screen whose picture is missing still reads.
  const QString own =
      QString::fromLatin1(screen.metaObject()->className()) + QStringLiteral(" { background: #4a3421; }");
  screen.setStyleSheet(QString::fromLatin1(kLodgeStyle) + own);
  screen.resize(kLodgeDesign);
}

void onPaper(QWidget& label) {
  label.setProperty("paper", true);
}

QString moneyText(int16_t money) {
  return QStringLiteral("$") + rt::numberText(money);
}

QString lodgeArtPath(const QString& name) {
  return Game.MediaRoot + QStringLiteral("art\\") + Game.AreaLetter + name;
}

void placeOverHuntingScreen(QWidget& screen) {
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  const QRect hunt = huntingScreenRect();
  QSize size = screen.size();
  if (Game.LayoutW > 0 && Game.LayoutY > 0) size = QSize(Game.LayoutW / twips, Game.LayoutY / twips);
  // On a display larger than the layout's, the board grows with it, keeping its shape.
  const QSize made = layoutDisplayPixels();
  const double grow =
      std::max(1.0, std::min(double(hunt.width()) / made.width(), double(hunt.height()) / made.height()));
  screen.resize(size * grow);
  // Centred: the shared left offset does not fit a 1024 screen, nor any wider one.
  screen.move(hunt.left() + (hunt.width() - screen.width()) / 2, hunt.top() + kTopOffsetTwips / twips);
}

}  // namespace lodge
