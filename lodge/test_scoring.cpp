// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/test_scoring.h"

#include <algorithm>

namespace lodge {

std::array<bool, kTestQuestions> markAnswers(const TestAnswers& right, const TestAnswers& given) {
  std::array<bool, kTestQuestions> marks{};
  for (int i = 0; i < kTestQuestions; ++i) marks[i] = right[i] == given[i];
  return marks;
}

int countRight(const std::array<bool, kTestQuestions>& marks) {
  return static_cast<int>(std::count(marks.begin(), marks.end(), true));
}

TestPrize prizeFor(int score) {
  switch (score) {
    case 10:
      return {QStringLiteral("score100"), 100,
              QStringLiteral("Congratulations on an excellent score! You've won 100 dollars.")};
    case 9:
      return {QStringLiteral("score75"), 75,
              QStringLiteral("Well Done. Put this 75 dollars towards some new gear or a tag.")};
    case 8:
      return {QStringLiteral("score50"), 50,
              QStringLiteral("You passed. This 50 dollars should help you at the outfitter's shop.")};
    default:
      // The warden's line is kept word for word, slip of grammar and all.
      return {QStringLiteral("scorew"), 0,
              QStringLiteral("You'd better be extra careful. The warden is watches you novice hunters "
                             "pretty closely.")};
  }
}

}  // namespace lodge
