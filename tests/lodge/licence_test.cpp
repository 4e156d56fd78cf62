// SPDX-License-Identifier: GPL-2.0-or-later
// The licence board: buying tags at the lodge and choosing the quarry in the field.
#include "lodge/licence.h"

#include "lodge_fixture.h"
#include "platform/picture_box.h"

#include <QFrame>
#include <QLabel>

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;
using platform::MessageBox;

constexpr int kElk = 9;
constexpr int kMoose = 11;
constexpr int kWhitetail = 16;
constexpr int kBison = 2;

class LicenceTest : public lodge_testing::LodgeFixture {
 protected:
  LicenceTest() {
    // Prices for species 0..16: species n costs 10 x n, the elk 175.
    drive.write("data/tagcost.csv", "0,10,20,30,40,50,60,70,80,175,100,110,120,130,140,150,160\r\n");
    // No bison and no moose in this world.
    drive.write("data/HPiedmo.csv", "1,0,1,1,1,1,1,1,1,1,0,1,1,1,1,1\r\n");
    Game.TagsOwned.fill(kTagNone);
  }

  Licence& open(int16_t mode) {
    Game.ScreenMode = mode;
    board.Form_Load();
    dialogs->clear();
    return board;
  }

  const MessageBox& lastBox() const { return dialogs->last(); }

  Licence board;
};

TEST_F(LicenceTest, OpeningClearsTheQuarryAndMarksAbsentSpeciesInBothModes) {
  for (const int16_t mode : {Licence::kBuyMode, Licence::kQuarryMode}) {
    Game.TagSpecies = kElk;
    Game.TagsOwned[kMoose] = kTagHeld;
    open(mode);
    EXPECT_EQ(Game.TagSpecies, 0) << mode;
    EXPECT_EQ(Game.TagsOwned[kBison], kTagAbsent) << mode;
    EXPECT_EQ(Game.TagsOwned[kMoose], kTagAbsent) << "the world decides, even over a held tag";
    EXPECT_FALSE(board.Tagpic[kBison]->isEnabled());
    EXPECT_EQ(board.Tagpic[kBison]->picturePath(), QStringLiteral("D:\\licnpics\\natag.bmp"));
    EXPECT_TRUE(board.Tagpic[kElk]->isEnabled());
  }
}

TEST_F(LicenceTest, TheBoardShowsHeldAndFilledTagsAndTheWallet) {
  Game.TagsOwned[kElk] = 131;
  Game.TagsOwned[kWhitetail] = kTagFilled;
  Game.HunterName = QStringLiteral("Ada");
  open(Licence::kBuyMode);
  EXPECT_EQ(board.Tagpic[kElk]->picturePath(), QStringLiteral("D:\\licnpics\\tag9.bmp"));
  EXPECT_EQ(board.Tagpic[kWhitetail]->picturePath(), QStringLiteral("D:\\licnpics\\ftag.bmp"));
  EXPECT_EQ(board.Moneylab->text(), QStringLiteral("$ 2500"));
  EXPECT_EQ(board.Namelab->text(), QStringLiteral("Ada"));
  EXPECT_EQ(board.Promptlab->text(), QStringLiteral("What tag do you want to buy?"));
  EXPECT_EQ(board.Background->picturePath(), QStringLiteral("D:\\art\\Plicense.bmp"));
  EXPECT_EQ(board.tagPrice(kElk), 175);
  EXPECT_TRUE(spoken().isEmpty());
}

