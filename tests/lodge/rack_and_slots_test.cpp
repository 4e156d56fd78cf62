// SPDX-License-Identifier: GPL-2.0-or-later
// The gun rack's paging and picture codes, and the equipment slots' names and pages.
#include "lodge/equipment_slots.h"
#include "lodge/weapon_rack.h"

#include <gtest/gtest.h>

namespace {

TEST(WeaponRack, PagesWrapAtBothEnds) {
  EXPECT_EQ(lodge::previousRackPage(1), 9);
  EXPECT_EQ(lodge::nextRackPage(9), 1);
  EXPECT_EQ(lodge::nextRackPage(4), 5);
  EXPECT_EQ(lodge::previousRackPage(5), 4);
}

TEST(WeaponRack, PictureCodesAreTheSameForBothWorldGroups) {
  const char* const codes[] = {"rifle0", "bolt0", "rifle0", "bolt0", "hgun0",
                               "12ga0",  "54hr0", "Bow0",   "RBow0"};
  for (int n = 1; n <= 9; ++n) EXPECT_EQ(lodge::weaponPictureCode(n), QString::fromLatin1(codes[n - 1]));
  EXPECT_EQ(lodge::weaponPictureCode(0), QString());
  EXPECT_EQ(lodge::weaponPictureCode(10), QString());
}

TEST(EquipmentSlots, NamesAndPages) {
  struct Case {
    int slot;
    const char* name;
    int page;
  };
  for (const Case c :
       {Case{1, "Hat", 0}, Case{6, "Footwear", 0}, Case{7, "Optics", 1}, Case{11, "Wind Indicator", 1},
        Case{12, "Knife", 1}, Case{13, "Tent", 2}, Case{16, "Safety", 2}}) {
    EXPECT_EQ(lodge::slotName(c.slot), QString::fromLatin1(c.name)) << c.slot;
    EXPECT_EQ(lodge::slotPage(c.slot), c.page) << c.slot;
  }
  EXPECT_EQ(lodge::slotName(0), QString());
  EXPECT_EQ(lodge::slotName(17), QString());
  EXPECT_EQ(lodge::slotPage(0), 0);
}

TEST(EquipmentSlots, OnlySlotSixteenStartsWithALongerName) {
  EXPECT_EQ(lodge::initialSlotName(16), QStringLiteral("Safety Equipment"));
  for (int slot = 1; slot <= 15; ++slot) EXPECT_EQ(lodge::initialSlotName(slot), lodge::slotName(slot));
}

}  // namespace
