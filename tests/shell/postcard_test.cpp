// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/postcard.h"

#include "game_fixture.h"
#include "platform/fakes/scripted_random.h"
#include "platform/fakes/scripted_screens.h"
#include "platform/picture_box.h"
#include "shell/filer.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

namespace {

class PostcardTest : public GameFixture {
 protected:
  PostcardTest() {
    // 16 empty-slot scores a world, four worlds.
    QByteArray notequip;
    for (int world = 0; world < 4; ++world)
      notequip += "1,1,1,1,1,1,1,1,1,1,1,1,1,1,1," + QByteArray::number(world + 1) + "\r\n";
    media.write("data/notequip.csv", notequip);
    postcard.Form_Load();
  }
  // Twenty draws for the sights: elevation and windage of weapons 0..9.
  void scriptSights(double value) {
    for (int i = 0; i < 20; ++i) random->push(value);
  }

  // Opens the main menu from the postcard and loads the first game listed.
  void loadFirstGameThroughTheMenu() {
    platform::ScopedService<platform::ScreensHost, platform::ScriptedScreens> screens;
    screens->on("Filer", [](QWidget& w) {
      auto& menu = static_cast<Filer&>(w);
      menu.List1->setCurrentRow(0);
      menu.LoadOK_Click();
      return 1;
    });
    postcard.Loadgamebut_Click();
  }

  platform::ScopedService<platform::Random, platform::ScriptedRandom> random;
  Postcard postcard;
};

}  // namespace

TEST_F(PostcardTest, TheFrontOffersANewHuntAndLoadingOnlyWhenThereIsAGame) {
  EXPECT_FALSE(postcard.Nextbox->isHidden());
  EXPECT_TRUE(postcard.loadgamebut->isHidden());
  EXPECT_TRUE(postcard.Image2->isHidden());
  EXPECT_EQ(Game.Money, 2500);
  ASSERT_TRUE(writeSaveFile(saveFilePath("OLD", kGameKind), kGameKind));
  postcard.Form_Load();
  EXPECT_FALSE(postcard.loadgamebut->isHidden());
}

TEST_F(PostcardTest, SkillSetsTheMoneyAfreshAndKeepsTheWorld) {
  postcard.Nextbox_Click();
  postcard.Selectworld_Click(3);
  postcard.Diffbutton_Click(2);
  EXPECT_EQ(Game.Money, 1500);
  postcard.Diffbutton_Click(0);
  EXPECT_EQ(Game.Money, 2500);
  EXPECT_EQ(Game.WorldNum, 3);
  EXPECT_TRUE(postcard.Description->toPlainText().contains("Yukon"));
  EXPECT_TRUE(postcard.Image2->picturePath().endsWith("art\\world3.bmp"));
}

TEST_F(PostcardTest, StartingUntouchedStartsInTheFirstWorldAtTheLodge) {
  Game.WorldNum = 2;
  postcard.Nextbox_Click();
  scriptSights(0.0);
  postcard.Image2_Click();
  EXPECT_EQ(Game.WorldNum, 0);
  EXPECT_EQ(Game.AreaCode, "Piedmo");
  EXPECT_EQ(Game.AreaLetter, "P");
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_EQ(Game.StartPano, "3lodge");
  EXPECT_EQ(Game.HunterName, "Hunter");
  EXPECT_EQ(Game.NotEquipScore[16], 2);
  EXPECT_EQ(postcard.result(), QDialog::Accepted);
}

TEST_F(PostcardTest, ANameOfBlanksIsKept) {
  postcard.Nextbox_Click();
  postcard.Namebox->setText("   ");
  scriptSights(0.5);
  postcard.Image2_Click();
  EXPECT_EQ(Game.HunterName, "   ");
}

// A rejected card ends the program.
TEST_F(PostcardTest, EscapeNeverRejectsTheCard) {
  bool rejected = false;
  QObject::connect(&postcard, &QDialog::rejected, [&rejected] { rejected = true; });
  postcard.show();
  for (bool turned : {false, true}) {
    if (turned) postcard.Nextbox_Click();
    QTest::keyClick(&postcard, Qt::Key_Escape);
    EXPECT_FALSE(rejected);
    EXPECT_TRUE(postcard.isVisible());
  }
}

