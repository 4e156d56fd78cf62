// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/panorama_names.h"

#include "game_fixture.h"

using PanoramaNames = GameFixture;

TEST_F(PanoramaNames, FollowTheWorldLetterAreaAndWorldGroup) {
  Game.ResCode2 = "8";
  Game.AreaLetter = "B";
  EXPECT_EQ(panoramaPath(lodgeLocation()), "D:\\surnd\\83lodge.svh");
  EXPECT_EQ(panoramaPath(campLocation()), "D:\\surnd\\8Bcamp.svh");
  EXPECT_EQ(panoramaPath(standLocation(4)), "D:\\surnd\\83Bstnd4.svh");
  EXPECT_EQ(opticsPanoramaPath(4), "D:\\surnd\\63Bstnd4.svh");
  EXPECT_EQ(quickHuntLocation(), "mapB");
  Game.XpackMode = -1;
  Game.AreaLetter = "T";
  EXPECT_EQ(panoramaPath(campLocation()), "D:\\surnd\\8T2camp.svh");
  EXPECT_EQ(standLocation(1), "3T2snd1");
  EXPECT_EQ(opticsPanoramaPath(1), "D:\\surnd\\63T2snd1.svh");
  EXPECT_EQ(quickHuntLocation(), "2mapT");
}

TEST_F(PanoramaNames, ALoadedPlaceReopensByItsType) {
  Game.AreaLetter = "D";
  Game.StandNum = 3;
  EXPECT_EQ(loadedPlaceLocation(3), "3Dstnd3");
  EXPECT_EQ(loadedPlaceLocation(2), "Dcamp");
  EXPECT_EQ(loadedPlaceLocation(1), "Dcamp");
  EXPECT_EQ(loadedPlaceLocation(0), "3lodge");
  EXPECT_EQ(loadedPlaceLocation(5), "3lodge");
}
