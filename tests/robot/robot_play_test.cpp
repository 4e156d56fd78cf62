// SPDX-License-Identifier: GPL-2.0-or-later
// The robot plays whole hunts in the sample world and every invariant holds after every step;
// the same seed plays the same game.
#include "hunt_robot.h"
#include "robot_world.h"

#include <gtest/gtest.h>

namespace {

robot::Tally play(int hunts, uint64_t seed, int steps = 6000) {
  robot::RobotOptions options;
  options.hunts = hunts;
  options.seed = seed;
  options.world = robot_testing::sampleWorld();
  options.stepsPerHunt = steps;
  robot::HuntRobot robot(options);
  return robot.run();
}

}  // namespace

TEST(RobotPlay, TwentyHuntsKeepEveryInvariant) {
  const robot::Tally tally = play(20, 1);
  std::cout << tally.summary().toStdString();
  EXPECT_EQ(tally.invariantBreaks, 0) << tally.breakNotes.join(u'\n').toStdString();
  EXPECT_EQ(tally.hunts, 20);
  EXPECT_EQ(tally.huntEnds.count(QStringLiteral("thrown")), 0u);
  // The run must have gone where the faults live, not idled at the lodge.
  EXPECT_GT(tally.ticks, 100);
  EXPECT_GT(tally.encounters, 0);
  EXPECT_GT(tally.saves, 0);
  EXPECT_GT(tally.loads, 0);
  EXPECT_GT(tally.screensShown.at(QStringLiteral("Catalog")), 0);
  EXPECT_GT(tally.screensShown.at(QStringLiteral("Weapons")), 0);
}

TEST(RobotPlay, TheSameSeedPlaysTheSameHunts) {
  const robot::Tally first = play(1, 99, 800);
  const robot::Tally second = play(1, 99, 800);
  EXPECT_EQ(first.summary(), second.summary());
  const robot::Tally other = play(1, 100, 800);
  EXPECT_NE(first.summary(), other.summary());
}