// A comma or a double quote would end the name when the save is read back.
TEST_F(PostcardTest, TheNameHoldsOnlyWhatASaveGivesBack) {
  postcard.Nextbox_Click();
  postcard.Namebox->setText("Smith, \"Doc\" John");
  EXPECT_EQ(postcard.Namebox->text(), "Smith Doc John");
  postcard.Namebox->setText(QString(300, u'n'));
  scriptSights(0.5);
  postcard.Image2_Click();
  EXPECT_EQ(Game.HunterName, QString(128, u'n'));
}

TEST_F(PostcardTest, SightsStartBetweenMinusTenAndNine) {
  postcard.Nextbox_Click();
  for (int i = 0; i < 10; ++i) {
    random->push(0.0);
    random->push(0.999999);
  }
  postcard.Image2_Click();
  EXPECT_EQ(random->randomizeCalls(), 1);
  EXPECT_EQ(Game.SightElev[0], -10);
  EXPECT_EQ(Game.SightWind[9], 9);
  EXPECT_EQ(random->remaining(), 0u);
}

TEST_F(PostcardTest, AQuickHuntStartsOnTheMapWithItsOutfit) {
  QByteArray outfit;
  for (int i = 0; i < 17; ++i) outfit += QByteArray::number(i == 7 ? 3 : 0) + "\r\n";
  for (int i = 0; i < 66; ++i) outfit += QByteArray::number(i == 1 ? 3 : 255) + "\r\n";
  for (int i = 0; i < 17; ++i) outfit += QByteArray::number(i == 9 ? 128 : 64) + "\r\n";
  outfit += "800\r\n";
  media.write("data/qDakota.csv", outfit);
  postcard.Nextbox_Click();
  postcard.Selectworld_Click(1);
  postcard.qhunt->setChecked(true);
  scriptSights(0.5);
  postcard.Image2_Click();
  EXPECT_EQ(Game.StartPano, "mapD");
  EXPECT_EQ(Game.PlaceMode, 2);
  EXPECT_EQ(Game.EquipSlots[7], 3);
  EXPECT_EQ(Game.OwnedItems[1], 3);
  EXPECT_EQ(Game.TagsOwned[9], 128);
  EXPECT_EQ(Game.Money, 800);
}

TEST_F(PostcardTest, AMissingQuickHuntOutfitKeepsTheDefaults) {
  Game.XpackMode = -1;
  Game.EquipSlots[3] = 44;
  postcard.Nextbox_Click();
  postcard.qhunt->setChecked(true);
  scriptSights(0.5);
  postcard.Image2_Click();
  EXPECT_EQ(Game.StartPano, "2mapP");
  EXPECT_EQ(Game.EquipSlots[3], 44);
  EXPECT_EQ(Game.Money, 2500);
}

TEST_F(PostcardTest, AGameSavedAtTheRangeReopensAtTheLodge) {
  Game.PlaceMode = 5;
  ASSERT_TRUE(writeSaveFile(saveFilePath("RANGE", kGameKind), kGameKind));
  Game.PlaceMode = 0;
  loadFirstGameThroughTheMenu();
  EXPECT_EQ(Game.ScreenState, "LOADED");
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_EQ(Game.StartPano, "3lodge");
  EXPECT_EQ(postcard.result(), QDialog::Accepted);
}

TEST_F(PostcardTest, AGameSavedAtAStandReopensThereWithItsSight) {
  Game.PlaceMode = 3;
  Game.StandNum = 2;
  Game.AreaLetter = "Y";
  Game.CurWeapon = 8;
  ASSERT_TRUE(writeSaveFile(saveFilePath("STAND", kGameKind), kGameKind));
  loadFirstGameThroughTheMenu();
  EXPECT_EQ(Game.StartPano, "3Ystnd2");
  EXPECT_EQ(Game.SightX, 47);
}

TEST_F(PostcardTest, CancellingTheLoadKeepsThePostcardOpen) {
  platform::ScopedService<platform::ScreensHost, platform::ScriptedScreens> screens;
  screens->on("Filer", [](QWidget& w) {
    static_cast<Filer&>(w).Cancelbut_Click();
    return 0;
  });
  postcard.Loadgamebut_Click();
  EXPECT_EQ(Game.ScreenState, "CANCEL");
  EXPECT_NE(postcard.result(), QDialog::Accepted);
}
