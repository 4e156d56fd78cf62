// SPDX-License-Identifier: GPL-2.0-or-later
// Owning handles over an SQLite connection and its prepared statements, with the game's
// text and number comparisons registered on every connection.
#pragma once

#include <QString>

#include <filesystem>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace platform::records {

class Statement {
 public:
  Statement(sqlite3* db, const QString& sql);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  void bind(int index, const QString& text);
  void bind(int index, double number);
  void bind(int index, long long integer);
  // True while a row is ready; false once the statement is done.
  bool step();
  void reset();

  int columnCount() const;
  QString text(int column) const;
  long long integer(int column) const;

 private:
  sqlite3* db_;
  sqlite3_stmt* stmt_ = nullptr;
};

class Database {
 public:
  enum class Mode { Existing, Create };
  // Throws RecordError when the file cannot be opened (or, for Existing, does not exist).
  Database(const std::filesystem::path& file, Mode mode);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void exec(const QString& sql);
  long long lastInsertRowid() const;
  sqlite3* handle() const { return db_; }

 private:
  sqlite3* db_ = nullptr;
};

// Runs `sql` statements as one transaction: committed when the scope ends normally, rolled
// back when an exception leaves it, so a failed write leaves the file as it was.
class Transaction {
 public:
  explicit Transaction(Database& db);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit();

 private:
  Database& db_;
  bool done_ = false;
};

// An SQL identifier for a field name, quoted so that blanks and dashes survive.
QString quotedName(const QString& name);

}  // namespace platform::records
