// SPDX-License-Identifier: GPL-2.0-or-later
// The outcome table: misses, hits, the chance that a poor or wounding hit is a plain miss,
// the turkey, the tag checks and the animals that are never game.
#include "shooting/shot_outcome.h"
#include "shell/game_state.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

struct OutcomeCase {
  std::string name;
  int16_t animal;
  int16_t tag;
  int16_t result;
  std::optional<double> draw;  // the one draw the case makes, if any
  int16_t expectedOutcome;
  int16_t expectedResult;
};

class ShotOutcomeTable : public ::testing::TestWithParam<OutcomeCase> {};

TEST_P(ShotOutcomeTable, GivesTheOutcomeAndResult) {
  const OutcomeCase& c = GetParam();
  int reseeds = 0, draws = 0;
  const OutcomeDraw draw{[&] { ++reseeds; },
                         [&] {
                           ++draws;
                           return c.draw.value_or(0.0);
                         }};
  int16_t result = c.result;
  EXPECT_EQ(shotOutcome(0, c.animal, c.tag, result, draw), c.expectedOutcome);
  EXPECT_EQ(result, c.expectedResult);
  EXPECT_EQ(draws, c.draw ? 1 : 0);
  EXPECT_EQ(reseeds, draws) << "the draw is made after reseeding";
}

constexpr int16_t kHeld = kTagHeld;

const OutcomeCase kOutcomes[] = {
    {"PlainMiss", 9, kHeld, 0, {}, kCleanMiss, 0},
    {"MissWithADirection", 9, kHeld, 15, {}, kCleanMiss, 15},
    {"BodyHit", 9, kHeld, 64, {}, kBodyHit, 64},
    {"Zone8Hit", 9, kHeld, 16, {}, kZone8Hit, 16},
    {"PoorHitRunsOffAtFifty", 9, kHeld, -128, 0.5, kPoorHitRunsOff, -128},
    {"PoorHitIsAMissBelowFifty", 9, kHeld, -128, 0.499, kCleanMiss, 0},
    {"WoundedRunsOff", 9, kHeld, -32, 0.99, kWoundedRunsOff, -32},
    {"WoundingHitIsAMissBelowFifty", 9, kHeld, -32, 0.0, kCleanMiss, 0},
    {"UnsuitedWeaponNeedsNoDraw", 9, kHeld, -254, {}, kUnsuitedWeapon, -254},
    {"TurkeyPoorHitIsAMissWithoutADraw", 15, kHeld, -128, {}, kCleanMiss, 0},
    {"TurkeyWoundingHitIsAMiss", 15, kHeld, -32, {}, kCleanMiss, 0},
    {"TurkeyBodyHit", 15, kHeld, 64, {}, kBodyHit, 64},
    {"NoTagOverridesAHit", 9, kTagNone, 64, {}, kNoTagHeld, 64},
    {"NoTagOverridesAMiss", 9, kTagNone, 3, {}, kNoTagHeld, 3},
    {"FilledTagOverridesAHit", 9, kTagFilled, 16, {}, kTagAlreadyFilled, 16},
    {"TagOfSpeciesZeroCounts", 0, kTagNone, 64, {}, kNoTagHeld, 64},
    {"FirstNonGameAnimal", 17, kTagNone, 64, {}, kNonGameAnimal, 64},
    {"LastNonGameAnimal", 26, 0, 0, {}, kNonGameAnimal, 0},
    {"FirstProtectedAnimal", 27, 0, 64, {}, kProtectedAnimal, 64},
    {"LastProtectedAnimal", 42, 0, 0, {}, kProtectedAnimal, 0},
    {"NonGameAnimalStillDrawsOnAnOldWoundingResult", 20, 0, -32, 0.1, kNonGameAnimal, 0},
};

INSTANTIATE_TEST_SUITE_P(Table, ShotOutcomeTable, ::testing::ValuesIn(kOutcomes),
                         [](const auto& info) { return info.param.name; });

TEST(ShotOutcome, AHitResultOutsideTheTableKeepsThePreviousOutcome) {
  int16_t result = 100;
  const OutcomeDraw draw{[] {}, [] { return 0.0; }};
  EXPECT_EQ(shotOutcome(kZone8Hit, 9, kHeld, result, draw), kZone8Hit);
}

}  // namespace