TEST_F(LicenceTest, ATagNotHeldShowsTheSpeciesOwnTagPaled) {
  QImage red(20, 10, QImage::Format_RGB32);
  red.fill(Qt::red);
  const auto path = drive.root() / "licnpics" / "tag9.bmp";
  std::filesystem::create_directories(path.parent_path());
  ASSERT_TRUE(red.save(QString::fromStdString(path.string()), "BMP"));
  open(Licence::kBuyMode);
  const QColor shown = board.Tagpic[kElk]->pixmap().toImage().pixelColor(5, 5);
  EXPECT_EQ(shown.red(), shown.green());
  EXPECT_EQ(shown.green(), shown.blue());
  Game.TagsOwned[kElk] = kTagHeld;
  open(Licence::kBuyMode);
  EXPECT_EQ(board.Tagpic[kElk]->pixmap().toImage().pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(LicenceTest, QuarryModeAsksWhatToHuntAloud) {
  open(Licence::kQuarryMode);
  EXPECT_EQ(board.Promptlab->text(), QStringLiteral("What do you want to hunt?"));
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("chtag")});
}

TEST_F(LicenceTest, AWalletEqualToThePriceBuysTheTagAndLeavesNothing) {
  Game.Money = 175;
  open(Licence::kBuyMode);
  dialogs->answer(Answer::Yes);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(lastBox(), (MessageBox{QStringLiteral("Do you want to buy a tag to hunt Elk?"), Buttons::YesNo,
                                   Icon::None, QStringLiteral("Buy Tag")}));
  EXPECT_EQ(Game.Money, 0);
  EXPECT_EQ(board.Moneylab->text(), QStringLiteral("$ 0"));
  EXPECT_EQ(Game.TagsOwned[kElk], kTagHeld);
  EXPECT_EQ(board.Tagpic[kElk]->picturePath(), QStringLiteral("D:\\licnpics\\tag9.bmp"));
  EXPECT_FALSE(board.Shape1->isHidden());
  EXPECT_EQ(board.Shape1->geometry(), board.Tagpic[kElk]->geometry());
}

TEST_F(LicenceTest, OneDollarShortIsRefusedAloudAndChangesNothing) {
  Game.Money = 174;
  open(Licence::kBuyMode);
  dialogs->answer(Answer::Yes);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(lastBox(), (MessageBox{QStringLiteral("You don't have enough money."), Buttons::Ok, Icon::None,
                                   QStringLiteral("Not Enough Money")}));
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("hnomoney")});
  EXPECT_EQ(Game.Money, 174);
  EXPECT_EQ(Game.TagsOwned[kElk], kTagNone);
  EXPECT_TRUE(board.Shape1->isHidden());
}

TEST_F(LicenceTest, HeldAndFilledTagsAreNotSoldAgain) {
  Game.TagsOwned[kElk] = 137;
  Game.TagsOwned[kWhitetail] = kTagFilled;
  open(Licence::kBuyMode);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(lastBox(), (MessageBox{QStringLiteral("You already have a tag to hunt Elk."), Buttons::Ok,
                                   Icon::None, QStringLiteral("Buy Tag")}));
  board.Tagpic_Click(kWhitetail);
  EXPECT_EQ(lastBox(), (MessageBox{QStringLiteral("You have already filled that tag."), Buttons::Ok,
                                   Icon::None, QStringLiteral("Buy Tag")}));
  EXPECT_EQ(spoken(), (QStringList{QStringLiteral("hosttag1"), QStringLiteral("hosttag2")}));
  EXPECT_EQ(Game.Money, 2500);
}

TEST_F(LicenceTest, DecliningTheOfferBuysNothing) {
  open(Licence::kBuyMode);
  dialogs->answer(Answer::No);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(Game.TagsOwned[kElk], kTagNone);
  EXPECT_EQ(Game.Money, 2500);
}

TEST_F(LicenceTest, WithoutATagTheHunterIsSentBackToTheLodge) {
  open(Licence::kQuarryMode);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(lastBox(),
            (MessageBox{QStringLiteral("You don't have a tag to hunt Elk.\n\rYou will need to return "
                                       "to the Lodge and buy a tag to hunt that animal."),
                        Buttons::Ok, Icon::None, QStringLiteral("No Tag")}));
  EXPECT_EQ(spoken(), (QStringList{QStringLiteral("chtag"), QStringLiteral("2choice")}));
  EXPECT_EQ(Game.TagSpecies, 0);
}

