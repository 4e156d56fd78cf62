// SPDX-License-Identifier: GPL-2.0-or-later
// The hit test over hand-made records: zone edges, the order zones are tried in, the empty
// first zone, the quality rule and its order, and what a miss leaves behind.
#include "shooting/hit_test.h"
#include "platform/runtime.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace {

HitZoneRecord record(std::initializer_list<HitZone> zones) {
  HitZoneRecord r{};
  int i = 0;
  for (const HitZone& zone : zones) r[i++] = zone;
  return r;
}

// A body zone (code 3) at clip pixels 100..120 across and 50..70 down.
constexpr HitZone kHeart{100, 50, 120, 70, 3};

struct Draws {
  std::deque<double> values;
  int taken = 0;
  double operator()() {
    ++taken;
    double v = values.front();
    values.pop_front();
    return v;
  }
};

TEST(ZoneOutcode, EdgesAreInsideAndEachSideHasItsBit) {
  const struct {
    QPoint offset;
    int expected;
  } cases[] = {
      {{100, 50}, 0}, {{120, 70}, 0}, {{110, 60}, 0}, {{99, 60}, 1},   {{121, 60}, 2},
      {{110, 49}, 4}, {{110, 71}, 8}, {{99, 49}, 5},  {{121, 71}, 10},
  };
  for (const auto& c : cases)
    EXPECT_EQ(zoneOutcode(kHeart, c.offset, 1), c.expected) << c.offset.x() << "," << c.offset.y();
}

TEST(ZoneOutcode, TheZoneGrowsWithTheDisplayScale) {
  EXPECT_EQ(zoneOutcode(kHeart, {300, 150}, 3), 0);
  EXPECT_EQ(zoneOutcode(kHeart, {360, 210}, 3), 0);
  EXPECT_EQ(zoneOutcode(kHeart, {299, 150}, 3), 1);
  EXPECT_EQ(zoneOutcode(kHeart, {361, 211}, 3), 10);
}

struct HitCase {
  std::string name;
  HitZoneRecord zones;
  QPoint offset;
  ShotFactors factors;
  ShotMarks before;
  std::vector<double> draws;
  ShotMarks expected;
};

// Factors giving a quality of 5 on a zone of code 3: (60 / 10 + 3 + 6) / 3 = 5.
constexpr ShotFactors kGood{60, 6, 0};

class ScoreShot : public ::testing::TestWithParam<HitCase> {};

TEST_P(ScoreShot, LeavesTheMarksOfTheTable) {
  const HitCase& c = GetParam();
  ShotMarks marks = c.before;
  Draws draws{{c.draws.begin(), c.draws.end()}};
  scoreShot(c.zones, c.offset, 1, c.factors, marks, std::ref(draws));
  EXPECT_EQ(marks.hitZoneResult, c.expected.hitZoneResult);
  EXPECT_EQ(marks.zoneValue, c.expected.zoneValue);
  EXPECT_EQ(marks.shotQuality, c.expected.shotQuality);
  EXPECT_EQ(draws.taken, static_cast<int>(c.draws.size()));
}

