// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/datetime.h"

#include <QDate>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace rt {
namespace {

// 30 December 1899, as a function so that other files' static dates can use it safely.
QDate epoch() {
  return QDate::fromJulianDay(2415019);
}
constexpr long long kSecondsPerDay = 86400;

long long toSeconds(DateTime date) {
  return std::llround(date * kSecondsPerDay);
}
// Whole days plus the fraction of the day, the same sum dateSerial + timeSerial makes, so
// that every way of reaching a moment gives the same double.
DateTime fromSeconds(long long seconds) {
  long long days = seconds / kSecondsPerDay;
  long long rest = seconds % kSecondsPerDay;
  if (rest < 0) {
    rest += kSecondsPerDay;
    --days;
  }
  return static_cast<double>(days) + static_cast<double>(rest) / kSecondsPerDay;
}

long long wholeDays(DateTime date) {
  const long long s = toSeconds(date);
  return s >= 0 ? s / kSecondsPerDay : -((-s + kSecondsPerDay - 1) / kSecondsPerDay);
}

int secondOfDay(DateTime date) {
  return static_cast<int>(toSeconds(date) - wholeDays(date) * kSecondsPerDay);
}

QDate calendarDate(DateTime date) {
  return epoch().addDays(wholeDays(date));
}

QString clockText(DateTime date) {
  const int h = hour(date);
  const int h12 = h % 12 == 0 ? 12 : h % 12;
  return QStringLiteral("%1:%2 %3")
      .arg(h12)
      .arg(minute(date), 2, 10, QLatin1Char('0'))
      .arg(h < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

QString dayName(DateTime date) {
  static const char* const kNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                       "Thursday", "Friday", "Saturday"};
  return QString::fromLatin1(kNames[weekday(date) - 1]);
}

int expandYear(int y, int digits) {
  if (digits > 2) return y;
  return y < 30 ? 2000 + y : 1900 + y;
}

std::optional<int> parseTimeOfDay(const QString& text) {
  static const QRegularExpression kTime(
      QStringLiteral(R"(^(\d{1,2}):(\d{1,2})(?::(\d{1,2}))?\s*([AaPp][Mm])?$)"));
  const auto m = kTime.match(text.trimmed());
  if (!m.hasMatch()) return std::nullopt;
  int h = m.captured(1).toInt();
  const int n = m.captured(2).toInt();
  const int s = m.captured(3).isEmpty() ? 0 : m.captured(3).toInt();
  const QString ampm = m.captured(4).toUpper();
  if (!ampm.isEmpty()) {
    if (h < 1 || h > 12) return std::nullopt;
    h = h % 12 + (ampm == u"PM" ? 12 : 0);
  }
  if (h > 23 || n > 59 || s > 59) return std::nullopt;
  return h * 3600 + n * 60 + s;
}

}  // namespace

DateTime dateSerial(int y, int m, int d) {
  return static_cast<double>(epoch().daysTo(QDate(y, m, d)));
}

DateTime timeSerial(int h, int n, int s) {
  return static_cast<double>(h * 3600 + n * 60 + s) / kSecondsPerDay;
}

DateTime dateAdd(const QString& interval, double number, DateTime date) {
  const QString unit = interval.toLower();
  long long step = 0;
  if (unit == u"d")
    step = kSecondsPerDay;
  else if (unit == u"h")
    step = 3600;
  else if (unit == u"n")
    step = 60;
  else if (unit == u"s")
    step = 1;
  else
    throw std::invalid_argument("unsupported DateAdd interval");
  // DateAdd takes the whole part of the number, as the runtime does.
  return fromSeconds(toSeconds(date) + static_cast<long long>(std::trunc(number)) * step);
}

int weekday(DateTime date) {
  return calendarDate(date).dayOfWeek() % 7 + 1;
}
int year(DateTime date) {
  return calendarDate(date).year();
}
int month(DateTime date) {
  return calendarDate(date).month();
}
int day(DateTime date) {
  return calendarDate(date).day();
}
int hour(DateTime date) {
  return secondOfDay(date) / 3600;
}
int minute(DateTime date) {
  return secondOfDay(date) / 60 % 60;
}
int second(DateTime date) {
  return secondOfDay(date) % 60;
}

QString formatDate(DateTime date, const QString& format) {
  if (format == u"h:mm AMPM") return clockText(date);
  if (format == u"dddd") return dayName(date);
  if (format == u"dddd h:mm AMPM") return dayName(date) + u' ' + clockText(date);
  throw std::invalid_argument("unsupported date format");
}

QString saveDateText(DateTime date) {
  const QDate d = calendarDate(date);
  const int h = hour(date);
  return QStringLiteral("%1/%2/%3 %4:%5:%6 %7")
      .arg(d.month())
      .arg(d.day())
      .arg(d.year())
      .arg(h % 12 == 0 ? 12 : h % 12)
      .arg(minute(date), 2, 10, QLatin1Char('0'))
      .arg(second(date), 2, 10, QLatin1Char('0'))
      .arg(h < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

std::optional<DateTime> parseDateTime(const QString& text) {
  static const QRegularExpression kDate(QStringLiteral(R"(^\s*(\d{1,2})/(\d{1,2})/(\d{1,4})(.*)$)"));
  const auto m = kDate.match(text);
  if (!m.hasMatch()) {
    const auto time = parseTimeOfDay(text);
    if (!time) return std::nullopt;
    return fromSeconds(*time);
  }
  const QDate d(expandYear(m.captured(3).toInt(), static_cast<int>(m.captured(3).size())),
                m.captured(1).toInt(), m.captured(2).toInt());
  if (!d.isValid()) return std::nullopt;
  int seconds = 0;
  const QString rest = m.captured(4).trimmed();
  if (!rest.isEmpty()) {
    const auto time = parseTimeOfDay(rest);
    if (!time) return std::nullopt;
    seconds = *time;
  }
  return fromSeconds(epoch().daysTo(d) * kSecondsPerDay + seconds);
}

}  // namespace rt
