// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/records/record_csv.h"

#include "platform/records/record_error.h"

namespace platform {
namespace {

// Splits CSV text into lines of fields, honouring quotes across line breaks.
class CsvReader {
 public:
  explicit CsvReader(const QString& text) : text_(text) {}

  bool atEnd() const { return pos_ >= text_.size(); }

  QStringList line() {
    QStringList fields;
    ++lineNumber_;
    while (true) {
      fields << field();
      if (atEnd()) return fields;
      const QChar separator = text_[pos_++];
      if (separator == u',') continue;
      if (separator == u'\r' && !atEnd() && text_[pos_] == u'\n') ++pos_;
      return fields;
    }
  }

  int lineNumber() const { return lineNumber_; }

  // Steps over an empty line; a line holding only "" is a record, not a blank.
  bool skipBlankLine() {
    if (atEnd() || (text_[pos_] != u'\n' && text_[pos_] != u'\r')) return false;
    line();
    return true;
  }

 private:
  QString field() {
    if (atEnd() || text_[pos_] != u'"') return bare();
    ++pos_;
    QString value;
    while (!atEnd()) {
      const QChar c = text_[pos_++];
      if (c != u'"') {
        value += c;
      } else if (!atEnd() && text_[pos_] == u'"') {
        value += c;
        ++pos_;
      } else {
        return value + bare();
      }
    }
    throw RecordError(QStringLiteral("Line %1: a quoted field is not closed").arg(lineNumber_).toStdString());
  }
  QString bare() {
    const qsizetype start = pos_;
    while (!atEnd() && text_[pos_] != u',' && text_[pos_] != u'\n' && text_[pos_] != u'\r') ++pos_;
    return text_.mid(start, pos_ - start);
  }

  const QString& text_;
  qsizetype pos_ = 0;
  int lineNumber_ = 0;
};

bool needsQuotes(const QString& value) {
  return value.contains(u',') || value.contains(u'"') || value.contains(u'\n') || value.contains(u'\r') ||
         value.startsWith(u' ') || value.endsWith(u' ');
}

QString csvField(const QString& value) {
  if (!needsQuotes(value)) return value;
  QString quoted = value;
  quoted.replace(u'"', QStringLiteral("\"\""));
  return u'"' + quoted + u'"';
}

QString csvLine(const QStringList& values) {
  if (values.size() == 1 && values.front().isEmpty()) return QStringLiteral("\"\"\n");
  QStringList fields;
  for (const QString& value : values) fields << csvField(value);
  return fields.join(u',') + u'\n';
}

}  // namespace

RecordTable parseRecordCsv(const QString& text) {
  CsvReader reader(text);
  RecordTable table;
  if (reader.atEnd()) throw RecordError("The text has no line of field names");
  table.fields = reader.line();
  while (!reader.atEnd()) {
    if (reader.skipBlankLine()) continue;
    QStringList row = reader.line();
    if (row.size() > table.fields.size())
      throw RecordError(QStringLiteral("Line %1 has %2 fields, the header %3")
                            .arg(reader.lineNumber())
                            .arg(row.size())
                            .arg(table.fields.size())
                            .toStdString());
    while (row.size() < table.fields.size()) row << QString();
    table.rows << row;
  }
  return table;
}

QString recordCsv(const RecordTable& table) {
  QString text = csvLine(table.fields);
  for (const QStringList& row : table.rows) text += csvLine(row);
  return text;
}

}  // namespace platform
