// SPDX-License-Identifier: GPL-2.0-or-later
// A trophy as the trophy page shows it and the record book keeps it: the texts of the kill,
// the nine fields of trophy.isd, its grid rows and the paging over the sixteen species.
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace platform {
class RecordData;
}

inline constexpr int kTrophyColumns = 9;

// "12.34 Points": the size with the unit of the species last named.
QString trophySizeText(double size);
// "123.45 lbs".
QString trophyWeightText(double weight);
// "250 yards".
QString trophyRangeText(int yards);
// "Monday 6:05 AM".
QString trophyTimeText(double gameDate);

// The record of the kill in play, field name and text, in the file's field order. Names the
// species, so `TrophyUnit` follows it.
QList<QPair<QString, QString>> newTrophyRecord();
// The grid's headings, one per field.
QStringList trophyHeadings();
// The record book's file for the player: the save folder, the record folder, "trophy.isd".
QString trophyBookPath();

// One grid row from the current record: fields 1..n each followed by a tab, blanks trimmed.
QString trophyRowLine(const platform::RecordData& data);
// The cells a row line fills, one per column.
QStringList trophyRowCells(const QString& line);

// Paging over the species 1..16, wrapping at both ends.
int16_t previousTrophyPage(int16_t page);
int16_t nextTrophyPage(int16_t page);
