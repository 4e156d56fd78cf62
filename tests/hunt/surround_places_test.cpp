// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen's places: opening them, the head box by kind of place, the compass, and
// what entering, leaving and clicking each kind of hotspot does.
#include "surround_fixture.h"

#include "lodge/licence.h"
#include "lodge/weapons.h"
#include "platform/picture_box.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace {

TEST_F(SurroundTest, OpeningAPlaceLoadsItsPanoramaFacingNorth) {
  placeAt(0, QStringLiteral("3lodge"));
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13lodge.svh"));
  EXPECT_EQ(view().Heading(), 648000);
  EXPECT_TRUE(screen().frmLodge->isVisibleTo(&screen()));
  EXPECT_FALSE(screen().Huntbox->isVisibleTo(&screen()));
  EXPECT_FALSE(screen().Timer2->isActive());
}

TEST_F(SurroundTest, TheHeadBoxShowsTheFramesOfThePlace) {
  struct Case {
    int16_t place;
    bool lodge, camp, hunt, changeWeapon;
  };
  for (const Case& c : {Case{0, true, false, false, false}, Case{2, false, true, false, false},
                        Case{3, false, false, true, false}, Case{5, false, true, false, true}}) {
    Game.PlaceMode = c.place;
    screen().Clearheadbox();
    screen().Setheadbox();
    EXPECT_FALSE(screen().frmBlank->isVisibleTo(&screen())) << c.place;
    EXPECT_TRUE(screen().frmMain->isVisibleTo(&screen())) << c.place;
    EXPECT_EQ(screen().frmLodge->isVisibleTo(&screen()), c.lodge) << c.place;
    EXPECT_EQ(screen().frmCamp->isVisibleTo(&screen()), c.camp) << c.place;
    EXPECT_EQ(screen().Huntbox->isVisibleTo(&screen()), c.hunt) << c.place;
    if (c.camp) {
      EXPECT_EQ(screen().ChangeWep->isVisibleTo(&screen()), c.changeWeapon) << c.place;
    }
  }
  // A kind of place the head box does not know leaves it as it is.
  screen().Clearheadbox();
  Game.PlaceMode = 1;
  screen().Setheadbox();
  EXPECT_TRUE(screen().frmBlank->isVisibleTo(&screen()));
}

TEST_F(SurroundTest, TheCompassFollowsEitherView) {
  placeAt(0, QStringLiteral("3lodge"));
  view().turnTo(82800);
  EXPECT_EQ(screen().compass->text(), QStringLiteral("SW"));
  optics().turnTo(1295999);
  EXPECT_EQ(screen().compass->text(), QStringLiteral("S"));
}

TEST_F(SurroundTest, TheHostGreetsOncePerArrivalAtTheLodge) {
  voice({"Entry"});
  dice({0.0});
  Game.FirstArrival = 1;
  placeAt(0, QStringLiteral("3lodge"));
  view().pointAt(QStringLiteral("!outfit"));
  view().pointAt(QStringLiteral("*tags"));
  view().pointAt(QString());
  EXPECT_EQ(said(), QStringList({"Entry"}));
  EXPECT_EQ(Game.FirstArrival, 0);
  EXPECT_TRUE(screen().Timer2->isActive());
}

TEST_F(SurroundTest, HoveringATrailPointTellsWhatAndHowFar) {
  Game.TagsOwned[5] = kTagHeld;
  Game.CurLocation = QStringLiteral("Cottonwood stand 1");
  placeAt(3, QStringLiteral("3Dstnd1"));
  view().pointAt(QStringLiteral("~DPOI11"));
  EXPECT_EQ(Game.RangeBand, 1);
  EXPECT_EQ(Game.RangeYards, 120);
  EXPECT_EQ(screen().Poidescript->text(), QStringLiteral("Cottonwood stand 1\r\nA fallen cottonwood"));
  view().pointAt(QString());
  EXPECT_EQ(screen().Poidescript->text(), QStringLiteral("Cottonwood stand 1\r\n"));
}

