// SPDX-License-Identifier: GPL-2.0-or-later
// The inventory: the owned gear by category and the sixteen slots, putting on and taking off.
#include "lodge/inventory.h"

#include "catalog_world.h"
#include "lodge/catalog_items.h"
#include "platform/picture_box.h"
#include "platform/runtime.h"

#include <QLabel>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <filesystem>

namespace {

using namespace lodge_testing;

class InventoryTest : public LodgeFixture {
 protected:
  InventoryTest() {
    writeCatalog();
    const int16_t owned[] = {kWatchCap, kBallCap, kParka, kTent, kKnife, kPatch};
    for (int i = 0; i < static_cast<int>(std::size(owned)); ++i) Game.OwnedItems[i + 1] = owned[i];
    Game.EquipSlots[1] = kWatchCap;
  }

  void open() { screen.Form_Load(); }

  // Double-clicks the owned row of `item` in the list of the tab shown.
  void putOn(int16_t item) {
    for (int row = 0; row < screen.dwMList->count(); ++row) {
      if (screen.dwMList->item(row)->data(Qt::UserRole).toInt() != item) continue;
      screen.dwMList->setCurrentRow(row);
      screen.dwMList_DblClick();
      return;
    }
    FAIL() << "item " << item << " is not listed";
  }

  QStringList listed() const {
    QStringList rows;
    for (int row = 0; row < screen.dwMList->count(); ++row) rows << screen.dwMList->item(row)->text();
    return rows;
  }

  Inventory screen;
};

TEST_F(InventoryTest, OpensWithTheWalletTheWeaponAndWhatIsWorn) {
  Game.CurWeapon = 3;
  open();
  EXPECT_EQ(screen.Wallet1->text(), QStringLiteral("$ 2500"));
  EXPECT_EQ(screen.Weaponlab->text(), QStringLiteral(".300 Rifle"));
  EXPECT_EQ(screen.wepicon->picturePath(), QStringLiteral("D:\\pict\\wicon3.bmp"));
  EXPECT_EQ(screen.InvEqupLabel[1]->text(), QStringLiteral("Wool Watch Cap"));
  EXPECT_EQ(screen.invequip[1]->picturePath(), QStringLiteral("D:\\invpics\\icon7.bmp"));
  EXPECT_EQ(screen.InvEqupLabel[2]->text(), QStringLiteral("Coat"));
  EXPECT_EQ(screen.InvEqupLabel[16]->text(), QStringLiteral("Safety Equipment"));
  EXPECT_EQ(screen.Background->picturePath(), QStringLiteral("D:\\art\\Pinvent.bmp"));
}

TEST_F(InventoryTest, AnUnarmedHunterShowsNoWeapon) {
  open();
  EXPECT_EQ(screen.Weaponlab->text(), QStringLiteral("No Weapon Selected"));
  EXPECT_EQ(screen.wepicon->picturePath(), QString());
}

TEST_F(InventoryTest, TheListShowsOneCategoryWithIconsAndItemNumbers) {
  open();
  EXPECT_EQ(listed(), (QStringList{QStringLiteral("Wool Watch Cap"), QStringLiteral("Ball Cap"),
                                   QStringLiteral("Insulated Parka")}));
  EXPECT_EQ(screen.dwMList->item(1)->data(Qt::UserRole).toInt(), kBallCap);
  screen.tabinvent->setCurrentIndex(3);
  EXPECT_EQ(listed(), QStringList{QStringLiteral("Dome Tent")});
  screen.tabinvent->setCurrentIndex(1);
  EXPECT_TRUE(listed().isEmpty());
}

TEST_F(InventoryTest, PuttingOnASecondHatReplacesTheFirstWhichStaysOwned) {
  open();
  putOn(kBallCap);
  EXPECT_EQ(Game.EquipSlots[1], kBallCap);
  EXPECT_EQ(screen.InvEqupLabel[1]->text(), QStringLiteral("Ball Cap"));
  EXPECT_EQ(screen.invequip[1]->picturePath(), QStringLiteral("D:\\invpics\\icon8.bmp"));
  EXPECT_TRUE(lodge::findOwned(Game.OwnedItems, kWatchCap));
  EXPECT_EQ(screen.sstabequp->currentIndex(), 0);
}

TEST_F(InventoryTest, TheSlotTabsTurnToTheSlotsPage) {
  open();
  screen.tabinvent->setCurrentIndex(2);
  putOn(kKnife);
  EXPECT_EQ(Game.EquipSlots[12], kKnife);
  EXPECT_EQ(screen.sstabequp->currentIndex(), 1);
  screen.tabinvent->setCurrentIndex(3);
  putOn(kTent);
  EXPECT_EQ(Game.EquipSlots[13], kTent);
  EXPECT_EQ(screen.sstabequp->currentIndex(), 2);
}

TEST_F(InventoryTest, AnItemWithoutASlotGoesIntoSlotZeroWhereNothingShowsIt) {
  open();
  screen.tabinvent->setCurrentIndex(4);
  putOn(kPatch);
  EXPECT_EQ(Game.EquipSlots[0], kPatch);
  for (int slot = 2; slot <= 16; ++slot) EXPECT_EQ(Game.EquipSlots[slot], 0) << slot;
}

TEST_F(InventoryTest, AnItemNamingASlotBeyondSixteenIsASubscriptError) {
  std::filesystem::remove(drive.root() / "Dbase" / "catalog.isd");
  writeRecords(QStringLiteral("D:\\Dbase\\catalog.isd"),
               {"ID", "Item", "Item Description", "Cost", "Category", "CatNumber", "Sub-Category",
                "Sub-CatNumber", "sequence"},
               {{QString::number(kPatch), "Blaze Patch", "Orange", "5", "Safety", "5", "sub", "17", "1"}});
  lodge::LoadItemTables();
  open();
  screen.tabinvent->setCurrentIndex(4);
  const auto before = Game.EquipSlots;
  EXPECT_THROW(putOn(kPatch), rt::SubscriptOutOfRange);
  EXPECT_EQ(Game.EquipSlots, before);
}

TEST_F(InventoryTest, DoubleClickingASlotsNameTakesTheItemOffButKeepsItOwned) {
  Game.EquipSlots[16] = kFirstAid;
  open();
  QTest::mouseDClick(screen.InvEqupLabel[1], Qt::LeftButton);
  EXPECT_EQ(Game.EquipSlots[1], 0);
  EXPECT_EQ(screen.InvEqupLabel[1]->text(), QStringLiteral("Hat"));
  EXPECT_EQ(screen.invequip[1]->picturePath(), QString());
  EXPECT_TRUE(lodge::findOwned(Game.OwnedItems, kWatchCap));
  screen.InvEqupLabel_DblClick(16);
  EXPECT_EQ(screen.InvEqupLabel[16]->text(), QStringLiteral("Safety"));
}

TEST_F(InventoryTest, AClickOnTheSlotPictureTakesTheItemOffToo) {
  open();
  QTest::mouseClick(screen.invequip[1], Qt::LeftButton);
  EXPECT_EQ(Game.EquipSlots[1], 0);
  EXPECT_EQ(screen.InvEqupLabel[1]->text(), QStringLiteral("Hat"));
}

}  // namespace
