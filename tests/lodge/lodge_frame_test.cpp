// SPDX-License-Identifier: GPL-2.0-or-later
// Where a lodge screen sits over the hunting screen on displays of every shape.
#include "lodge/lodge_frame.h"

#include "shell/game_state.h"
#include "shell/screen_layout.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace {

QRect placedOn(QSize display) {
  Game = GameState{};
  Game.ScreenWidth = display.width() * Game.TwipsPerPixel;
  Game.ScreenHeight = display.height() * Game.TwipsPerPixel;
  SetScreenLayout();
  QWidget board;
  board.resize(lodge::kLodgeDesign);
  lodge::placeOverHuntingScreen(board);
  Game = GameState{};
  return board.geometry();
}

TEST(LodgeFrame, CentredAtTheTopAndGrownWithTheDisplaysHeight) {
  struct Case {
    QSize display;
    QSize board;
  };
  const Case cases[] = {
      {{640, 480}, {630, 369}},
      {{1024, 768}, {1014, 607}},
      // Wider than 4:3: the board grows to the height, keeping its shape, and is centred.
      {{1920, 1080}, {1426, 854}},
      {{3840, 2160}, {2852, 1707}},
  };
  for (const Case& c : cases) {
    const QRect placed = placedOn(c.display);
    EXPECT_EQ(placed.size(), c.board) << c.display.width();
    EXPECT_EQ(placed.x(), (c.display.width() - c.board.width()) / 2) << c.display.width();
    EXPECT_EQ(placed.y(), 4) << c.display.width();
  }
}

}  // namespace
