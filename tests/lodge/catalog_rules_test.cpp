// SPDX-License-Identifier: GPL-2.0-or-later
// The outfitter's rules: prices, the owned list and which slots a sale or a purchase touches.
#include "lodge/catalog_rules.h"

#include <gtest/gtest.h>

namespace {

using lodge::EquipList;
using lodge::OwnedList;

OwnedList emptyOwned() {
  OwnedList owned;
  owned.fill(kEmptyOwnedEntry);
  owned[0] = 0;
  return owned;
}

TEST(CatalogPrices, SellBackLosesATenthRoundedDown) {
  struct Case {
    int16_t cost, price;
  };
  for (const Case c :
       {Case{15, 13}, Case{1, 0}, Case{10, 9}, Case{100, 90}, Case{0, 0}, Case{450, 405}, Case{30, 27}})
    EXPECT_EQ(lodge::sellBackPrice(c.cost), c.price) << "cost " << c.cost;
}

TEST(CatalogPrices, AWalletEqualToThePriceIsEnoughAndOneDollarLessIsNot) {
  EXPECT_TRUE(lodge::canAfford(90, 90));
  EXPECT_FALSE(lodge::canAfford(89, 90));
  EXPECT_TRUE(lodge::canAfford(0, 0));
  EXPECT_FALSE(lodge::canAfford(-32768, 1));
}

TEST(CatalogCategories, TabsNameTheFiveCategories) {
  const char* const names[] = {"Clothing", "Optics", "Tools", "Camping", "Safety"};
  for (int tab = 0; tab < 5; ++tab) EXPECT_EQ(lodge::CatnumtoStr(tab), QString::fromLatin1(names[tab]));
  EXPECT_EQ(lodge::CatnumtoStr(5), QString());
  EXPECT_EQ(lodge::CatnumtoStr(-1), QString());
}

TEST(CatalogOwnedList, AddingFillsTheFirstFreeEntryAndAFullListTakesNothing) {
  OwnedList owned = emptyOwned();
  owned[1] = 7;
  EXPECT_TRUE(lodge::AddtoInv(owned, 9));
  EXPECT_EQ(owned[2], 9);
  EXPECT_EQ(lodge::findOwned(owned, 9), 2);

  owned.fill(3);
  owned[0] = kEmptyOwnedEntry;  // entry 0 is never used, even when it looks free
  EXPECT_FALSE(lodge::AddtoInv(owned, 9));
  EXPECT_EQ(owned[0], kEmptyOwnedEntry);
  EXPECT_FALSE(lodge::findOwned(owned, 9));
}

TEST(CatalogOwnedList, SellingEmptiesOneEntryAndOnlySlotsOneToTwelve) {
  OwnedList owned = emptyOwned();
  owned[4] = 40;
  owned[9] = 40;
  EquipList equipped{};
  equipped[13] = 40;
  lodge::Removefrominv(owned, equipped, 40);
  EXPECT_EQ(owned[4], kEmptyOwnedEntry);
  EXPECT_EQ(owned[9], 40) << "only the first entry goes";
  EXPECT_EQ(equipped[13], 40) << "slots 13..16 keep what they carry";

  owned[2] = 12;
  equipped[12] = 12;
  equipped[16] = 12;
  lodge::Removefrominv(owned, equipped, 12);
  EXPECT_EQ(equipped[12], 0);
  EXPECT_EQ(equipped[16], 12);
  EXPECT_FALSE(lodge::findOwned(owned, 12));
}

TEST(CatalogAutoEquip, OnlyAnEmptySlotBelowSeventeenTakesTheItem) {
  EquipList equipped{};
  equipped[1] = 7;
  EXPECT_EQ(lodge::autoEquipSlot(equipped, 2), 2);
  EXPECT_FALSE(lodge::autoEquipSlot(equipped, 1)) << "a worn hat is not replaced";
  EXPECT_FALSE(lodge::autoEquipSlot(equipped, 17));
  EXPECT_FALSE(lodge::autoEquipSlot(equipped, -1));
  EXPECT_EQ(lodge::autoEquipSlot(equipped, 16), 16);
}

}  // namespace