TEST_F(SurroundTest, OnlyARangefinderWithTheOpticsUpShowsTheYards) {
  Game.TagsOwned[5] = kTagHeld;
  placeAt(3, QStringLiteral("3Dstnd1"));
  const auto yardsShown = [&](int16_t optics, bool up) {
    Game.EquipSlots[7] = optics;
    Game.OpticsUp = up ? 1 : 0;
    screen().Rangelab->hide();
    screen().SVEnterHotspot(QStringLiteral("~DPOI11"));
    return screen().Rangelab->isVisibleTo(&screen());
  };
  EXPECT_FALSE(yardsShown(4, true));
  EXPECT_FALSE(yardsShown(5, false));
  EXPECT_TRUE(yardsShown(5, true));
  EXPECT_EQ(screen().Rangelab->text(), QStringLiteral("120"));
}

TEST_F(SurroundTest, WalkingClosesInExceptThroughDoorways) {
  placeAt(0, QStringLiteral("3lodge"));
  view().SetZoom(1.0);
  view().clearCalls();
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^3Dchoose"));
  EXPECT_TRUE(view().calls().filter(QStringLiteral("SetZoom")).isEmpty());
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13Dchoose.svh"));
  EXPECT_EQ(view().Heading(), 36000);
  EXPECT_EQ(Game.PlaceMode, 1);

  view().clearCalls();
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^camp"));
  // 1.1 to the fifth power is the first step past one and a half.
  EXPECT_EQ(view().calls().filter(QStringLiteral("SetZoom")).size(), 5);
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\1Dcamp.svh"));
}

TEST_F(SurroundTest, WalkingToCampCostsTwoHoursWithoutEndingTheDay) {
  Game.CurLocation = QStringLiteral("Cottonwood stand 1");
  placeAt(3, QStringLiteral("3Dstnd1"));
  setClock(22, 18, 30);
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^camp"));
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("dddd h:mm AMPM")),
            QStringLiteral("Monday 8:30 PM"));
  EXPECT_EQ(Game.PlaceMode, 2);
  EXPECT_FALSE(screen().Sleeppic->isVisibleTo(&screen()));
  // Only a walk into the field changes the place text.
  EXPECT_EQ(Game.CurLocation, QStringLiteral("Cottonwood stand 1"));
  EXPECT_EQ(screen().Poidescript->text(), QStringLiteral("Cottonwood stand 1\r\n"));
}

TEST_F(SurroundTest, EveryMoveIntoTheLodgeFromElsewhereIsAnArrival) {
  placeAt(2, QStringLiteral("Dcamp"));
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^3lodge"));
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_EQ(Game.FirstArrival, 1);
  // Moving about inside the lodge is no new arrival.
  Game.FirstArrival = 0;
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^3lodge"));
  EXPECT_EQ(Game.FirstArrival, 0);
  // Nor is a move to camp; the end of a day at the range sends the hunter in again.
  screen().SetToCamp();
  EXPECT_EQ(Game.FirstArrival, 0);
  placeAt(5, QStringLiteral("3range"));
  screen().Settolodge();
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_EQ(Game.FirstArrival, 1);
}

TEST_F(SurroundTest, IntoTheFieldTheHunterChoosesQuarryAndWeapon) {
  voice({"smallg"});
  dice({0.0});
  placeAt(2, QStringLiteral("Dcamp"));
  screens->on(QStringLiteral("Licence"), [](QWidget&) {
    EXPECT_EQ(Game.ScreenMode, 2);
    Game.TagSpecies = 16;
    return 0;
  });
  screens->on(QStringLiteral("Weapons"), [](QWidget&) {
    Game.CurWeapon = 7;
    return 0;
  });
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^Dtrail"));
  EXPECT_EQ(screens->shown(), QStringList({"Licence", "Weapons"}));
  EXPECT_EQ(said(), QStringList({"smallg"}));
  EXPECT_EQ(Game.PlaceMode, 3);
  EXPECT_EQ(Game.StandNum, 1);
  EXPECT_EQ(Game.CurLocation, QStringLiteral("Along the draw to stand 1"));
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13Dstnd1.svh"));
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")), QStringLiteral("7:00 AM"));
  EXPECT_TRUE(screen().Huntbox->isVisibleTo(&screen()));
}

