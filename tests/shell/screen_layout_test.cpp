// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/screen_layout.h"

#include "game_fixture.h"

namespace {

struct LayoutCase {
  int pixels;
  int x, w, y;
  const char* code;
};

class ScreenLayout : public GameFixture, public ::testing::WithParamInterface<LayoutCase> {};

}  // namespace

TEST_P(ScreenLayout, PicksThePicturesMadeForTheWidth) {
  const LayoutCase c = GetParam();
  Game.TwipsPerPixel = 15;
  Game.ScreenWidth = c.pixels * 15;
  Game.LayoutX = Game.LayoutW = Game.LayoutY = -7;
  Game.ResCode = Game.ResCode2 = QStringLiteral("?");
  SetScreenLayout();
  EXPECT_EQ(Game.LayoutX, c.x * 15);
  EXPECT_EQ(Game.LayoutW, c.w * 15);
  EXPECT_EQ(Game.LayoutY, c.y * 15);
  EXPECT_EQ(Game.ResCode, c.code);
  EXPECT_EQ(Game.ResCode2, c.code);
}

INSTANTIATE_TEST_SUITE_P(Widths, ScreenLayout,
                         ::testing::Values(LayoutCase{640, 106, 630, 369, "6"},
                                           LayoutCase{800, 127, 790, 468, "8"},
                                           LayoutCase{1024, 156, 1014, 607, "1"},
                                           LayoutCase{1280, 156, 1014, 607, "1"},
                                           LayoutCase{2560, 156, 1014, 607, "1"}));

TEST_F(GameFixture, AWidthWithoutPicturesLeavesTheLayoutAsItWas) {
  Game.ScreenWidth = 720 * 15;
  Game.LayoutX = Game.LayoutW = Game.LayoutY = -7;
  Game.ResCode = Game.ResCode2 = QStringLiteral("?");
  SetScreenLayout();
  EXPECT_EQ((std::array{Game.LayoutX, Game.LayoutW, Game.LayoutY}), (std::array{-7, -7, -7}));
  EXPECT_EQ(Game.ResCode + Game.ResCode2, "??");
}

using WeaponSight = GameFixture;

TEST_F(WeaponSight, FollowsTheWeaponAndTheWorldGroup) {
  Game.CurWeapon = 5;
  SetWeaponSight();
  EXPECT_EQ((std::array{Game.SightX, Game.SightY, Game.SightZ}), (std::array<int16_t, 3>{153, 94, 6}));
  Game.XpackMode = 1;
  SetWeaponSight();
  EXPECT_EQ((std::array{Game.SightX, Game.SightY, Game.SightZ}), (std::array<int16_t, 3>{160, 61, 3}));
  Game.CurWeapon = 8;
  SetWeaponSight();
  EXPECT_EQ((std::array{Game.SightX, Game.SightY, Game.SightZ}), (std::array<int16_t, 3>{46, 161, 5}));
}

TEST_F(WeaponSight, NoWeaponChangesNothing) {
  Game.SightX = 1;
  Game.SightY = 2;
  Game.SightZ = 3;
  Game.CurWeapon = 0;
  SetWeaponSight();
  EXPECT_EQ((std::array{Game.SightX, Game.SightY, Game.SightZ}), (std::array<int16_t, 3>{1, 2, 3}));
}
