// SPDX-License-Identifier: GPL-2.0-or-later
// The hunt's tick on the hunting screen, the encounter handed to the shooting scene, the optics,
// and everything that follows a shot.
#include "surround_fixture.h"

#include "hunt/optics_overlay.h"

#include <QPushButton>

namespace {

class EncounterTest : public SurroundTest {
 protected:
  EncounterTest() {
    writeRecords("Dbase/Dvideo.isd",
                 {"Animalnum", "Videoname", "Size", "Weight", "HitGun", "HitArrow", "Escape"},
                 {{"5", "DMule1", "24.5", "210", "DhMule1", "DaMule1", "DeMule1"},
                  {"5", "DMule2", "", "190", "DhMule2", "EMPTY", "DeMule2"},
                  {"12", "DFox1", "3", "12", "EMPTY", "EMPTY", "EMPTY"}});
    Game.TagSpecies = 5;
    Game.StandNum = 1;
    Game.CurWeapon = 1;
    placeAt(3, QStringLiteral("3Dstnd1"));
  }
  // The shooting scene, played by the test: it records what it was handed and leaves a result.
  void shotResult(int16_t outcome, int16_t quality = 5, int16_t zoneResult = 0) {
    screens->on(QStringLiteral("Videoshot"), [=, this](QWidget&) {
      handed << Game.VideoName + u'|' + Game.HitVideoName + u'|' + Game.EscapeVideoName;
      Game.ShotOutcome = outcome;
      Game.ShotQuality = quality;
      Game.HitZoneResult = zoneResult;
      return 0;
    });
  }
  void trophyScreens() {
    screens->on(QStringLiteral("Shotdata"), [](QWidget&) { return 0; });
    screens->on(QStringLiteral("RecordBook"), [this](QWidget&) {
      recordMode = Game.ScreenMode;
      recordSpecies = Game.CurAnimal;
      return 0;
    });
  }
  QStringList handed;
  int16_t recordMode = 0;
  int16_t recordSpecies = 0;
};

TEST_F(EncounterTest, OutsideTheFieldATickOnlyRunsTheClock) {
  placeAt(0, QStringLiteral("3lodge"));
  Game.CallUsed = -1;
  Game.EventCooldown = 0;
  screen().Timer2_Timer();  // the dice are empty: any draw would throw
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")), QStringLiteral("6:05 AM"));
  EXPECT_EQ(Game.CallUsed, 0);
  EXPECT_EQ(Game.EventCooldown, 0);
  EXPECT_TRUE(screen().Timer2->isActive());
}

TEST_F(EncounterTest, WhileAClipPlaysTheHuntStandsStill) {
  Game.VideoBusy = -1;
  screen().Timer2->start();
  screen().Timer2_Timer();  // the dice are empty: any draw would throw
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")), QStringLiteral("6:00 AM"));
  EXPECT_TRUE(screen().Timer2->isActive());
  Game.VideoBusy = 0;
  placeAt(0, QStringLiteral("3lodge"));
  screen().Timer2_Timer();
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")), QStringLiteral("6:05 AM"));
}

TEST_F(EncounterTest, AWoundedAnimalHitInZoneTenAlwaysGetsAway) {
  voice({"escape"});
  Game.WoundedFlag = -1;
  Game.TrackedSpecies = 5;
  Game.CurAnimal = 5;
  Game.ZoneValue = 10;
  Game.EventCooldown = 3;
  dice({0.0, 0.0, 0.37});  // the getaway draw, the line, then a quiet draw of 41..50
  screen().Timer2_Timer();
  EXPECT_EQ(said(), QStringList({"escape"}));
  EXPECT_EQ(Game.WoundedFlag, 0);
  EXPECT_EQ(Game.TrackedSpecies, 0);
  EXPECT_EQ(Game.CurAnimal, 0);
  EXPECT_EQ(Game.EventCooldown, 2);
}

TEST_F(EncounterTest, TheWindTurnsAPointAndFreshensWithinItsLimits) {
  Game.WindDir = 7;
  Game.WindStrength = 4;
  dice({25.0 / 121, 0.1, 0.1});
  screen().Timer2_Timer();
  EXPECT_EQ(Game.WindDir, 0);
  EXPECT_EQ(Game.WindStrength, 4);
  EXPECT_EQ(screen().Windbut->text(), QStringLiteral("N Strong"));
}

TEST_F(EncounterTest, AnAnimalOfTheHuntedSpeciesIsHandedToTheShot) {
  shotResult(0);
  // Event 60; trail point 1; a roll of 99 beats the encounter number; the second clip.
  dice({60.0 / 121, 0.1, 0.99, 0.6});
  screen().Timer2_Timer();
  EXPECT_EQ(handed, QStringList({"DMule2|DhMule2|DeMule2"}));
  EXPECT_EQ(Game.TerrainClass, 2);
  EXPECT_DOUBLE_EQ(Game.TrophySize, 0);
  EXPECT_DOUBLE_EQ(Game.TrophyWeight, 190);
  EXPECT_EQ(Game.CurAnimal, 0);  // the animal left without a shot
}

TEST_F(EncounterTest, ABowTakesTheArrowHitClipAndEmptyKeepsTheLastOne) {
  shotResult(0);
  Game.CurWeapon = 8;
  Game.HitVideoName = QStringLiteral("earlier");
  dice({60.0 / 121, 0.1, 0.99, 0.0});
  screen().Timer2_Timer();
  dice({60.0 / 121, 0.1, 0.99, 0.6});
  screen().Timer2_Timer();
  EXPECT_EQ(handed, QStringList({"DMule1|DaMule1|DeMule1", "DMule2|DaMule1|DeMule2"}));
}

TEST_F(EncounterTest, ALowRollBringsAnyAnimalAndNoClipMeansNoEncounter) {
  shotResult(0);
  dice({60.0 / 121, 0.1, 0.0, 11.5 / 42, 0.0});  // any animal: 12, the fox, and its one clip
  screen().Timer2_Timer();
  EXPECT_EQ(handed, QStringList({"DFox1||EMPTY"}));
  dice({60.0 / 121, 0.1, 0.0, 0.5});  // animal 22 has no clip here
  screen().Timer2_Timer();
  EXPECT_EQ(handed.size(), 1);
  EXPECT_EQ(Game.CurAnimal, 0);
}

TEST_F(EncounterTest, TheCallIsHeardForOneTickOnly) {
  Game.EquipSlots[8] = 26;
  screen().Callbutton_Click();
  EXPECT_EQ(window().log().mid(0, 2), QStringList({"file D:\\sound\\item26.wav", "PLAY"}));
  EXPECT_EQ(Game.CallUsed, -1);
  dice({45.0 / 121});
  screen().Timer2_Timer();
  EXPECT_EQ(Game.CallUsed, 0);
}

TEST_F(EncounterTest, TheHeaviestRifleTurnsAWrongWeaponIntoAGoodKill) {
  voice({"goodhit", "wweapon"});
  trophyScreens();
  Game.CurWeapon = 4;
  Game.CurAnimal = 5;
  Game.TagsOwned[5] = kTagHeld;
  Game.TagLimit[5] = 2;
  Game.ShotOutcome = 9;
  Game.ShotQuality = 1;
  dice({0.0, 0.5, 0.5, 0.5, 0.5});  // the line, then the trophy page's own dice
  screen().Aftershot();
  EXPECT_EQ(said(), QStringList({"goodhit"}));
  EXPECT_EQ(Game.ShotQuality, 7);
  EXPECT_EQ(screens->shown(), QStringList({"Shotdata", "RecordBook"}));
  EXPECT_EQ(recordMode, 4);
  EXPECT_EQ(recordSpecies, 5);
  EXPECT_EQ(Game.TagsOwned[5], 129);
  EXPECT_EQ(Game.CurAnimal, 0);
  EXPECT_EQ(Game.PendingMove, 1);
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")), QStringLiteral("9:00 AM"));
}

TEST_F(EncounterTest, ASecondKillFillsATagOfLimitTwoAndASpoiledTrophyIsMarked) {
  voice({"toomuch"});
  trophyScreens();
  Game.CurAnimal = 5;
  Game.TagsOwned[5] = 129;
  Game.TagLimit[5] = 2;
  Game.ShotOutcome = 3;
  Game.ShotQuality = 11;
  Game.WoundedFlag = -1;
  Game.TrackedSpecies = 5;
  dice({0.0, 0.5, 0.5, 0.5, 0.5});
  screen().Aftershot();
  EXPECT_EQ(said(), QStringList({"toomuch"}));
  EXPECT_EQ(Game.DamagedTrophy, -1);
  EXPECT_EQ(Game.TagsOwned[5], kTagFilled);
  // The tracked animal is the one taken: nothing is tracked any more.
  EXPECT_EQ(Game.WoundedFlag, 0);
  EXPECT_EQ(Game.TrackedSpecies, 0);
}

TEST_F(EncounterTest, AMissIsToldByItsDirection) {
  voice({"highmiss"});
  Game.CurAnimal = 5;
  Game.ShotOutcome = 1;
  Game.HitZoneResult = 5;
  dice({0.0});
  screen().Aftershot();
  EXPECT_EQ(said(), QStringList({"highmiss"}));
  EXPECT_EQ(Game.CurAnimal, 0);
  EXPECT_EQ(Game.EventCooldown, 2);
}

TEST_F(EncounterTest, ABodyHitSendsTheHunterToAnotherStandAfterTheTrail) {
  voice({"bodyhit", "tracking", "newstand"});
  Game.CurAnimal = 5;
  Game.ShotOutcome = 4;
  QString film;
  screens->on(QStringLiteral("Aviplay"), [&](QWidget&) {
    film = Game.ScreenState;
    EXPECT_EQ(Game.AviTracking, 1);
    return 0;
  });
  // Stand 1 again, then 2; trail point 3; the three lines; the second tracking film.
  dice({0.0, 0.3, 0.3, 0.0, 0.0, 0.9, 0.0});
  screen().Aftershot();
  EXPECT_EQ(Game.StandNum, 2);
  EXPECT_EQ(Game.CurLocation, QStringLiteral("Slough stand 2"));
  EXPECT_EQ(Game.WoundedPlace, QStringLiteral("~DPOI23"));
  EXPECT_EQ(Game.TerrainClass, 3);
  EXPECT_EQ(Game.TrackedSpecies, 5);
  EXPECT_EQ(Game.WoundedFlag, -1);
  EXPECT_EQ(said(), QStringList({"bodyhit", "tracking", "newstand"}));
  EXPECT_EQ(film, QStringLiteral("Dtrak1"));
  EXPECT_EQ(Game.AviTracking, 0);
  EXPECT_EQ(Game.PendingMove, 3);
  EXPECT_EQ(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")), QStringLiteral("6:30 AM"));
}

TEST_F(EncounterTest, TheWoundedAnimalIsFoundAtItsTrailPointOrLost) {
  voice({"escape", "bodyfind"});
  shotResult(0);
  Game.TrackedSpecies = 5;
  Game.WoundedFlag = -1;
  Game.WoundedPlace = QStringLiteral("~DPOI11");
  dice({0.2, 0.0});  // a draw below 50: lost
  screen().SVEnterHotspot(QStringLiteral("~DPOI11"));
  EXPECT_EQ(said(), QStringList({"escape"}));
  EXPECT_EQ(Game.WoundedFlag, 0);
  EXPECT_TRUE(handed.isEmpty());

  Game.TrackedSpecies = 5;
  Game.WoundedFlag = -1;
  Game.VideoName = QStringLiteral("DMule1");
  dice({0.7, 0.0});
  screen().SVEnterHotspot(QStringLiteral("~DPOI11"));
  EXPECT_EQ(said().last(), QStringLiteral("bodyfind"));
  EXPECT_EQ(handed.size(), 1);
}

TEST_F(EncounterTest, OffencesAreChargedAtTheNextHover) {
  for (int16_t outcome : {6, 7, 8}) {
    Game.PendingMove = 0;
    Game.ShotOutcome = outcome;
    screen().Aftershot();
    EXPECT_EQ(Game.PendingMove, 2) << outcome;
  }
  Game.ShotOutcome = 5;
  Game.CurAnimal = 30;
  screen().Aftershot();
  EXPECT_EQ(Game.EventCooldown, 6);
  EXPECT_EQ(Game.CurAnimal, 0);
}

TEST_F(EncounterTest, TheOpticsMagnifyTheStandAndRaiseTheOdds) {
  Game.EquipSlots[7] = 4;
  Game.StandNum = 2;
  view().SetHeading(100000);
  screen().Scope_Click();
  EXPECT_EQ(optics().loaded(), QStringLiteral("D:\\surnd\\63Dstnd2.svh"));
  EXPECT_EQ(optics().Heading(), 100000);
  EXPECT_DOUBLE_EQ(optics().Zoom(), 2.3 * optics().BaseZoom());
  EXPECT_EQ(screen().opticspic->picturePath(), QStringLiteral("D:\\art\\1bino.bmp"));
  EXPECT_EQ(Game.OpticsBonus, 1);
  EXPECT_EQ(screen().Scope->text(), QStringLiteral("Optics Down"));
  EXPECT_FALSE(view().widget()->isVisibleTo(&screen()));

  optics().turnTo(200000);
  // The main view takes the heading the optics view last reported.
  screen().SVControl2_OnLocation(250000);
  screen().Scope_Click();
  EXPECT_EQ(view().Heading(), 250000);
  EXPECT_EQ(Game.OpticsBonus, 0);
  EXPECT_EQ(Game.OpticsUp, 0);
  EXPECT_EQ(screen().Scope->text(), QStringLiteral("Optics Up"));

  // The same stand is not loaded twice; a rangefinder has its own frame.
  optics().clearCalls();
  Game.EquipSlots[7] = 6;
  screen().Scopeon();
  EXPECT_TRUE(optics().calls().filter(QStringLiteral("Load")).isEmpty());
  EXPECT_EQ(screen().opticspic->picturePath(), QStringLiteral("D:\\art\\1rngf.bmp"));
}

}  // namespace