const HitCase kHitCases[] = {
    {"QualityFiveKeepsTheBodyHit", record({kHeart}), {110, 60}, kGood, {}, {}, {64, 3, 5}},
    {"ClickOnTheZoneEdgeIsAHit", record({kHeart}), {120, 70}, kGood, {}, {}, {64, 3, 5}},
    {"QualityTwoIsAWoundingHit", record({kHeart}), {110, 60}, {0, 3, 0}, {}, {}, {-32, 3, 2}},
    {"QualityFourIsAWoundingHit", record({kHeart}), {110, 60}, {30, 6, 0}, {}, {}, {-32, 3, 4}},
    {"QualityOneIsAPoorHit", record({kHeart}), {110, 60}, {0, 0, 0}, {}, {}, {-128, 3, 1}},
    {"QualityZeroIsAPoorHit", record({kHeart}), {110, 60}, {0, -3, 0}, {}, {}, {-128, 3, 0}},
    {"SkillLevelLowersTheQuality", record({kHeart}), {110, 60}, {60, 6, 2}, {}, {}, {-32, 3, 3}},
    {"ClothesCountInTenths", record({kHeart}), {110, 60}, {59, 6, 0}, {}, {}, {-32, 3, 4}},
    {"NegativeQualityGoesWideAtRandom", record({kHeart}), {110, 60}, {0, -9, 1}, {}, {0.5}, {8, 3, -3}},
    {"RandomDirectionIsAtLeastOne", record({kHeart}), {110, 60}, {0, -9, 1}, {}, {0.0}, {1, 3, -3}},
    {"RandomDirectionIsAtMostFifteen", record({kHeart}), {110, 60}, {0, -9, 1}, {}, {0.9999}, {15, 3, -3}},
    {"UnsuitedWeaponOverridesLast", record({kHeart}), {110, 60}, {100, -10, 0}, {}, {}, {-254, 3, 1}},
    {"UnsuitedWeaponAfterARandomMiss",
     record({{0, 0, 320, 240, 1}}),
     {5, 5},
     {0, -10, 2},
     {},
     {0.2},
     {-254, 1, -5}},
    {"UnsuitedWeaponEvenOnAGoodHit",
     record({{0, 0, 320, 240, 7}}),
     {5, 5},
     {300, -10, 0},
     {},
     {},
     {-254, 7, 9}},
    {"Code8IsItsOwnHit", record({{0, 0, 50, 50, 8}}), {10, 10}, {60, 6, 0}, {}, {}, {16, 8, 6}},
    {"Code9IsAWoundingHit", record({{0, 0, 50, 50, 9}}), {10, 10}, {60, 6, 0}, {}, {}, {-32, 9, 7}},
    {"Code7IsStillABodyHit", record({{0, 0, 50, 50, 7}}), {10, 10}, {60, 6, 0}, {}, {}, {64, 7, 6}},
    {"ZonesAreTriedInOrderAndTheFirstHitWins",
     record({{0, 0, 50, 50, 10}, {0, 0, 50, 50, 2}}),
     {10, 10},
     kGood,
     {33, 0, 0},
     {},
     {33, 10, 7}},
    {"AMissedBodyZoneThenAHitCode10KeepsItsDirection",
     record({kHeart, {0, 0, 50, 50, 12}}),
     {10, 10},
     kGood,
     {64, 0, 0},
     {},
     {5, 12, 8}},
    {"Code10FirstKeepsThePreviousShotsResult",
     record({{0, 0, 50, 50, 10}}),
     {10, 10},
     kGood,
     {64, 1, 1},
     {},
     {64, 10, 7}},
    {"Code10WithLowQualityIsStillJudged",
     record({{0, 0, 50, 50, 10}}),
     {10, 10},
     {0, -8, 0},
     {64, 1, 1},
     {},
     {-128, 10, 0}},
    {"EmptyFirstZoneCountsAsABodyHit", record({}), {300, 200}, {90, 6, 0}, {}, {}, {64, 0, 5}},
    {"NegativeCodeFirstIsEmptyAndHit",
     record({{0, 0, 10, 10, -4}}),
     {300, 200},
     {90, 10, 0},
     {},
     {},
     {64, -4, 5}},
    {"MissOfTheOnlyBodyZoneLeavesItsDirection",
     record({kHeart}),
     {130, 40},
     kGood,
     {64, 3, 5},
     {},
     {6, 3, 5}},
    {"MissRunsPastEmptyZonesToZoneFour",
     record({kHeart, {}, {}, {}, {0, 0, 5, 5, 11}}),
     {99, 60},
     kGood,
     {},
     {},
     {1, 0, 0}},
    {"LastBodyZoneMissedGivesTheDirection",
     record({kHeart, {0, 0, 10, 10, 1}}),
     {5, 20},
     kGood,
     {},
     {},
     {8, 0, 0}},
    {"MissOfSpecialZonesOnlyKeepsTheOldResult",
     record({{0, 0, 10, 10, 8}, {0, 0, 10, 10, 9}}),
     {50, 50},
     kGood,
     {64, 2, 6},
     {},
     {64, 2, 6}},
    {"FiveMissedZonesEndTheLoop",
     record({{0, 0, 1, 1, 1}, {0, 0, 1, 1, 2}, {0, 0, 1, 1, 3}, {0, 0, 1, 1, 4}, {200, 200, 201, 201, 5}}),
     {100, 100},
     kGood,
     {},
     {},
     {5, 0, 0}},
};

INSTANTIATE_TEST_SUITE_P(Table, ScoreShot, ::testing::ValuesIn(kHitCases),
                         [](const auto& info) { return info.param.name; });

TEST(ScoreShotOverflow, KeepsWhatWasSetBeforeTheQuality) {
  ShotMarks marks{7, 9, 9};
  Draws none;
  EXPECT_THROW(scoreShot(record({kHeart}), {110, 60}, 1, {0, 0, -32768}, marks, std::ref(none)),
               rt::OverflowError);
  EXPECT_EQ(marks.hitZoneResult, 64);
  EXPECT_EQ(marks.zoneValue, 3);
  EXPECT_EQ(marks.shotQuality, 9);
}

TEST(ShotQuality, RoundsTowardMinusInfinity) {
  EXPECT_EQ(shotQuality({0, -1, 0}, 0), -1);  // -1/3 is -0.33
  EXPECT_EQ(shotQuality({5, -2, 0}, 0), -1);  // (0.5 - 2) / 3 is -0.5
  EXPECT_EQ(shotQuality({29, 0, 0}, 0), 0);   // 2.9 / 3
  EXPECT_EQ(shotQuality({30, 0, 1}, 0), 0);
}

}  // namespace
