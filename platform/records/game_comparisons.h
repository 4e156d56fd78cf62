// SPDX-License-Identifier: GPL-2.0-or-later
// How the game compares record values: text without regard to case or trailing blanks, and
// numbers by value whether they are stored as numbers or as their text.
#pragma once

#include <QByteArrayView>

#include <optional>

struct sqlite3;

namespace platform::records {

// SQL names of the comparisons registered on every connection.
inline constexpr char kTextCollation[] = "gametext";
inline constexpr char kNumberFunction[] = "game_number";

// The number a stored text stands for: blanks around it allowed, an empty or non-numeric
// text is no number.
std::optional<double> numberOf(QByteArrayView utf8);

// Orders two UTF-8 texts ignoring case and trailing blanks; 0 when the game calls them equal.
int compareText(QByteArrayView a, QByteArrayView b);

void registerGameComparisons(sqlite3* db);

}  // namespace platform::records
