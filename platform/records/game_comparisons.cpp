// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/records/game_comparisons.h"

#include <QString>

#include <sqlite3.h>

#include <charconv>

namespace platform::records {
namespace {

QByteArrayView trimTrailing(QByteArrayView text) {
  qsizetype size = text.size();
  while (size > 0 && text[size - 1] == ' ') --size;
  return text.first(size);
}

QByteArrayView trimBoth(QByteArrayView text) {
  text = trimTrailing(text);
  qsizetype start = 0;
  while (start < text.size() && text[start] == ' ') ++start;
  return text.sliced(start);
}

bool isAscii(QByteArrayView text) {
  for (const char c : text)
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

char lowerAscii(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

int compareAscii(QByteArrayView a, QByteArrayView b) {
  const qsizetype common = std::min(a.size(), b.size());
  for (qsizetype i = 0; i < common; ++i) {
    const char x = lowerAscii(a[i]), y = lowerAscii(b[i]);
    if (x != y) return static_cast<unsigned char>(x) < static_cast<unsigned char>(y) ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

int collate(void*, int sizeA, const void* a, int sizeB, const void* b) {
  return compareText(QByteArrayView(static_cast<const char*>(a), sizeA),
                     QByteArrayView(static_cast<const char*>(b), sizeB));
}

void numberFunction(sqlite3_context* context, int, sqlite3_value** args) {
  sqlite3_value* value = args[0];
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT: sqlite3_result_double(context, sqlite3_value_double(value)); return;
    case SQLITE_TEXT: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
      const auto number = numberOf(QByteArrayView(text, sqlite3_value_bytes(value)));
      if (number)
        sqlite3_result_double(context, *number);
      else
        sqlite3_result_null(context);
      return;
    }
    default: sqlite3_result_null(context);
  }
}

}  // namespace

std::optional<double> numberOf(QByteArrayView utf8) {
  QByteArrayView text = trimBoth(utf8);
  if (!text.empty() && text[0] == '+') text = text.sliced(1);
  if (text.empty()) return std::nullopt;
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

int compareText(QByteArrayView a, QByteArrayView b) {
  a = trimTrailing(a);
  b = trimTrailing(b);
  if (isAscii(a) && isAscii(b)) return compareAscii(a, b);
  return QString::compare(QString::fromUtf8(a), QString::fromUtf8(b), Qt::CaseInsensitive);
}

void registerGameComparisons(sqlite3* db) {
  sqlite3_create_collation_v2(db, kTextCollation, SQLITE_UTF8, nullptr, collate, nullptr);
  sqlite3_create_function_v2(db, kNumberFunction, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                             numberFunction, nullptr, nullptr, nullptr);
}

}  // namespace platform::records
