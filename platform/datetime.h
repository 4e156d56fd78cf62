// SPDX-License-Identifier: GPL-2.0-or-later
// Date-time values as the game stores them: days since 30 December 1899 as a double,
// the fraction being the time of day, with the few calendar operations the game uses.
#pragma once

#include <QString>

#include <optional>

namespace rt {

using DateTime = double;

DateTime dateSerial(int year, int month, int day);
DateTime timeSerial(int hour, int minute, int second);

// DateAdd for the intervals the game uses: "d" days, "h" hours, "n" minutes, "s" seconds.
// Works in whole seconds, so that adding five minutes a thousand times does not drift.
DateTime dateAdd(const QString& interval, double number, DateTime date);

int weekday(DateTime date);  // Sunday = 1 .. Saturday = 7
int year(DateTime date);
int month(DateTime date);
int day(DateTime date);
int hour(DateTime date);
int minute(DateTime date);
int second(DateTime date);

// The formats the game shows: "h:mm AMPM" ("6:05 AM"), "dddd" ("Monday"),
// "dddd h:mm AMPM" ("Monday 6:05 AM").
QString formatDate(DateTime date, const QString& format);

// The one fixed form written to save files: "12/22/1997 6:00:00 AM", midnight included.
QString saveDateText(DateTime date);

// Reads "12/23/97 06:00:00 AM", "12/22/1997 6:00:00 AM", "12/22/1997", "18:30" and the like.
// Two-digit years 30..99 are 1930..1999, 00..29 are 2000..2029.
std::optional<DateTime> parseDateTime(const QString& text);

}  // namespace rt
