// SPDX-License-Identifier: GPL-2.0-or-later
// The gun rack's paging, and the equipment slots' names and pages.
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
  EXPECT_EQ(lodge::initialSlotName(16), QStringLiteral("Safety Equipment"));
  EXPECT_EQ(lodge::slotName(0), QString());
  EXPECT_EQ(lodge::slotName(17), QString());
  EXPECT_EQ(lodge::slotPage(0), 0);
}

}  // namespace
