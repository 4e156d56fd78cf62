// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/datetime.h"
#include "support/qt_printers.h"

#include <gtest/gtest.h>

using namespace rt;

namespace {
const DateTime kMonday6am = dateSerial(1997, 12, 22) + timeSerial(6, 0, 0);
}

TEST(Dates, CountDaysFromTheEndOf1899) {
  EXPECT_EQ(dateSerial(1899, 12, 30), 0);
  EXPECT_EQ(dateSerial(1900, 1, 1), 2);
  EXPECT_EQ(dateSerial(1997, 12, 22), 35786);
}

TEST(Dates, WeekdayCountsFromSunday) {
  EXPECT_EQ(weekday(dateSerial(1997, 12, 22)), 2);  // a Monday
  EXPECT_EQ(weekday(dateSerial(1997, 12, 21)), 1);
  EXPECT_EQ(weekday(dateSerial(1997, 12, 27)), 7);
  EXPECT_EQ(formatDate(kMonday6am, "dddd"), "Monday");
}

TEST(DateAdd, CrossesMidnightIntoTheNextDay) {
  const DateTime late = dateSerial(1997, 12, 22) + timeSerial(23, 55, 0);
  const DateTime next = dateAdd("n", 5, late);
  EXPECT_EQ(day(next), 23);
  EXPECT_EQ(hour(next), 0);
  EXPECT_EQ(minute(next), 0);
  EXPECT_EQ(formatDate(next, "dddd h:mm AMPM"), "Tuesday 12:00 AM");
  EXPECT_EQ(hour(dateAdd("h", 20, kMonday6am)), 2);
}

TEST(DateAdd, DoesNotDriftOverAWeekOfFiveMinuteTicks) {
  DateTime t = kMonday6am;
  for (int tick = 0; tick < 12 * 24 * 7; ++tick) t = dateAdd("n", 5, t);
  EXPECT_EQ(saveDateText(t), "12/29/1997 6:00:00 AM");
}

TEST(DateFormats, ShowTwelveHourClock) {
  EXPECT_EQ(formatDate(kMonday6am, "h:mm AMPM"), "6:00 AM");
  EXPECT_EQ(formatDate(dateSerial(1997, 12, 22) + timeSerial(12, 5, 0), "h:mm AMPM"), "12:05 PM");
  EXPECT_EQ(formatDate(dateSerial(1997, 12, 22) + timeSerial(18, 30, 0), "dddd h:mm AMPM"), "Monday 6:30 PM");
}

TEST(SaveDateText, IsOneFixedFormIncludingMidnight) {
  EXPECT_EQ(saveDateText(kMonday6am), "12/22/1997 6:00:00 AM");
  EXPECT_EQ(saveDateText(dateSerial(1997, 12, 23)), "12/23/1997 12:00:00 AM");
  EXPECT_EQ(saveDateText(dateSerial(1997, 12, 23) + timeSerial(13, 4, 9)), "12/23/1997 1:04:09 PM");
}

TEST(ParseDateTime, ReadsTheFormsTheGameMeets) {
  EXPECT_EQ(parseDateTime("12/22/97 06:00:00 AM"), kMonday6am);
  EXPECT_EQ(parseDateTime("12/22/1997 6:00:00 AM"), kMonday6am);
  EXPECT_EQ(parseDateTime("12/23/1997 12:00:00 AM"), dateSerial(1997, 12, 23));
  EXPECT_EQ(parseDateTime("12/23/1997"), dateSerial(1997, 12, 23));
  EXPECT_EQ(parseDateTime("1/2/05 12:30 PM"), dateSerial(2005, 1, 2) + timeSerial(12, 30, 0));
  EXPECT_EQ(parseDateTime("18:15"), timeSerial(18, 15, 0));
}

TEST(ParseDateTime, RoundTripsEveryMinuteOfADay) {
  for (int m = 0; m < 24 * 60; m += 7) {
    const DateTime t = dateSerial(1997, 12, 24) + timeSerial(m / 60, m % 60, 0);
    EXPECT_EQ(parseDateTime(saveDateText(t)), t) << saveDateText(t).toStdString();
  }
}

TEST(ParseDateTime, RejectsWhatIsNoDate) {
  EXPECT_FALSE(parseDateTime("yesterday"));
  EXPECT_FALSE(parseDateTime("13/45/1997"));
  EXPECT_FALSE(parseDateTime("12/22/1997 25:00:00"));
  EXPECT_FALSE(parseDateTime("12/22/1997 13:00:00 PM"));
  EXPECT_FALSE(parseDateTime(""));
}
