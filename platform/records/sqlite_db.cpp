// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/records/sqlite_db.h"

#include "platform/records/game_comparisons.h"
#include "platform/records/record_error.h"

#include <sqlite3.h>

namespace platform::records {
namespace {

[[noreturn]] void fail(sqlite3* db, const QString& what) {
  throw RecordError((what + QStringLiteral(": ") + QString::fromUtf8(sqlite3_errmsg(db))).toStdString());
}

}  // namespace

Statement::Statement(sqlite3* db, const QString& sql) : db_(db) {
  const QByteArray utf8 = sql.toUtf8();
  if (sqlite3_prepare_v2(db_, utf8.constData(), static_cast<int>(utf8.size()), &stmt_, nullptr) != SQLITE_OK)
    fail(db_, QStringLiteral("Cannot read the record file"));
}

Statement::~Statement() {
  sqlite3_finalize(stmt_);
}

void Statement::bind(int index, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  sqlite3_bind_text(stmt_, index, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

void Statement::bind(int index, double number) {
  sqlite3_bind_double(stmt_, index, number);
}

void Statement::bind(int index, long long integer) {
  sqlite3_bind_int64(stmt_, index, integer);
}

bool Statement::step() {
  const int result = sqlite3_step(stmt_);
  if (result == SQLITE_ROW) return true;
  if (result == SQLITE_DONE) return false;
  fail(db_, QStringLiteral("Cannot read the record file"));
}

void Statement::reset() {
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
}

int Statement::columnCount() const {
  return sqlite3_column_count(stmt_);
}

QString Statement::text(int column) const {
  const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
  return QString::fromUtf8(data, sqlite3_column_bytes(stmt_, column));
}

long long Statement::integer(int column) const {
  return sqlite3_column_int64(stmt_, column);
}

Database::Database(const std::filesystem::path& file, Mode mode) {
  const int flags = mode == Mode::Create ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE : SQLITE_OPEN_READWRITE;
  if (sqlite3_open_v2(file.c_str(), &db_, flags, nullptr) != SQLITE_OK) {
    const QString message =
        QStringLiteral("Cannot open the record file %1: %2")
            .arg(QString::fromStdString(file.string()), QString::fromUtf8(sqlite3_errmsg(db_)));
    sqlite3_close(db_);
    throw RecordError(message.toStdString());
  }
  sqlite3_busy_timeout(db_, 2000);
  registerGameComparisons(db_);
}

Database::~Database() {
  sqlite3_close(db_);
}

void Database::exec(const QString& sql) {
  if (sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
    fail(db_, QStringLiteral("Cannot write the record file"));
}

long long Database::lastInsertRowid() const {
  return sqlite3_last_insert_rowid(db_);
}

Transaction::Transaction(Database& db) : db_(db) {
  db_.exec(QStringLiteral("BEGIN IMMEDIATE"));
}

Transaction::~Transaction() {
  if (!done_) sqlite3_exec(db_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  db_.exec(QStringLiteral("COMMIT"));
  done_ = true;
}

QString quotedName(const QString& name) {
  QString quoted = name;
  quoted.replace(u'"', QStringLiteral("\"\""));
  return u'"' + quoted + u'"';
}

}  // namespace platform::records
