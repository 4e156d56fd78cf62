// SPDX-License-Identifier: GPL-2.0-or-later
// The .isd file: an SQLite database with one table `records` whose columns are the field
// names in field order. Reading and writing whole files, for tools and test fixtures.
#pragma once

#include "platform/records/sqlite_db.h"

#include <QList>
#include <QStringList>

#include <filesystem>

namespace platform {

// Field names and every record's values in file order, all as text.
struct RecordTable {
  QStringList fields;
  QList<QStringList> rows;
  bool operator==(const RecordTable&) const = default;
};

// Throws RecordError when the file is missing or not a record file.
RecordTable readRecordFile(const std::filesystem::path& file);
// Replaces `file` (creating its folder) with exactly `table`; a failure leaves any old file.
void writeRecordFile(const std::filesystem::path& file, const RecordTable& table);

namespace records {

inline constexpr char kTableName[] = "records";

// The field names of an open file in order; empty when it has no records table.
QStringList fieldsOf(Database& db);
void createRecordsTable(Database& db, const QStringList& fields);
// Appends records whose values line up with `fields`, which name existing columns; returns
// the row id of the last one.
long long insertRecords(Database& db, const QStringList& fields, const QList<QStringList>& rows);

}  // namespace records
}  // namespace platform
