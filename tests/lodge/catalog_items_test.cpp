// SPDX-License-Identifier: GPL-2.0-or-later
// Reading the catalogue: one item by number, and the names and categories of every item.
#include "lodge/catalog_items.h"

#include "catalog_world.h"

namespace {

using namespace lodge_testing;

class CatalogItemsTest : public LodgeFixture {
 protected:
  CatalogItemsTest() { writeCatalog(); }
};

TEST_F(CatalogItemsTest, AnItemIsFoundByItsNumber) {
  const auto tent = lodge::Lookupitem(kTent);
  ASSERT_TRUE(tent);
  EXPECT_EQ(tent->id, kTent);
  EXPECT_EQ(tent->name, QStringLiteral("Dome Tent"));
  EXPECT_EQ(tent->description, QStringLiteral("All about the Dome Tent"));
  EXPECT_EQ(tent->cost, 150);
  EXPECT_EQ(tent->catNumber, 4);
  EXPECT_EQ(tent->subCatNumber, 13);
  EXPECT_FALSE(lodge::Lookupitem(99));
}

TEST_F(CatalogItemsTest, TablesGiveEachItemItsNameAndCategoryTab) {
  const lodge::ItemTables& tables = lodge::itemTables();
  EXPECT_EQ(tables.names[kParka], QStringLiteral("Insulated Parka"));
  EXPECT_EQ(tables.tabs[kParka], 0);
  EXPECT_EQ(tables.tabs[kFirstAid], 4);
  EXPECT_EQ(tables.tabs[3], -1) << "a number no item has belongs to no tab";
  EXPECT_EQ(tables.names[0], QString());
}

TEST_F(CatalogItemsTest, TheOtherWorldGroupReadsItsOwnCatalogue) {
  writeRecords(QStringLiteral("D:\\Xdbase\\catalog.isd"), {"ID", "Item", "CatNumber"},
               {{QStringLiteral("7"), QStringLiteral("Permit Cap"), QStringLiteral("1")}});
  Game.DbaseDir = QStringLiteral("Xdbase\\");
  EXPECT_EQ(lodge::itemTables().names[kWatchCap], QStringLiteral("Permit Cap"));
  EXPECT_EQ(lodge::itemTables().names[kParka], QString());
  Game.DbaseDir = QStringLiteral("Dbase\\");
  EXPECT_EQ(lodge::itemTables().names[kWatchCap], QStringLiteral("Wool Watch Cap"));
}

TEST_F(CatalogItemsTest, ADamagedCatalogueGivesNoItemsAndNoCrash) {
  drive.write("Dbase/catalog.isd",
              QByteArray("this is not a record file at all, just some words\n").repeated(50));
  lodge::LoadItemTables();
  EXPECT_EQ(lodge::itemTables().names[kParka], QString());
  EXPECT_FALSE(lodge::Lookupitem(kParka));
}

}  // namespace
