// SPDX-License-Identifier: GPL-2.0-or-later
// The record data control the screens read .isd files through: point it at a file, give it
// a criterion and an order, find the first, next, previous or last match, read the current
// record's fields, and append records.
#pragma once

#include "platform/records/record_criterion.h"
#include "platform/records/record_error.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

namespace records {
class Database;
class Statement;
}  // namespace records

// A missing file is an empty one: every find sets NoMatch, and the first Update creates it
// with the fields given. Unusable files, unknown fields and bad criteria throw RecordError.
class RecordData {
 public:
  RecordData();
  ~RecordData();
  RecordData(const RecordData&) = delete;
  RecordData& operator=(const RecordData&) = delete;

  // The game path of the file ("D:\Dbase\paths.isd"); opened at the next Refresh or find.
  void SetDatabaseName(const QString& gamePath);
  const QString& DatabaseName() const { return gamePath_; }
  // `Field("Name") = value`; an empty text selects every record. Throws CriterionError.
  void SetCriteria(const QString& criterion);
  // Matches are walked in this field's order (numbers by value, then texts), else file order.
  void SetOrderBy(const QString& field);
  // Rereads the file as it is now; no record is current afterwards.
  void Refresh();
  void Close();

  // Each moves to a matching record, or sets NoMatch and stays where it was.
  void FindFirst();
  void FindLast();
  void FindNext();
  void FindPrevious();
  bool NoMatch() const { return noMatch_; }
  bool HasRecord() const { return current_.has_value(); }

  // Fields of the current record; empty texts while there is none.
  QString Field(const QString& name) const;
  QString Field(int number) const;  // numbered from 1, in field order
  int FieldCount() const { return static_cast<int>(fields_.size()); }
  const QStringList& FieldNames() const { return fields_; }

  // Starts a new record; SetField fills it and Update appends it in one transaction, after
  // which it is the current record.
  void AddNew();
  void SetField(const QString& name, const QString& value);
  void Update();
  void CancelUpdate() { pending_.reset(); }

 private:
  void ensureOpen();
  void ensureQueried();
  void query();
  void findFrom(qsizetype start, int step);
  void moveTo(qsizetype index);
  void loadCurrent(long long rowid);
  QString fieldName(const QString& name) const;
  QString fieldName(const QStringList& fields, const QString& name) const;
  using PendingRecord = std::vector<std::pair<QString, QString>>;
  void append(const PendingRecord& record);
  void createFile();

  QString gamePath_;
  std::unique_ptr<records::Database> db_;
  std::unique_ptr<records::Statement> rowReader_;  // after db_: finalised before it closes
  bool opened_ = false;
  QStringList fields_;
  std::optional<Criterion> criterion_;
  QString orderBy_;
  bool stale_ = true;
  // Every record in walking order, with whether it matches the criterion.
  std::vector<long long> order_;
  std::vector<char> matches_;
  std::optional<long long> current_;
  qsizetype position_ = -1;
  QStringList values_;
  bool noMatch_ = false;
  std::optional<PendingRecord> pending_;
};

}  // namespace platform
