// SPDX-License-Identifier: GPL-2.0-or-later
// Marking the hunter's test and its three fixed prizes.
#include "lodge/test_scoring.h"

#include <gtest/gtest.h>

namespace {

TEST(TestScoring, OnlyTenNineAndEightEarnAPrize) {
  struct Case {
    int score;
    const char* key;
    int16_t dollars;
    const char* message;
  };
  const Case cases[] = {
      {10, "score100", 100, "Congratulations on an excellent score! You've won 100 dollars."},
      {9, "score75", 75, "Well Done. Put this 75 dollars towards some new gear or a tag."},
      {8, "score50", 50, "You passed. This 50 dollars should help you at the outfitter's shop."},
      {7, "scorew", 0,
       "You'd better be extra careful. The warden is watches you novice hunters pretty closely."},
      {0, "scorew", 0,
       "You'd better be extra careful. The warden is watches you novice hunters pretty closely."},
  };
  for (const Case& c : cases) {
    const lodge::TestPrize prize = lodge::prizeFor(c.score);
    EXPECT_EQ(prize.speechKey, QString::fromLatin1(c.key)) << c.score;
    EXPECT_EQ(prize.dollars, c.dollars) << c.score;
    EXPECT_EQ(prize.message, QString::fromUtf8(c.message)) << c.score;
  }
}

TEST(TestScoring, EachMatchingAnswerCountsOnePoint) {
  const lodge::TestAnswers right{1, 0, 1, 1, 0, 0, 1, 0, 1, 1};
  lodge::TestAnswers given = right;
  EXPECT_EQ(lodge::countRight(lodge::markAnswers(right, given)), 10);
  given[0] = 0;
  given[9] = 0;
  const auto marks = lodge::markAnswers(right, given);
  EXPECT_EQ(lodge::countRight(marks), 8);
  EXPECT_FALSE(marks[0]);
  EXPECT_TRUE(marks[1]);
  EXPECT_FALSE(marks[9]);
}

}  // namespace
