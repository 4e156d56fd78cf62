// SPDX-License-Identifier: GPL-2.0-or-later
// The outfitter's shop: paging the catalogue, buying with the wallet, selling back.
#include "lodge/catalog.h"

#include "catalog_world.h"
#include "platform/picture_box.h"
#include "platform/runtime.h"

#include <QLabel>
#include <QListWidget>
#include <QTabBar>
#include <QTest>

namespace {

using namespace lodge_testing;
using platform::Answer;
using platform::Buttons;
using platform::Icon;
using platform::MessageBox;

class CatalogTest : public LodgeFixture {
 protected:
  CatalogTest() {
    writeCatalog();
    shop.Form_Load();
  }

  void own(std::initializer_list<int16_t> items) {
    int entry = 1;
    for (const int16_t item : items) Game.OwnedItems[entry++] = item;
    shop.TabInv_Click();
  }

  void showCategory(int tab) { shop.TabCat->setCurrentIndex(tab); }

  void showItem(int16_t item) {
    for (int tries = 0; tries < 10 && shop.currentItem() != item; ++tries) shop.Catnext_Click();
    ASSERT_EQ(shop.currentItem(), item);
  }

  // Selects the owned row of `item` in the owned list of the tab shown.
  void selectOwned(int16_t item) {
    for (int row = 0; row < shop.Invlist->count(); ++row)
      if (shop.Invlist->item(row)->data(Qt::UserRole).toInt() == item) shop.Invlist->setCurrentRow(row);
  }

  QStringList ownedRows() const {
    QStringList rows;
    for (int row = 0; row < shop.Invlist->count(); ++row) rows << shop.Invlist->item(row)->text();
    return rows;
  }

  Catalog shop;
};

TEST_F(CatalogTest, OpensOnTheFirstClothingItemInSequence) {
  EXPECT_EQ(shop.currentItem(), kBallCap);
  EXPECT_EQ(shop.Itemname->text(), QStringLiteral("Ball Cap"));
  EXPECT_EQ(shop.Itemdesc->text(), QStringLiteral("All about the Ball Cap"));
  EXPECT_EQ(shop.Itemcost->text(), QStringLiteral("$1"));
  EXPECT_EQ(shop.Itempic->picturePath(), QStringLiteral("D:\\invpics\\image8.bmp"));
  EXPECT_EQ(shop.Moneylab->text(), QStringLiteral("$ 2500"));
  EXPECT_EQ(shop.Background->picturePath(), QStringLiteral("D:\\art\\Pcatalog.bmp"));
}

TEST_F(CatalogTest, PagingWrapsWithinTheCategory) {
  const QList<int16_t> forward{kWatchCap, kTrapperHat, kParka, kBallCap, kWatchCap};
  for (const int16_t item : forward) {
    shop.Catnext_Click();
    EXPECT_EQ(shop.currentItem(), item);
  }
  shop.catback_Click();
  EXPECT_EQ(shop.currentItem(), kBallCap);
  shop.catback_Click();
  EXPECT_EQ(shop.currentItem(), kParka) << "back from the first shows the last";
}

TEST_F(CatalogTest, ChoosingACategoryShowsItsFirstItem) {
  showCategory(1);
  EXPECT_EQ(shop.currentItem(), kPocketGlass);
  shop.catback_Click();
  EXPECT_EQ(shop.currentItem(), kFieldGlass);
  shop.Catnext_Click();
  EXPECT_EQ(shop.currentItem(), kPocketGlass);
}

TEST_F(CatalogTest, AnItemAlreadyOwnedIsNeverChargedAgain) {
  own({kBallCap});
  shop.Buybutton_Click();
  EXPECT_EQ(dialogs->last(), (MessageBox{QStringLiteral("You already own Ball Cap."), Buttons::Ok,
                                         Icon::Exclamation, QStringLiteral("Have Item")}));
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("already")});
  EXPECT_EQ(Game.Money, 2500);
}

TEST_F(CatalogTest, AWalletEqualToThePriceBuysRingsTheTillAndEquips) {
  showItem(kWatchCap);
  Game.Money = 15;
  dialogs->answer(Answer::Yes);
  shop.Buybutton_Click();
  EXPECT_EQ(dialogs->last(), (MessageBox{QStringLiteral("Do you want to buy Wool Watch Cap?"), Buttons::YesNo,
                                         Icon::None, QStringLiteral("Buy Item")}));
  EXPECT_EQ(Game.Money, 0);
  EXPECT_EQ(shop.Moneylab->text(), QStringLiteral("$ 0"));
  EXPECT_EQ(Game.OwnedItems[1], kWatchCap);
  EXPECT_EQ(Game.EquipSlots[1], kWatchCap) << "an empty hat slot takes the new hat";
  EXPECT_NE(Game.MediaBusy, 0);
  EXPECT_EQ(media.log(),
            (QStringList{QStringLiteral("file D:\\sound\\cregstr.wav"), QStringLiteral("Play ")}));
  EXPECT_EQ(shop.TabInv->currentIndex(), 0);
  EXPECT_EQ(ownedRows(), QStringList{QStringLiteral("Wool Watch Cap")});
}

TEST_F(CatalogTest, OneDollarShortIsRefusedAloud) {
  showItem(kWatchCap);
  Game.Money = 14;
  dialogs->answer(Answer::Yes);
  shop.Buybutton_Click();
  EXPECT_EQ(dialogs->last(), (MessageBox{QStringLiteral("You don't have enough money."), Buttons::Ok,
                                         Icon::None, QStringLiteral("Not Enough Money")}));
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("nomoney")});
  EXPECT_EQ(Game.Money, 14);
  EXPECT_EQ(Game.OwnedItems[1], kEmptyOwnedEntry);
  EXPECT_EQ(Game.EquipSlots[1], 0);
}

