// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/records/record_file.h"

#include "platform/records/record_error.h"

#include <system_error>

namespace platform {
namespace records {
namespace {

QString joinedNames(const QStringList& fields) {
  QStringList quoted;
  for (const QString& field : fields) quoted << quotedName(field);
  return quoted.join(u", ");
}

}  // namespace

QStringList fieldsOf(Database& db) {
  Statement info(
      db.handle(),
      QStringLiteral("SELECT name FROM pragma_table_info('%1') ORDER BY cid").arg(QLatin1String(kTableName)));
  QStringList fields;
  while (info.step()) fields << info.text(0);
  return fields;
}

void createRecordsTable(Database& db, const QStringList& fields) {
  if (fields.isEmpty()) throw RecordError("A record file needs at least one field");
  db.exec(QStringLiteral("CREATE TABLE %1 (%2)").arg(QLatin1String(kTableName), joinedNames(fields)));
}

long long insertRecords(Database& db, const QStringList& fields, const QList<QStringList>& rows) {
  QStringList placeholders;
  for (qsizetype i = 1; i <= fields.size(); ++i) placeholders << u'?' + QString::number(i);
  Statement insert(db.handle(),
                   QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                       .arg(QLatin1String(kTableName), joinedNames(fields), placeholders.join(u", ")));
  for (const QStringList& values : rows) {
    for (qsizetype i = 0; i < fields.size(); ++i) insert.bind(static_cast<int>(i + 1), values.value(i));
    insert.step();
    insert.reset();
  }
  return db.lastInsertRowid();
}

}  // namespace records

RecordTable readRecordFile(const std::filesystem::path& file) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(file, ec)) throw RecordError("No record file " + file.string());
  records::Database db(file, records::Database::Mode::Existing);
  RecordTable table;
  table.fields = records::fieldsOf(db);
  if (table.fields.isEmpty()) throw RecordError(file.string() + " is not a record file");
  records::Statement all(
      db.handle(), QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(QLatin1String(records::kTableName)));
  while (all.step()) {
    QStringList row;
    for (int column = 0; column < all.columnCount(); ++column) row << all.text(column);
    table.rows << row;
  }
  return table;
}

void writeRecordFile(const std::filesystem::path& file, const RecordTable& table) {
  // Built beside the target and renamed over it, so a reader never sees half a file.
  std::filesystem::create_directories(file.parent_path().empty() ? "." : file.parent_path());
  std::filesystem::path building = file;
  building += ".new";
  std::filesystem::remove(building);
  try {
    records::Database db(building, records::Database::Mode::Create);
    records::Transaction transaction(db);
    records::createRecordsTable(db, table.fields);
    records::insertRecords(db, table.fields, table.rows);
    transaction.commit();
  } catch (...) {
    std::filesystem::remove(building);
    throw;
  }
  std::filesystem::rename(building, file);
}

}  // namespace platform
