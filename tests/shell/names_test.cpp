// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/names.h"

#include "game_fixture.h"

using NameTables = GameFixture;

TEST_F(NameTables, WeaponsDependOnTheWorldGroup) {
  EXPECT_EQ(WeaponName(0), "No Weapon Selected");
  EXPECT_EQ(WeaponName(1), ".257 Rifle");
  EXPECT_EQ(WeaponName(7), ".54 Black Powder Rifle");
  Game.XpackMode = 1;
  EXPECT_EQ(WeaponName(1), ".243 Rifle");
  EXPECT_EQ(WeaponName(5), ".358 Bolt Action Pistol");
  EXPECT_EQ(WeaponName(9), "Recurve Bow");
  EXPECT_EQ(WeaponName(10), "");
}

TEST_F(NameTables, TheThirdWorldIsTetonOnlyWithTheSpecialPermit) {
  EXPECT_EQ(WorldName(2), "Bitterroot");
  Game.XpackMode = -1;
  EXPECT_EQ(WorldName(2), "Teton");
  EXPECT_EQ(WorldName(0), "Piedmont");
  EXPECT_EQ(WorldName(3), "Yukon");
  EXPECT_EQ(WorldName(4), "");
  EXPECT_EQ(WorldName(-1), "");
}

TEST_F(NameTables, SkillNamesStopAtAdvanced) {
  Game.SkillLevel = 1;
  EXPECT_EQ(SkillName(), "Experienced");
  Game.SkillLevel = 3;
  EXPECT_EQ(SkillName(), "");
}

TEST_F(NameTables, SpeciesNameSetsTheTrophyUnitOnlyForGameSpecies) {
  EXPECT_EQ(SpeciesName(1), "Bighorn Sheep");
  EXPECT_EQ(Game.TrophyUnit, "Curl (in inches)");
  EXPECT_EQ(SpeciesName(14), "Pronghorn");
  EXPECT_EQ(Game.TrophyUnit, "Horn Size (in inches)");
  EXPECT_EQ(SpeciesName(0), "Non-Game Animal");
  EXPECT_EQ(SpeciesName(17), "Non-Game Animal");
  EXPECT_EQ(Game.TrophyUnit, "Horn Size (in inches)");
  EXPECT_EQ(SpeciesName(16), "Whitetail Deer");
  EXPECT_EQ(Game.TrophyUnit, "Points");
}
