// SPDX-License-Identifier: GPL-2.0-or-later
// The trophy page: its lines, the bonus drawn in order, the award and the wallet, the
// photograph, the award bases and printing.
#include "shooting/shotdata.h"
#include "platform/datetime.h"
#include "platform/error_box.h"
#include "platform/fakes/recording_printer.h"
#include "platform/picture_box.h"
#include "platform/runtime.h"
#include "shooting_fixture.h"

#include <QLabel>

namespace {

class ShotdataTest : public ShootingFixture {
 protected:
  ShotdataTest() {
    media.write("data/tagcost.csv", "0,300,250,100,200,150,175,90,60,120,400,350,125,80,110,40,95\r\n");
    Game.CurAnimal = 1;
    Game.TrophySize = 30;
    Game.TrophyWeight = 200;
    Game.HunterName = QStringLiteral("Ann Tracker");
    Game.CurWeapon = 2;
    Game.WorldNum = 1;
    Game.CurLocation = QStringLiteral("Cottonwood Draw");
    Game.ShotYards = 150;
    Game.GameDate = rt::dateSerial(1997, 12, 22) + rt::timeSerial(6, 5, 0);
    Game.SkillLevel = 1;
    Game.VideoName = QStringLiteral("bighorn1");
    Game.Money = 2500;
  }

  Shotdata& load() {
    Shotdata& page = ScreenInstance<Shotdata>::get();
    page.Form_Load();
    return page;
  }
};

TEST_F(ShotdataTest, ShowsTheKillWithItsBonusAndPaysTheAward) {
  *random = {0.5, 0.75, 0.5};  // size, weight, award
  Shotdata& page = load();
  EXPECT_DOUBLE_EQ(Game.TrophySize, 33);
  EXPECT_DOUBLE_EQ(Game.TrophyWeight, 230);
  EXPECT_EQ(page.Takenlab->text(), QStringLiteral("Taken by: Ann Tracker"));
  EXPECT_EQ(page.Specieslab->text(), QStringLiteral("Bighorn Sheep"));
  EXPECT_EQ(page.Sizelab->text(), QStringLiteral("Size: 33.00 Curl (in inches)"));
  EXPECT_EQ(page.Weightlab->text(), QStringLiteral("Weight: 230.00 lbs"));
  EXPECT_EQ(page.Weaponlab->text(), QStringLiteral("Weapon: .280 Rifle"));
  EXPECT_EQ(page.Arealab->text(), QStringLiteral("In the Dakota at the Cottonwood Draw"));
  EXPECT_EQ(page.Rangelab->text(), QStringLiteral("Range: 150 yards"));
  EXPECT_EQ(page.Timelab->text(), QStringLiteral("Time: Monday 6:05 AM"));
  EXPECT_EQ(page.Skilllab->text(), QStringLiteral("Skill: Experienced"));
  EXPECT_EQ(page.award(), 307);
  EXPECT_EQ(Game.Money, 2807);
  EXPECT_EQ(page.Awardlab->text(),
            QStringLiteral("Congratulations! Marden's helps sponsor your next hunt with an award of $307"));
}

TEST_F(ShotdataTest, TheOtherSponsorWhenTheSponsorFlagIsOff) {
  Game.SponsorOn = false;
  *random = {0.0, 0.9, 0.0};
  Shotdata& page = load();
  EXPECT_EQ(page.Awardlab->text(),
            QStringLiteral("Congratulations! Quillon helps sponsor your next hunt with an award of $300"));
}

TEST_F(ShotdataTest, AnElkKeepsItsPointsAndATenthHeavierEarnsNothing) {
  Game.CurAnimal = 9;
  Game.TrophySize = 6;
  *random = {0.5};  // the weight's draw only
  Shotdata& page = load();
  EXPECT_EQ(Game.TrophySize, 6);
  EXPECT_EQ(page.Sizelab->text(), QStringLiteral("Size: 6.00 Points"));
  EXPECT_EQ(page.award(), 0);
  EXPECT_EQ(Game.Money, 2500);
  EXPECT_TRUE(page.Awardlab->text().isEmpty());
  EXPECT_EQ(random->remaining(), 0u);
}

TEST_F(ShotdataTest, ASpoiledTrophyEarnsNoAwardWhateverItWeighs) {
  Game.DamagedTrophy = -1;
  *random = {0.5, 0.99};
  Shotdata& page = load();
  EXPECT_EQ(page.award(), 0);
  EXPECT_EQ(Game.Money, 2500);
}

TEST_F(ShotdataTest, AnAwardBeyondTheWalletsRangeIsReportedAndThePageStillComesUp) {
  Game.Money = 32600;
  *random = {0.5, 0.9, 0.0};
  Shotdata* page = nullptr;
  EXPECT_NO_THROW(page = &load());
  EXPECT_EQ(Game.Money, 32600);
  ASSERT_EQ(dialogs->shown().size(), 1u);
  EXPECT_EQ(dialogs->last().text, platform::kOverflowText);
  // The kill is still shown (and so recorded and tagged by the hunt); no award is claimed.
  EXPECT_EQ(page->Specieslab->text(), QStringLiteral("Bighorn Sheep"));
  EXPECT_TRUE(page->Awardlab->text().isEmpty());
  EXPECT_EQ(page->award(), 0);
}

TEST_F(ShotdataTest, ShowsThePhotographOfTheClipWhenThereIsOne) {
  *random = {0.1, 0.1};
  EXPECT_TRUE(load().Trophypic->pixmap().isNull());
  ScreenInstance<Shotdata>::unload();
  std::filesystem::create_directories(media.root() / "trophy");
  QImage photo(32, 24, QImage::Format_RGB32);
  photo.fill(Qt::darkGreen);
  ASSERT_TRUE(photo.save(QString::fromStdString((media.root() / "trophy" / "bighorn1.jpg").string())));
  *random = {0.1, 0.1};
  EXPECT_FALSE(load().Trophypic->pixmap().isNull());
}

TEST_F(ShotdataTest, ReadsSeventeenAwardBasesAndKeepsWhatAShortTableGives) {
  *random = {0.1, 0.1};
  EXPECT_EQ(load().awardBases()[16], 95);
  ScreenInstance<Shotdata>::unload();
  media.write("data/tagcost.csv", "5,6,7\r\n");
  *random = {0.1, 0.1};
  const auto& bases = load().awardBases();
  EXPECT_EQ(bases[2], 7);
  EXPECT_EQ(bases[3], 0);
}

TEST_F(ShotdataTest, PrintsItsOwnPictureOrSaysItCannot) {
  *random = {0.1, 0.1};
  Shotdata& page = load();
  {
    platform::ScopedService<platform::Printer, platform::RecordingPrinter> printer;
    page.printbut_Click();
    ASSERT_EQ(printer->images().size(), 1);
    EXPECT_EQ(printer->images()[0].size(), page.size() * page.devicePixelRatio());
    EXPECT_TRUE(dialogs->shown().empty());
  }
  platform::ScopedService<platform::Printer, platform::RecordingPrinter> broken(
      platform::PrintResult{false, {}});
  page.printbut_Click();
  ASSERT_EQ(dialogs->shown().size(), 1u);
  EXPECT_EQ(dialogs->last().text, QStringLiteral("The Trophy page can't be printed."));
  // Without a printer the page would go to the save folder.
  EXPECT_EQ(broken->pdfFolder(), Game.Fileloc);
}

}  // namespace