TEST_F(CatalogTest, DecliningBuysNothing) {
  dialogs->answer(Answer::No);
  shop.Buybutton_Click();
  EXPECT_EQ(Game.Money, 2500);
  EXPECT_EQ(Game.OwnedItems[1], kEmptyOwnedEntry);
  EXPECT_TRUE(media.log().isEmpty());
}

TEST_F(CatalogTest, ASecondHatDoesNotReplaceTheOneWorn) {
  own({kBallCap});
  Game.EquipSlots[1] = kBallCap;
  showItem(kTrapperHat);
  dialogs->answer(Answer::Yes);
  shop.Buybutton_Click();
  EXPECT_EQ(Game.Money, 2455);
  EXPECT_EQ(Game.OwnedItems[2], kTrapperHat);
  EXPECT_EQ(Game.EquipSlots[1], kBallCap);
}

TEST_F(CatalogTest, BuyingTurnsTheOwnedViewToTheItemsCategory) {
  showCategory(3);
  dialogs->answer(Answer::Yes);
  shop.Buybutton_Click();
  EXPECT_EQ(shop.TabInv->currentIndex(), 3);
  EXPECT_EQ(ownedRows(), QStringList{QStringLiteral("Dome Tent")});
  EXPECT_EQ(Game.EquipSlots[13], kTent);
}

TEST_F(CatalogTest, SellingNeedsASelection) {
  own({kWatchCap});
  shop.SellButton_Click();
  EXPECT_EQ(dialogs->last(), (MessageBox{QStringLiteral("You need to select an item to sell"), Buttons::Ok,
                                         Icon::None, QStringLiteral("Select Item")}));
  EXPECT_EQ(Game.OwnedItems[1], kWatchCap);
}

TEST_F(CatalogTest, SellingBackLosesATenthAndUnequips) {
  own({kBallCap, kWatchCap});
  Game.EquipSlots[1] = kWatchCap;
  selectOwned(kWatchCap);
  dialogs->answer(Answer::Yes);
  shop.SellButton_Click();
  EXPECT_EQ(dialogs->last(), (MessageBox{QStringLiteral("Do you want to sell Wool Watch Cap for $13?"),
                                         Buttons::YesNo, Icon::None, QStringLiteral("Sell Item")}));
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("oconfirm")});
  EXPECT_EQ(Game.Money, 2513);
  EXPECT_EQ(shop.Moneylab->text(), QStringLiteral("$ 2513"));
  EXPECT_EQ(Game.OwnedItems[2], kEmptyOwnedEntry);
  EXPECT_EQ(Game.EquipSlots[1], 0);
  EXPECT_EQ(ownedRows(), QStringList{QStringLiteral("Ball Cap")});
}

TEST_F(CatalogTest, AOneDollarItemSellsForNothing) {
  own({kBallCap});
  selectOwned(kBallCap);
  dialogs->answer(Answer::Yes);
  shop.SellButton_Click();
  EXPECT_EQ(dialogs->last().text, QStringLiteral("Do you want to sell Ball Cap for $0?"));
  EXPECT_EQ(Game.Money, 2500);
  EXPECT_FALSE(lodge::findOwned(Game.OwnedItems, kBallCap));
}

TEST_F(CatalogTest, GearSoldFromTheCampSlotsStaysCarried) {
  own({kTent});
  Game.EquipSlots[13] = kTent;
  shop.TabInv->setCurrentIndex(3);
  selectOwned(kTent);
  dialogs->answer(Answer::Yes);
  shop.SellButton_Click();
  EXPECT_EQ(Game.Money, 2635);
  EXPECT_FALSE(lodge::findOwned(Game.OwnedItems, kTent));
  EXPECT_EQ(Game.EquipSlots[13], kTent);
}

TEST_F(CatalogTest, AWalletOverflowReachesTheTopLevelWithNothingChanged) {
  own({kTent});
  Game.EquipSlots[13] = kTent;
  Game.Money = 32700;
  shop.TabInv->setCurrentIndex(3);
  selectOwned(kTent);
  dialogs->answer(Answer::Yes);
  EXPECT_THROW(shop.SellButton_Click(), rt::OverflowError);
  EXPECT_EQ(Game.Money, 32700);
  EXPECT_EQ(Game.OwnedItems[1], kTent);
  EXPECT_EQ(Game.EquipSlots[13], kTent);
}

TEST_F(CatalogTest, TheOwnedViewListsOnlyTheChosenCategory) {
  own({kTent, kWatchCap, kFieldGlass, kParka});
  EXPECT_EQ(ownedRows(), (QStringList{QStringLiteral("Wool Watch Cap"), QStringLiteral("Insulated Parka")}));
  shop.TabInv->setCurrentIndex(1);
  EXPECT_EQ(ownedRows(), QStringList{QStringLiteral("Field Glass")});
  shop.TabInv->setCurrentIndex(4);
  EXPECT_TRUE(ownedRows().isEmpty());
}

TEST_F(CatalogTest, ClosingThanksTheHunterEvenByEscape) {
  shop.show();
  QTest::keyClick(&shop, Qt::Key_Escape);
  EXPECT_FALSE(shop.isVisible());
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("thankyou")});
}

}  // namespace
