// SPDX-License-Identifier: GPL-2.0-or-later
// The hunt's clock on the hunting screen: what advances it, nightfall by kind of place, the
// fixed week, and the ways a hunt ends.
#include "surround_fixture.h"

#include "platform/picture_box.h"

#include <QLabel>
#include <QPushButton>

namespace {

QString clockText() {
  return rt::formatDate(Game.GameDate, QStringLiteral("dddd h:mm AMPM"));
}

TEST_F(SurroundTest, TheLabelsShowTheClock) {
  setClock(23, 14, 5);
  screen().AddTimeNoChk(0, QStringLiteral("n"));
  EXPECT_EQ(screen().Timebox->text(), QStringLiteral("2:05 PM"));
  EXPECT_EQ(screen().Daybox->text(), QStringLiteral("Tuesday"));
}

TEST_F(SurroundTest, TheDayEndsAtTheFirstAdvanceToSevenInTheEvening) {
  voice({"endCamp"});
  dice({0.0});
  placeAt(2, QStringLiteral("Dcamp"));
  setClock(22, 18, 50);
  screen().AddTime(5, QStringLiteral("n"));
  EXPECT_EQ(clockText(), QStringLiteral("Monday 6:55 PM"));
  EXPECT_TRUE(said().isEmpty());

  screen().AddTime(5, QStringLiteral("n"));
  EXPECT_EQ(said(), QStringList({"endCamp"}));
  EXPECT_EQ(screen().Sleeppic->picturePath(), QStringLiteral("D:\\art\\nitec.bmp"));
  EXPECT_EQ(clockText(), QStringLiteral("Tuesday 6:00 AM"));
  EXPECT_EQ(screen().Daybox->text(), QStringLiteral("Tuesday"));
  // The night passes and the camp comes back.
  EXPECT_FALSE(screen().Sleeppic->isVisibleTo(&screen()));
  EXPECT_TRUE(view().widget()->isVisibleTo(&screen()));
  EXPECT_TRUE(view().Tracking());
}

TEST_F(SurroundTest, NightfallInTheFieldLosesAWoundedAnimalAndSendsTheHunterToCamp) {
  voice({"escape", "endday"});
  dice({0.0, 0.0});
  placeAt(3, QStringLiteral("3Dstnd2"));
  Game.WoundedFlag = -1;
  Game.TrackedSpecies = 5;
  setClock(23, 18, 55);
  screen().AddTime(5, QStringLiteral("n"));
  EXPECT_EQ(said(), QStringList({"escape", "endday"}));
  EXPECT_EQ(Game.WoundedFlag, 0);
  EXPECT_EQ(Game.TrackedSpecies, 0);
  EXPECT_EQ(Game.PlaceMode, 2);
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\1Dcamp.svh"));
  EXPECT_EQ(clockText(), QStringLiteral("Wednesday 6:00 AM"));
}

TEST_F(SurroundTest, NightfallAtTheRangeSendsTheHunterToTheLodge) {
  voice({"endrange"});
  dice({0.0});
  placeAt(5, QStringLiteral("3range"));
  setClock(24, 19, 0);
  screen().AddTime(0, QStringLiteral("n"));
  EXPECT_EQ(said(), QStringList({"endrange"}));
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13lodge.svh"));
  EXPECT_EQ(screen().Sleeppic->picturePath(), QStringLiteral("D:\\art\\nitel.bmp"));
}

TEST_F(SurroundTest, TheCampButtonsHourGoesThroughTheNightCheck) {
  placeAt(3, QStringLiteral("3Dstnd1"));
  setClock(22, 18, 30);
  screen().Campbut_Click();
  EXPECT_EQ(Game.PlaceMode, 2);
  EXPECT_EQ(clockText(), QStringLiteral("Tuesday 6:00 AM"));
}

TEST_F(SurroundTest, FridayNightEndsTheHunt) {
  voice({"endCamp", "endhuntf", "endhunts", "huntover"});
  dice({0.0, 0.0});
  placeAt(2, QStringLiteral("Dcamp"));
  Game.TagsOwned[7] = 129;
  setClock(26, 18, 55);
  screen().AddTime(5, QStringLiteral("n"));
  EXPECT_EQ(clockText(), QStringLiteral("Saturday 6:00 AM"));
  EXPECT_EQ(said(), QStringList({"endCamp", "endhuntf"}));
  EXPECT_EQ(screen().Sleeppic->picturePath(), QStringLiteral("D:\\art\\endgame.bmp"));
  ASSERT_EQ(dialogs->shown().size(), 1u);
  EXPECT_EQ(dialogs->last().text, QStringLiteral("Press OK to RESTART"));
  EXPECT_EQ(dialogs->last().title, QStringLiteral("RESTART GAME"));
  EXPECT_EQ(Game.ScreenState, QStringLiteral("RESTART"));
}

TEST_F(SurroundTest, AHuntEndingAtTheLodgeOrEmptyHandedSaysSo) {
  voice({"endlodge", "huntover", "endCamp", "endhunts"});
  dice({0.0, 0.0, 0.0, 0.0});
  placeAt(0, QStringLiteral("3lodge"));
  setClock(26, 19, 0);
  screen().AddTime(0, QStringLiteral("n"));
  EXPECT_EQ(said(), QStringList({"endlodge", "huntover"}));
  EXPECT_EQ(screen().Sleeppic->picturePath(), QStringLiteral("D:\\art\\bettluk.bmp"));

  placeAt(2, QStringLiteral("Dcamp"));
  setClock(26, 19, 0);
  screen().AddTime(0, QStringLiteral("n"));
  EXPECT_EQ(said().mid(2), QStringList({"endCamp", "endhunts"}));
}

TEST_F(SurroundTest, OnlyAdvancingNeverEndsADay) {
  placeAt(3, QStringLiteral("3Dstnd1"));
  setClock(22, 23, 0);
  screen().AddTimeNoChk(3, QStringLiteral("h"));
  EXPECT_EQ(clockText(), QStringLiteral("Tuesday 2:00 AM"));
  EXPECT_EQ(Game.PlaceMode, 3);
}

TEST_F(SurroundTest, WhenNoTagIsLeftTheNextHoverEndsTheHunt) {
  voice({"alltags"});
  dice({0.0});
  Game.TagsOwned.fill(kTagAbsent);
  Game.TagsOwned[4] = kTagFilled;
  Game.PendingMove = 3;
  placeAt(3, QStringLiteral("3Dstnd1"));
  screen().SVEnterHotspot(QStringLiteral("~DPOI11"));
  EXPECT_EQ(said(), QStringList({"alltags"}));
  EXPECT_EQ(Game.PendingMove, 0);
  EXPECT_FALSE(screen().Timer1->isActive());
  EXPECT_EQ(screen().Sleeppic->picturePath(), QStringLiteral("D:\\art\\endgame.bmp"));
  EXPECT_EQ(Game.ScreenState, QStringLiteral("RESTART"));
}

TEST_F(SurroundTest, AnOffenceEndsTheHuntInJailAtTheNextHover) {
  Game.PendingMove = 2;
  placeAt(3, QStringLiteral("3Dstnd1"));
  int restarts = 0;
  surround::setRestartHandler([&] { ++restarts; });
  view().pointAt(QStringLiteral("~DPOI11"));
  surround::setRestartHandler(nullptr);
  EXPECT_EQ(screen().Sleeppic->picturePath(), QStringLiteral("D:\\art\\jail.bmp"));
  EXPECT_EQ(dialogs->last().text, QStringLiteral("Press OK to RESTART"));
  EXPECT_EQ(Game.PendingMove, 0);
  // The hover's last step takes the hunter back to the start.
  EXPECT_EQ(restarts, 1);
  EXPECT_TRUE(Game.ScreenState.isEmpty());
}

TEST_F(SurroundTest, APendingMoveToAStandWaitsForTheDeferredTimer) {
  Game.PendingMove = 3;
  Game.StandNum = 2;
  placeAt(3, QStringLiteral("3Dstnd1"));
  view().pointAt(QStringLiteral("~DPOI11"));
  EXPECT_TRUE(screen().Timer1->isActive());
  EXPECT_EQ(screen().Timer1->interval(), 30);
  screen().Timer1_Timer();
  EXPECT_FALSE(screen().Timer1->isActive());
  EXPECT_EQ(Game.PendingMove, 0);
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13Dstnd2.svh"));
}

}  // namespace