TEST_F(LicenceTest, AFilledTagCannotBeHunted) {
  Game.TagsOwned[kElk] = kTagFilled;
  open(Licence::kQuarryMode);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(lastBox(),
            (MessageBox{QStringLiteral("You've already filled that tag.\n\rYou need to pick a different "
                                       "animal to hunt."),
                        Buttons::Ok, Icon::None, QStringLiteral("Select Tag")}));
  EXPECT_EQ(spoken(),
            (QStringList{QStringLiteral("chtag"), QStringLiteral("ftag"), QStringLiteral("2choice")}));
}

TEST_F(LicenceTest, ConfirmingAHeldTagChoosesTheQuarryRescoresAndCloses) {
  Game.TagsOwned[kElk] = 133;
  Game.ToolsScore = 99;
  Game.ClothesScore = 99;
  open(Licence::kQuarryMode);
  board.show();
  dialogs->answer(Answer::Yes);
  board.Tagpic_Click(kElk);
  EXPECT_EQ(lastBox(), (MessageBox{QStringLiteral("Elk --- are you sure?"), Buttons::YesNo, Icon::None,
                                   QStringLiteral("Select Tag")}));
  EXPECT_EQ(spoken(), (QStringList{QStringLiteral("chtag"), QStringLiteral("gconfirm")}));
  EXPECT_EQ(Game.TagSpecies, kElk);
  EXPECT_EQ(Game.ToolsScore, 0) << "the scores were worked out again";
  EXPECT_EQ(Game.ClothesScore, 0);
  EXPECT_FALSE(board.isVisible());
}

TEST_F(LicenceTest, SayingNoHidesTheFrameAndKeepsTheBoardOpen) {
  Game.TagsOwned[kElk] = kTagHeld;
  open(Licence::kQuarryMode);
  board.show();
  dialogs->answer(Answer::No);
  board.Tagpic_Click(kElk);
  EXPECT_TRUE(board.Shape1->isHidden());
  EXPECT_EQ(Game.TagSpecies, 0);
  EXPECT_TRUE(board.isVisible());
}

TEST_F(LicenceTest, AbsentOrUnknownValuesDoNothingInQuarryMode) {
  Game.TagsOwned[kElk] = 0;
  open(Licence::kQuarryMode);
  board.Tagpic_Click(kElk);
  board.Tagpic_Click(kBison);  // 255 by now: the world has no bison
  EXPECT_TRUE(dialogs->shown().empty());
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("chtag")});
  EXPECT_EQ(Game.TagSpecies, 0);
}

TEST_F(LicenceTest, AMissingWorldFileLeavesNoSpeciesAndAMissingPriceListPricesAtNothing) {
  std::filesystem::remove(drive.root() / "data" / "tagcost.csv");
  std::filesystem::remove(drive.root() / "data" / "HPiedmo.csv");
  open(Licence::kBuyMode);
  for (int species = 1; species <= 16; ++species) {
    EXPECT_FALSE(board.Tagpic[species]->isEnabled()) << species;
    EXPECT_EQ(Game.TagsOwned[species], 255) << species;
  }
  EXPECT_EQ(board.tagPrice(kElk), 0);
}

TEST_F(LicenceTest, AShortWorldFileKeepsWhatItGivesAndLeavesTheRestAbsent) {
  drive.write("data/HPiedmo.csv", "1,0,1\r\n");
  open(Licence::kBuyMode);
  EXPECT_TRUE(board.Tagpic[1]->isEnabled());
  EXPECT_FALSE(board.Tagpic[2]->isEnabled());
  EXPECT_TRUE(board.Tagpic[3]->isEnabled());
  for (int species = 4; species <= 16; ++species) EXPECT_FALSE(board.Tagpic[species]->isEnabled()) << species;
}

}  // namespace
