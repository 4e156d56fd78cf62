// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/data_tables.h"

#include "game_fixture.h"
#include "platform/runtime.h"

namespace {

class DataTables : public GameFixture {
 protected:
  void table(const std::string& name, const QByteArray& text) { media.write("data/" + name, text); }

  // Nine weapons a band, three bands; the rating of weapon w against species s at band b is
  // 1000 b + 100 w + s, so every cell names its own position.
  void writeWeaponTable() {
    QByteArray text;
    for (int band = 0; band < 3; ++band)
      for (int weapon = 1; weapon <= 9; ++weapon) {
        text += QByteArray::number(weapon);
        for (int s = 0; s <= 16; ++s) text += ',' + QByteArray::number(1000 * band + 100 * weapon + s);
        text += "\r\n";
      }
    table("weptab.csv", text);
  }
};

}  // namespace

TEST_F(DataTables, ItemScoreSkipsOneLinePerItemAndReadsTheWorldsColumn) {
  table("items.csv", "header line\r\n10,11,12,13\r\n20,21,22,23\r\n");
  Game.WorldNum = 2;
  EXPECT_EQ(ItemScore(2), 22);
  Game.WorldNum = 0;
  EXPECT_EQ(ItemScore(1), 10);
}

TEST_F(DataTables, ItemScoreOfAMissingOrShortTableKeepsWhatWasRead) {
  EXPECT_EQ(ItemScore(1), 0);
  table("items.csv", "header\r\n10,11\r\n");
  Game.WorldNum = 3;
  // Fields 0..3: 10, 11, then past the end; the last value read stands.
  EXPECT_EQ(ItemScore(1), 11);
  EXPECT_EQ(ItemScore(5), 0);
}

TEST_F(DataTables, ToolScoreFindsTheToolsRowAndTheQuarrysColumn) {
  table("tools.csv", "40,1,2,3,4\r\n41,5,6,7,8\r\n42,9,9,9\r\n");
  Game.TagSpecies = 3;
  EXPECT_EQ(ToolScore(41), 7);
  EXPECT_EQ(ToolScore(99), 0);
  Game.TagSpecies = 0;
  EXPECT_EQ(ToolScore(40), 0);
}

TEST_F(DataTables, NotEquipScoresAreDoubledFromTheWorldsRow) {
  QByteArray text;
  for (int world = 0; world < 4; ++world) {
    for (int slot = 1; slot <= 16; ++slot)
      text += QByteArray::number(world * 100 + slot) + (slot < 16 ? "," : "");
    text += "\r\n";
  }
  table("notequip.csv", text);
  Game.WorldNum = 2;
  LoadNotEquipScores();
  EXPECT_EQ(Game.NotEquipScore[0], 0);
  EXPECT_EQ(Game.NotEquipScore[1], 402);
  EXPECT_EQ(Game.NotEquipScore[16], 432);
}

TEST_F(DataTables, NotEquipScoresOfADamagedRowStopAtTheDamage) {
  table("notequip.csv", "1,2,x,4,5,6,7,8,9,10,11,12,13,14,15,16\r\n");
  Game.NotEquipScore.fill(-1);
  LoadNotEquipScores();
  EXPECT_EQ(Game.NotEquipScore[1], 2);
  EXPECT_EQ(Game.NotEquipScore[2], 4);
  EXPECT_EQ(Game.NotEquipScore[3], -1);
  EXPECT_EQ(Game.NotEquipScore[16], -1);
}

TEST_F(DataTables, WeaponRatingReadsTheWeaponsRowInTheRangeBand) {
  writeWeaponTable();
  Game.CurWeapon = 3;
  Game.CurAnimal = 9;
  Game.RangeBand = 1;
  LoadWeaponRating();
  EXPECT_EQ(Game.WeaponRating, 1309);
  Game.CurWeapon = 1;
  Game.RangeBand = 0;
  Game.CurAnimal = 16;
  LoadWeaponRating();
  EXPECT_EQ(Game.WeaponRating, 116);
}

TEST_F(DataTables, WeaponRatingClampsTheRangeBandAndStoresItBack) {
  writeWeaponTable();
  Game.CurWeapon = 9;
  Game.CurAnimal = 2;
  Game.RangeBand = 5;
  LoadWeaponRating();
  EXPECT_EQ(Game.RangeBand, 2);
  EXPECT_EQ(Game.WeaponRating, 2902);
}

TEST_F(DataTables, WeaponRatingOfANonGameAnimalNeedsNoTable) {
  Game.CurAnimal = 17;
  Game.RangeBand = 5;
  LoadWeaponRating();
  EXPECT_EQ(Game.WeaponRating, -255);
  EXPECT_EQ(Game.RangeBand, 5);
}

TEST_F(DataTables, EquipScoresLookUpClothesInItemsAndToolsInTools) {
  table("items.csv", "header\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
  table("tools.csv", "30,50\r\n31,70\r\n");
  Game.TagSpecies = 1;
  Game.NotEquipScore.fill(1000);
  Game.EquipSlots.fill(0);
  Game.EquipSlots[1] = 3;   // clothing: 3
  Game.EquipSlots[12] = 6;  // clothing: 6
  Game.EquipSlots[7] = 5;   // optics count for nothing
  Game.EquipSlots[8] = 5;
  Game.EquipSlots[10] = 31;  // tool: 70
  ComputeEquipScores();
  // Clothing slots 2..6 and 13..16 are empty: nine empty slots at 1000 each.
  EXPECT_EQ(Game.ClothesScore, 3 + 6 + 9 * 1000);
  // Tool slots 9 and 11 are empty.
  EXPECT_EQ(Game.ToolsScore, 70 + 2 * 1000);
}

TEST_F(DataTables, EquipScoresThatOverflowRaiseAndStoreNothing) {
  Game.NotEquipScore.fill(4000);
  Game.ClothesScore = 11;
  Game.ToolsScore = 12;
  EXPECT_THROW(ComputeEquipScores(), rt::OverflowError);
  EXPECT_EQ(Game.ClothesScore, 11);
  EXPECT_EQ(Game.ToolsScore, 12);
}
