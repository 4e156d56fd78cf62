// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting ground's rules as plain functions: compass and wind words, the week's calendar,
// tags, the guide's words after a shot, the tick's dice and the optics.
#include "hunt/compass_words.h"
#include "hunt/encounter_rules.h"
#include "hunt/hunt_calendar.h"
#include "hunt/optics_levels.h"
#include "hunt/shot_speech.h"
#include "hunt/tag_rules.h"
#include "platform/datetime.h"

#include <gtest/gtest.h>

namespace {

rt::DateTime at(int day, int hour, int minute) {
  return rt::dateSerial(1997, 12, day) + rt::timeSerial(hour, minute, 0);
}

TEST(Compass, ZeroLooksSouthAndTheSectorsTurnThroughWest) {
  const std::pair<int32_t, const char*> cases[] = {
      {0, "S"},           {82799, "S"},      {82800, "SW"},      {68 * 3600 + 3599, "SW"},
      {69 * 3600, "W"},   {648000, "N"},     {203 * 3600, "NE"}, {249 * 3600, "E"},
      {294 * 3600, "SE"}, {339 * 3600, "S"}, {1296000, "S"}};
  for (const auto& [heading, word] : cases)
    EXPECT_EQ(compassWord(heading), QString::fromLatin1(word)) << heading;
}

TEST(Wind, DirectionWrapsAndStrengthHolds) {
  EXPECT_EQ(nextWindDirection(7), 0);
  EXPECT_EQ(nextWindDirection(3), 4);
  EXPECT_EQ(nextWindStrength(4), 4);
  EXPECT_EQ(nextWindStrength(0), 1);
  EXPECT_EQ(windCaption(7, 3), QStringLiteral("NW Gusty"));
  EXPECT_EQ(windCaption(0, 0), QStringLiteral("N Light"));
}

TEST(Calendar, TheDayEndsAtSevenInTheEvening) {
  EXPECT_FALSE(dayHasEnded(at(22, 18, 55)));
  EXPECT_FALSE(dayHasEnded(at(22, 18, 59)));
  EXPECT_TRUE(dayHasEnded(at(22, 19, 0)));
  EXPECT_TRUE(dayHasEnded(at(22, 23, 30)));
}

TEST(Calendar, EachWeekdayLeadsToTheNextMorningOfTheFixedWeek) {
  EXPECT_EQ(nextMorning(at(22, 19, 0)), at(23, 6, 0));  // Monday
  EXPECT_EQ(nextMorning(at(24, 20, 0)), at(25, 6, 0));
  EXPECT_EQ(nextMorning(at(26, 19, 5)), at(27, 6, 0));  // Friday
  // Whatever day the clock says, the morning is the fixed week's: a Monday in another year too.
  EXPECT_EQ(nextMorning(rt::dateSerial(2001, 1, 1) + rt::timeSerial(19, 0, 0)), at(23, 6, 0));
  const rt::DateTime sunday = at(21, 19, 0);
  EXPECT_EQ(nextMorning(sunday), sunday);
  EXPECT_TRUE(isLastDay(at(27, 6, 0)));
  EXPECT_FALSE(isLastDay(at(26, 6, 0)));
}

TEST(Tags, AHuntSucceedsWithAnAnimalTakenOrAFilledTag) {
  TagStates tags{};
  tags.fill(kTagNone);
  EXPECT_FALSE(huntSuccessful(tags));
  tags[5] = kTagHeld;  // held, nothing taken
  EXPECT_FALSE(huntSuccessful(tags));
  tags[5] = 129;
  EXPECT_TRUE(huntSuccessful(tags));
  tags[5] = 138;
  EXPECT_FALSE(huntSuccessful(tags));
  tags[16] = kTagFilled;
  EXPECT_TRUE(huntSuccessful(tags));
  tags[16] = kTagNone;
  tags[0] = kTagFilled;  // entry 0 is no species
  EXPECT_FALSE(huntSuccessful(tags));
}

TEST(Tags, OnlyFilledAndAbsentTagsAreClosed) {
  TagStates tags{};
  tags.fill(kTagAbsent);
  tags[3] = kTagFilled;
  EXPECT_FALSE(anyTagOpen(tags));
  tags[9] = kTagNone;
  EXPECT_TRUE(anyTagOpen(tags));
  tags[9] = 0;
  EXPECT_FALSE(anyTagOpen(tags));
}

TEST(Tags, AKillRaisesTheTagUntilTheLimitFillsIt) {
  EXPECT_EQ(tagAfterKill(128, 2), 129);
  EXPECT_EQ(tagAfterKill(129, 2), kTagFilled);
  EXPECT_EQ(tagAfterKill(128, 1), kTagFilled);
  EXPECT_EQ(tagAfterKill(128, 0), 129);  // no limit read: never fills
}

TEST(Tags, WeaponsAndQuarries) {
  EXPECT_EQ(targetClassOf(0), QString());
  EXPECT_EQ(targetClassOf(4), QStringLiteral("3"));
  EXPECT_EQ(targetClassOf(5), QStringLiteral("0"));
  EXPECT_EQ(targetClassOf(7), QStringLiteral("2"));
  EXPECT_EQ(targetClassOf(9), QStringLiteral("1"));
  EXPECT_EQ(guideKeyForQuarry(16), QStringLiteral("smallg"));
  EXPECT_EQ(guideKeyForQuarry(13), QStringLiteral("mediumg"));
  EXPECT_EQ(guideKeyForQuarry(11), QStringLiteral("largeg"));
  EXPECT_EQ(guideKeyForQuarry(1), QString());
}

TEST(ShotSpeech, TheLastMissBitSetIsTold) {
  const std::pair<int, const char*> cases[] = {{0, "anymiss"},  {16, "anymiss"}, {1, "leftmiss"},
                                               {2, "rtmiss"},   {4, "highmiss"}, {8, "lowmiss"},
                                               {5, "highmiss"}, {10, "lowmiss"}, {3, "rtmiss"}};
  for (const auto& [direction, key] : cases)
    EXPECT_EQ(missSpeechKey(direction), QString::fromLatin1(key)) << direction;
}

TEST(ShotSpeech, GentleWeaponsNeverSpoilATrophy) {
  for (int weapon : {5, 8, 9}) EXPECT_EQ(cappedQuality(weapon, 12), 7) << weapon;
  EXPECT_EQ(cappedQuality(1, 12), 12);
  EXPECT_EQ(killSpeechKey(10), QStringLiteral("toomuch"));
  EXPECT_TRUE(damagesTrophy(10));
  EXPECT_EQ(killSpeechKey(9), QStringLiteral("almost"));
  EXPECT_EQ(killSpeechKey(8), QStringLiteral("almost"));
  EXPECT_EQ(killSpeechKey(7), QStringLiteral("goodhit"));
  EXPECT_FALSE(damagesTrophy(9));
  EXPECT_EQ(offenceSpeechKey(6), QStringLiteral("protect"));
  EXPECT_EQ(offenceSpeechKey(7), QStringLiteral("notag"));
  EXPECT_EQ(offenceSpeechKey(8), QStringLiteral("filltag"));
}

TEST(TickDice, EventsByDraw) {
  EXPECT_EQ(eventWithNoAnimal(10), TickEvent::AnimalCall);
  EXPECT_EQ(eventWithNoAnimal(11), TickEvent::StandRemark);
  EXPECT_EQ(eventWithNoAnimal(40), TickEvent::WindShift);
  EXPECT_EQ(eventWithNoAnimal(41), TickEvent::Nothing);
  EXPECT_EQ(eventWithNoAnimal(51), TickEvent::Encounter);
  EXPECT_EQ(eventWithNoAnimal(80), TickEvent::Encounter);
  EXPECT_EQ(eventWithNoAnimal(100), TickEvent::AmbientSound);
  for (int draw = 101; draw <= 120; ++draw) EXPECT_EQ(eventWithNoAnimal(draw), TickEvent::Nothing) << draw;
  EXPECT_EQ(eventWithAnimalInPlay(10), TickEvent::AnimalCall);
  EXPECT_EQ(eventWithAnimalInPlay(20), TickEvent::TerrainRemark);
  EXPECT_EQ(eventWithAnimalInPlay(50), TickEvent::AmbientSound);
}

TEST(TickDice, TheEncounterNumberKeepsItsFraction) {
  EXPECT_DOUBLE_EQ(encounterNumber(10, 0, 0), 50 + 10 / 3.0);
  EXPECT_DOUBLE_EQ(encounterNumber(0, -20, 1), 31);
  EXPECT_EQ(trailPointKey(QStringLiteral("d"), 3, 7), QStringLiteral("~DPOI37"));
  EXPECT_EQ(animalSoundRecord(5, 24), 9);
  EXPECT_EQ(animalSoundRecord(5, 25), 10);
}

TEST(Optics, LevelsMagnifyAndRangefindersMeasure) {
  EXPECT_DOUBLE_EQ(opticsZoom(1), 1.5);
  EXPECT_DOUBLE_EQ(opticsZoom(4), 2.3);
  EXPECT_DOUBLE_EQ(opticsZoom(6), 1.1);
  EXPECT_DOUBLE_EQ(opticsZoom(0), 1.0);
  EXPECT_FALSE(isRangefinder(4));
  EXPECT_TRUE(isRangefinder(5));
  EXPECT_EQ(opticsBonusOf(4), 1);
  EXPECT_EQ(opticsBonusOf(2), 0);
}

}  // namespace
