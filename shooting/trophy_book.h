// SPDX-License-Identifier: GPL-2.0-or-later
// The record book file itself: one that cannot take a trophy (not a record file, or one
// without the trophy's fields) is kept aside and a new book started, so no later trophy is
// lost to it.
#pragma once

#include <QString>

#include <optional>

namespace platform {
class RecordData;
}

// Checks the player's record book; when it is damaged, renames it to
// "trophy.isd.damaged-<date>" beside it and shows one message naming both files. Returns
// the name it was kept under, or nothing when the book was fine or absent.
std::optional<QString> keepTrophyBookUsable();

// The message that names the damaged book and where it was kept.
QString damagedBookMessage(const QString& book, const QString& keptAs);

// Appends the kill in play to the player's record book through `data`, which is left on it.
void appendTrophyTo(platform::RecordData& data);
