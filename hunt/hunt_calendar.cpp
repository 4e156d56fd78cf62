// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/hunt_calendar.h"

#include <array>

namespace {

// Weekday numbers (Sunday 1) 2..6 and the morning each one leads to.
constexpr std::array<const char*, 5> kMornings = {"12/23/97 06:00:00 AM", "12/24/97 06:00:00 AM",
                                                  "12/25/97 06:00:00 AM", "12/26/97 06:00:00 AM",
                                                  "12/27/97 06:00:00 AM"};

constexpr int kMonday = 2;
constexpr int kFriday = 6;
constexpr int kSaturday = 7;

}  // namespace

bool dayHasEnded(rt::DateTime clock) {
  return rt::hour(clock) > 18;
}

rt::DateTime nextMorning(rt::DateTime clock) {
  const int day = rt::weekday(clock);
  if (day < kMonday || day > kFriday) return clock;
  return rt::parseDateTime(QString::fromLatin1(kMornings[size_t(day - kMonday)])).value_or(clock);
}

bool isLastDay(rt::DateTime clock) {
  return rt::weekday(clock) == kSaturday;
}
