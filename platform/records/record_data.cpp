// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/records/record_data.h"

#include "platform/files.h"
#include "platform/records/game_comparisons.h"
#include "platform/records/record_file.h"
#include "platform/records/sqlite_db.h"

#include <algorithm>
#include <system_error>

namespace platform {
namespace {

using records::quotedName;

const QString kTable = QLatin1String(records::kTableName);

// The stored value as text; a field never written reads as empty.
QString asText(const QString& column) {
  return QStringLiteral("ifnull(CAST(%1 AS TEXT), '')").arg(column);
}

QString matchExpression(const Criterion& criterion, const QString& column) {
  if (criterion.kind == Criterion::Kind::Number)
    return QStringLiteral("%1(%2) = ?1").arg(QLatin1String(records::kNumberFunction), column);
  return QStringLiteral("%1 = ?1 COLLATE %2").arg(asText(column), QLatin1String(records::kTextCollation));
}

std::optional<QString> findField(const QStringList& fields, const QString& name) {
  for (const QString& field : fields)
    if (field.compare(name.trimmed(), Qt::CaseInsensitive) == 0) return field;
  return std::nullopt;
}

QString orderExpression(const QString& column) {
  const QString number = QStringLiteral("%1(%2)").arg(QLatin1String(records::kNumberFunction), column);
  return QStringLiteral("%1 IS NULL, %1, %2 COLLATE %3, rowid")
      .arg(number, asText(column), QLatin1String(records::kTextCollation));
}

}  // namespace

RecordData::RecordData() = default;
RecordData::~RecordData() = default;

void RecordData::SetDatabaseName(const QString& gamePath) {
  Close();
  gamePath_ = gamePath;
}

void RecordData::SetCriteria(const QString& criterion) {
  if (criterion.trimmed().isEmpty())
    criterion_.reset();
  else
    criterion_ = parseCriterion(criterion);
  stale_ = true;
}

void RecordData::SetOrderBy(const QString& field) {
  orderBy_ = field.trimmed();
  stale_ = true;
}

void RecordData::Refresh() {
  Close();
  ensureQueried();
  if (!order_.empty()) moveTo(0);
}

void RecordData::Close() {
  rowReader_.reset();
  db_.reset();
  opened_ = false;
  fields_.clear();
  order_.clear();
  matches_.clear();
  stale_ = true;
  current_.reset();
  position_ = -1;
  values_.clear();
  noMatch_ = false;
  pending_.reset();
}

void RecordData::ensureOpen() {
  if (opened_) return;
  opened_ = true;
  const auto file = files().resolve(gamePath_);
  std::error_code ec;
  if (!std::filesystem::is_regular_file(file, ec)) return;
  db_ = std::make_unique<records::Database>(file, records::Database::Mode::Existing);
  fields_ = records::fieldsOf(*db_);
}

void RecordData::ensureQueried() {
  ensureOpen();
  if (stale_) query();
}

void RecordData::query() {
  order_.clear();
  matches_.clear();
  if (!db_ || fields_.isEmpty()) {
    stale_ = false;
    return;
  }
  const QString match = criterion_ ? matchExpression(*criterion_, quotedName(fieldName(criterion_->field)))
                                   : QStringLiteral("1");
  const QString order =
      orderBy_.isEmpty() ? QStringLiteral("rowid") : orderExpression(quotedName(fieldName(orderBy_)));
  records::Statement walk(db_->handle(),
                          QStringLiteral("SELECT rowid, %1 FROM %2 ORDER BY %3").arg(match, kTable, order));
  if (criterion_ && criterion_->kind == Criterion::Kind::Number)
    walk.bind(1, criterion_->number);
  else if (criterion_)
    walk.bind(1, criterion_->text);
  while (walk.step()) {
    order_.push_back(walk.integer(0));
    matches_.push_back(walk.integer(1) != 0);
  }
  const auto found = current_ ? std::find(order_.begin(), order_.end(), *current_) : order_.end();
  position_ = found == order_.end() ? -1 : found - order_.begin();
  stale_ = false;
}

void RecordData::FindFirst() {
  ensureQueried();
  findFrom(0, 1);
}

void RecordData::FindLast() {
  ensureQueried();
  findFrom(static_cast<qsizetype>(order_.size()) - 1, -1);
}

void RecordData::FindNext() {
  ensureQueried();
  findFrom(position_ + 1, 1);
}

void RecordData::FindPrevious() {
  ensureQueried();
  findFrom(position_ < 0 ? static_cast<qsizetype>(order_.size()) - 1 : position_ - 1, -1);
}

void RecordData::findFrom(qsizetype start, int step) {
  const auto size = static_cast<qsizetype>(order_.size());
  for (qsizetype i = start; i >= 0 && i < size; i += step) {
    if (matches_[i]) {
      moveTo(i);
      noMatch_ = false;
      return;
    }
  }
  noMatch_ = true;
}

void RecordData::moveTo(qsizetype index) {
  position_ = index;
  loadCurrent(order_[index]);
}

void RecordData::loadCurrent(long long rowid) {
  if (!rowReader_)
    rowReader_ = std::make_unique<records::Statement>(
        db_->handle(), QStringLiteral("SELECT * FROM %1 WHERE rowid = ?1").arg(kTable));
  rowReader_->bind(1, rowid);
  values_.clear();
  if (rowReader_->step())
    for (int column = 0; column < rowReader_->columnCount(); ++column) values_ << rowReader_->text(column);
  rowReader_->reset();
  current_ = rowid;
}

QString RecordData::fieldName(const QString& name) const {
  return fieldName(fields_, name);
}

QString RecordData::fieldName(const QStringList& fields, const QString& name) const {
  if (const auto field = findField(fields, name)) return *field;
  throw RecordError(
      QStringLiteral("The record file %1 has no field \"%2\"").arg(gamePath_, name).toStdString());
}

QString RecordData::Field(const QString& name) const {
  if (!current_) return {};
  return values_.value(fields_.indexOf(fieldName(name)));
}

QString RecordData::Field(int number) const {
  if (number < 1 || number > FieldCount())
    throw RecordError(
        QStringLiteral("The record file %1 has no field number %2").arg(gamePath_).arg(number).toStdString());
  return current_ ? values_.value(number - 1) : QString();
}

void RecordData::AddNew() {
  pending_.emplace();
}

void RecordData::SetField(const QString& name, const QString& value) {
  if (!pending_) throw RecordError("A field was set with no new record started");
  const auto same = std::find_if(pending_->begin(), pending_->end(), [&](const auto& entry) {
    return entry.first.compare(name, Qt::CaseInsensitive) == 0;
  });
  if (same != pending_->end())
    same->second = value;
  else
    pending_->emplace_back(name, value);
}

void RecordData::Update() {
  if (!pending_) throw RecordError("Update with no new record started");
  // Taken out first: a record that failed to go in is dropped, not kept half-made.
  const auto record = std::exchange(pending_, std::nullopt);
  if (record->empty()) throw RecordError("A new record needs at least one field");
  append(*record);
}

void RecordData::createFile() {
  const auto file = files().resolve(gamePath_);
  std::filesystem::create_directories(file.parent_path());
  db_ = std::make_unique<records::Database>(file, records::Database::Mode::Create);
}

void RecordData::append(const PendingRecord& record) {
  ensureOpen();
  if (!db_) createFile();
  QStringList names, values;
  for (const auto& [name, value] : record) {
    names << name;
    values << value;
  }
  records::Transaction transaction(*db_);
  QStringList fields = records::fieldsOf(*db_);
  if (fields.isEmpty()) {
    records::createRecordsTable(*db_, names);
    fields = names;
  }
  for (QString& name : names) name = fieldName(fields, name);
  const long long rowid = records::insertRecords(*db_, names, {values});
  transaction.commit();
  fields_ = fields;
  rowReader_.reset();
  query();
  const auto found = std::find(order_.begin(), order_.end(), rowid);
  if (found != order_.end()) moveTo(found - order_.begin());
}

}  // namespace platform
