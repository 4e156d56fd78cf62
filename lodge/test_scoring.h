// SPDX-License-Identifier: GPL-2.0-or-later
// Marking the hunter's test and the prize each score earns: three fixed steps, not a scale.
#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace lodge {

inline constexpr int kTestQuestions = 10;

using TestAnswers = std::array<int16_t, kTestQuestions>;  // 1 true, 0 false

// Which questions were answered right.
std::array<bool, kTestQuestions> markAnswers(const TestAnswers& right, const TestAnswers& given);
int countRight(const std::array<bool, kTestQuestions>& marks);

struct TestPrize {
  QString speechKey;
  int16_t dollars = 0;
  QString message;
};
TestPrize prizeFor(int score);

}  // namespace lodge
