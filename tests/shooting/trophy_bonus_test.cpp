// SPDX-License-Identifier: GPL-2.0-or-later
// The trophy bonus and the sponsor's award: who keeps their size, the strict tenth, the
// spoiled trophy, the award's amount and its message.
#include "shooting/trophy_bonus.h"

#include <gtest/gtest.h>

#include <deque>

namespace {

struct Draws {
  std::deque<double> values;
  int taken = 0;
  double operator()() {
    ++taken;
    const double v = values.front();
    values.pop_front();
    return v;
  }
};

TEST(TrophyBonus, DeerCountedInPointsKeepTheirSizeAndDrawOnceForWeight) {
  for (int species : {7, 9, 13, 16}) {
    Draws draws{{0.5}};
    const TrophyMeasure after = withTrophyBonus(species, {10, 200}, std::ref(draws));
    EXPECT_EQ(after.size, 10) << species;
    EXPECT_DOUBLE_EQ(after.weight, 220) << species;
    EXPECT_EQ(draws.taken, 1) << species;
  }
}

TEST(TrophyBonus, OtherSpeciesGrowInSizeFirstThenWeight) {
  for (int species : {1, 2, 6, 8, 15}) {
    Draws draws{{0.25, 0.75}};
    const TrophyMeasure after = withTrophyBonus(species, {40, 100}, std::ref(draws));
    EXPECT_DOUBLE_EQ(after.size, 42) << species;
    EXPECT_DOUBLE_EQ(after.weight, 115) << species;
  }
}

TEST(TrophyBonus, ADrawOfNearlyOneAddsNearlyAFifth) {
  Draws draws{{0.999999, 0.0}};
  const TrophyMeasure after = withTrophyBonus(3, {100, 300}, std::ref(draws));
  EXPECT_NEAR(after.size, 120, 1e-3);
  EXPECT_EQ(after.weight, 300);
}

TEST(AwardDue, OnlyBeyondATenthAndNeverForASpoiledTrophy) {
  for (double weight : {100.0, 3.0, 212.5, 1234.56}) {
    Draws half{{0.5}};
    const double exactTenth = withTrophyBonus(9, {0, weight}, std::ref(half)).weight;
    EXPECT_FALSE(awardDue(weight, exactTenth, false)) << weight;
    Draws more{{0.5001}};
    const double beyond = withTrophyBonus(9, {0, weight}, std::ref(more)).weight;
    EXPECT_TRUE(awardDue(weight, beyond, false)) << weight;
    EXPECT_FALSE(awardDue(weight, beyond, true)) << weight;
  }
}

TEST(AwardAmount, IsTheBasePlusUpToATwentieth) {
  const struct {
    int16_t base;
    double draw;
    double award;
  } cases[] = {{300, 0.0, 300}, {300, 0.5, 307}, {300, 0.99, 314}, {19, 0.99, 19}, {0, 0.7, 0}};
  for (const auto& c : cases) {
    Draws draws{{c.draw}};
    EXPECT_EQ(awardAmount(c.base, std::ref(draws)), c.award) << c.base << " " << c.draw;
  }
}

TEST(AwardMessage, NamesTheSponsorAndTheWholeDollars) {
  EXPECT_EQ(awardMessage(true, 307),
            QStringLiteral("Congratulations! Marden's helps sponsor your next hunt with an award of $307"));
  EXPECT_EQ(awardMessage(false, 12),
            QStringLiteral("Congratulations! Quillon helps sponsor your next hunt with an award of $12"));
}

}  // namespace
