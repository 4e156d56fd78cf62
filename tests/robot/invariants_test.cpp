// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's invariants catch what they are there to catch, and pass a fresh game.
#include "invariants.h"
#include "robot_world.h"
#include "shell/game_state.h"

#include <gtest/gtest.h>

namespace {

class InvariantsTest : public ::testing::Test {
 protected:
  InvariantsTest() {
    game.TagsOwned.fill(kTagNone);
    game.OwnedItems.fill(kEmptyOwnedEntry);
    game.GameDate = rt::dateSerial(1997, 12, 22) + rt::timeSerial(6, 0, 0);
    invariants.setCatalog({{1, 7}, {2, 7}, {20, 3}});
  }
  QStringList check() { return invariants.check(game); }

  GameState game;
  robot::Invariants invariants;
};

}  // namespace

TEST_F(InvariantsTest, AFreshGamePasses) {
  EXPECT_TRUE(check().isEmpty()) << check().join(u'\n').toStdString();
}

TEST_F(InvariantsTest, OnlyTheKnownTagCodesPass) {
  for (int16_t code : {32, 64, 128, 133, 137, 255}) EXPECT_TRUE(robot::validTagCode(code)) << code;
  for (int16_t code : {0, 1, 31, 63, 65, 127, 138, 254, 256, -1})
    EXPECT_FALSE(robot::validTagCode(code)) << code;
  game.TagsOwned[16] = 138;
  EXPECT_EQ(check(), QStringList{"tag of species 16 holds 138"});
}

TEST_F(InvariantsTest, ItemsMustBeInTheCatalogueAndInTheirOwnSlot) {
  game.OwnedItems[65] = 2;
  game.EquipSlots[7] = 1;
  EXPECT_TRUE(check().isEmpty());
  game.OwnedItems[3] = 0;  // an empty entry is 255, not 0
  game.EquipSlots[3] = 1;  // optics worn as clothing
  game.EquipSlots[16] = 44;
  EXPECT_EQ(check(), QStringList({"owned entry 3 holds unknown item 0", "slot 3 holds item 1 of slot 7",
                                  "slot 16 holds unknown item 44"}));
}

TEST_F(InvariantsTest, TheClockRunsOnOrResetsToALaterMorning) {
  EXPECT_TRUE(check().isEmpty());
  game.GameDate += 1.0 / 288;  // five minutes
  EXPECT_TRUE(check().isEmpty());
  game.GameDate = rt::dateSerial(1997, 12, 23) + rt::timeSerial(5, 30, 0);
  EXPECT_TRUE(check().isEmpty());
  game.GameDate -= 1.0 / 288;
  ASSERT_EQ(check().size(), 1);
  EXPECT_TRUE(check().isEmpty()) << "a break is told once";
  invariants.forgetClock();
  game.GameDate = rt::dateSerial(1997, 12, 20);
  EXPECT_TRUE(check().isEmpty()) << "a loaded game may be earlier";
}

TEST_F(InvariantsTest, NegativeMoneyIsABreak) {
  game.Money = -1;
  EXPECT_EQ(check(), QStringList{"money below zero: -1"});
}

TEST(CatalogSlots, AreReadFromTheSampleWorldsCatalogue) {
  const robot::CatalogSlots items =
      robot::readCatalogSlots(robot_testing::sampleWorld() / "Dbase" / "catalog.isd");
  ASSERT_FALSE(items.empty());
  for (const auto& [item, slot] : items) {
    EXPECT_GT(item, 0);
    EXPECT_LT(item, kOwnedItemCount);
    EXPECT_GE(slot, 0);
    EXPECT_LE(slot, 16);
  }
}
