// SPDX-License-Identifier: GPL-2.0-or-later
// Where the shooting scenes sit over the hunting screen: the shared offset and 60 twips down,
// kept on that screen when a full-size scene would hang off it.
#include "shooting/scene_layout.h"
#include "shell/game_state.h"

#include <QWidget>

#include <gtest/gtest.h>

// Stands for the hunting screen, found by its class name.
class surround : public QWidget {
  Q_OBJECT
};

namespace {

class SceneLayoutTest : public ::testing::Test {
 protected:
  SceneLayoutTest() {
    Game = GameState{};
    hunt.setGeometry(100, 50, 1024, 768);
    hunt.show();
    Game.LayoutX = 156 * 15;
  }
  ~SceneLayoutTest() override { Game = GameState{}; }

  surround hunt;
  QWidget scene;
};

TEST_F(SceneLayoutTest, ASceneSmallerThanTheHuntingScreenSitsAtTheOffset) {
  Game.ScreenWidth = 800 * 15;
  Game.ScreenHeight = 600 * 15;
  placeFullScreenScene(scene);
  EXPECT_EQ(scene.geometry(), QRect(100 + 156, 50 + 4, 800, 600));
}

TEST_F(SceneLayoutTest, AFullSizeSceneIsKeptOnTheHuntingScreen) {
  Game.ScreenWidth = 1024 * 15;
  Game.ScreenHeight = 768 * 15;
  placeFullScreenScene(scene);
  EXPECT_EQ(scene.geometry(), QRect(100, 50, 1024, 768));
}

TEST(ClipDisplay, ScaleRoundsHalvesToEvenAndTheClipIsCentred) {
  EXPECT_EQ(clipDisplayScale(768, false), 3);
  EXPECT_EQ(clipDisplayScale(1080, false), 4);
  EXPECT_EQ(clipDisplayScale(600, false), 2);
  EXPECT_EQ(clipDisplayScale(840, false), 4);  // 3.5
  EXPECT_EQ(clipDisplayScale(1080, true), 1);
  EXPECT_EQ(clipDisplayOrigin({1024, 768}, 3), QPoint(32, 24));
  EXPECT_EQ(clipDisplayOrigin({1023, 767}, 3), QPoint(31, 23));
  EXPECT_EQ(clipDisplayOrigin({300, 200}, 1), QPoint(-10, -20));
}

}  // namespace

#include "scene_layout_test.moc"