TEST_F(SurroundTest, WithoutAWeaponTheHunterIsTurnedBackToCamp) {
  placeAt(2, QStringLiteral("Dcamp"));
  screens->on(QStringLiteral("Licence"), [](QWidget&) { return 0; });
  screens->on(QStringLiteral("Weapons"), [](QWidget&) { return 0; });
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^Dtrail"));
  EXPECT_EQ(Game.PlaceMode, 2);
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\1Dcamp.svh"));
  EXPECT_EQ(Game.CurLocation, QStringLiteral("The camp by the creek"));
}

TEST_F(SurroundTest, AHotspotWithoutARecordDoesNothing) {
  placeAt(0, QStringLiteral("3lodge"));
  view().clearCalls();
  screen().SVControl1_OnSelectHotspot(QStringLiteral("^nowhere"));
  EXPECT_TRUE(view().calls().filter(QStringLiteral("Load")).isEmpty());
  EXPECT_EQ(Game.PlaceMode, 0);
}

TEST_F(SurroundTest, TheVideoCornerNeedsVideosSwitchedOn) {
  placeAt(0, QStringLiteral("3lodge"));
  Game.VideosOn = false;
  screen().SVControl1_OnSelectHotspot(QStringLiteral("$video"));
  ASSERT_EQ(dialogs->shown().size(), 1u);
  EXPECT_EQ(dialogs->last().text,
            QStringLiteral("Unable to Show Video. Run Varnholt Configuration Program to Enable Videos"));
  EXPECT_EQ(dialogs->last().title, QStringLiteral("Videos Have Been Turned Off"));
  EXPECT_TRUE(screens->shown().isEmpty());

  Game.VideosOn = true;
  QString film;
  screens->on(QStringLiteral("Aviplay"), [&](QWidget&) {
    film = Game.ScreenState;
    return 0;
  });
  screen().SVControl1_OnSelectHotspot(QStringLiteral("$video"));
  EXPECT_EQ(film, QStringLiteral("DMovie"));
  EXPECT_EQ(Game.VideoReturn, 1);
  // The clip's name stays in the hand-over word after the film.
  EXPECT_EQ(Game.ScreenState, QStringLiteral("DMovie"));
}

TEST_F(SurroundTest, TalkingToSomeoneClearsTheConversationDoneFlag) {
  voice({"host"});
  placeAt(0, QStringLiteral("3lodge"));
  Game.ConversationDone = -1;
  int16_t whileTalking = -1;
  screens->on(QStringLiteral("Talkform"), [&](QWidget&) {
    whileTalking = Game.ConversationDone;
    return 0;
  });
  screen().SVControl1_OnSelectHotspot(QStringLiteral("@host"));
  EXPECT_EQ(whileTalking, 0);
}

TEST_F(SurroundTest, ARangeTargetTakesOnlyItsClassOfWeapon) {
  voice({"target"});
  dice({0.0});
  placeAt(5, QStringLiteral("3range"));
  Game.CurWeapon = 8;  // a bow
  screen().SVControl1_OnSelectHotspot(QStringLiteral(":3"));
  EXPECT_EQ(said(), QStringList({"target"}));
  EXPECT_TRUE(screens->shown().isEmpty());

  screens->on(QStringLiteral("Trange"), [](QWidget&) { return 0; });
  screen().SVControl1_OnSelectHotspot(QStringLiteral(":1 "));
  EXPECT_EQ(screens->shown(), QStringList({"Trange"}));
  EXPECT_EQ(Game.ScreenState, QStringLiteral("1"));
}

TEST_F(SurroundTest, TheRangeEntranceHandsOutAWeaponFirst) {
  placeAt(0, QStringLiteral("3lodge"));
  screens->on(QStringLiteral("Weapons"), [](QWidget&) { return 0; });
  screen().SVControl1_OnSelectHotspot(QStringLiteral("&range"));
  EXPECT_EQ(screens->shown(), QStringList({"Weapons"}));
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13range.svh"));
  EXPECT_EQ(Game.PlaceMode, 5);
}

TEST_F(SurroundTest, TheTagCounterOpensTheLicenceToBuy) {
  placeAt(0, QStringLiteral("3lodge"));
  int16_t mode = 0;
  screens->on(QStringLiteral("Licence"), [&](QWidget&) {
    mode = Game.ScreenMode;
    return 0;
  });
  screen().SVControl1_OnSelectHotspot(QStringLiteral("*tags"));
  EXPECT_EQ(mode, 1);
}

}  // namespace
