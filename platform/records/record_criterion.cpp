// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/records/record_criterion.h"

#include "platform/records/game_comparisons.h"
#include "platform/records/record_error.h"

namespace platform {
namespace {

// Walks the criterion text left to right; every expectation that fails names itself.
class Reader {
 public:
  explicit Reader(const QString& text) : text_(text) {}

  void skipBlanks() {
    while (pos_ < text_.size() && text_[pos_].isSpace()) ++pos_;
  }
  void expect(const QString& word) {
    skipBlanks();
    if (text_.mid(pos_, word.size()).compare(word, Qt::CaseInsensitive) != 0) fail("expected " + word);
    pos_ += word.size();
  }
  QString quotedName() {
    expect(QStringLiteral("\""));
    const qsizetype end = text_.indexOf(u'"', pos_);
    if (end < 0) fail(QStringLiteral("the field name has no closing quote"));
    const QString name = text_.mid(pos_, end - pos_);
    if (name.trimmed().isEmpty()) fail(QStringLiteral("the field name is empty"));
    pos_ = end + 1;
    return name;
  }
  QString rest() const { return text_.mid(pos_); }
  [[noreturn]] void fail(const QString& what) const {
    throw CriterionError(QStringLiteral("Bad criterion '%1': %2").arg(text_, what).toStdString());
  }

 private:
  const QString& text_;
  qsizetype pos_ = 0;
};

void readValue(const Reader& reader, Criterion& criterion) {
  const QString value = reader.rest().trimmed();
  if (value.isEmpty()) reader.fail(QStringLiteral("there is no value after '='"));
  if (value.startsWith(u'"')) {
    if (value.size() < 2 || !value.endsWith(u'"'))
      reader.fail(QStringLiteral("the value has no closing quote"));
    criterion.kind = Criterion::Kind::Text;
    criterion.text = value.mid(1, value.size() - 2);
    return;
  }
  const auto number = records::numberOf(value.toUtf8());
  if (!number) reader.fail(QStringLiteral("the value is neither quoted text nor a number"));
  criterion.kind = Criterion::Kind::Number;
  criterion.number = *number;
}

}  // namespace

Criterion parseCriterion(const QString& text) {
  Reader reader(text);
  Criterion criterion;
  reader.expect(QStringLiteral("Field"));
  reader.expect(QStringLiteral("("));
  criterion.field = reader.quotedName();
  reader.expect(QStringLiteral(")"));
  reader.expect(QStringLiteral("="));
  readValue(reader, criterion);
  return criterion;
}

}  // namespace platform
