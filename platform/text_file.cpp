// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_file.h"

#include "platform/durable_file.h"
#include "platform/runtime.h"

#include <QFile>

namespace rt {
namespace {

bool isLineEnd(char c) {
  return c == '\r' || c == '\n';
}

}  // namespace

ListInput::ListInput(const std::filesystem::path& path) {
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) throw FileNotFound(path.string());
  data_ = file.readAll();
}

ListInput ListInput::fromBytes(QByteArray bytes) {
  ListInput in;
  in.data_ = std::move(bytes);
  return in;
}

bool ListInput::eof() const {
  return pos_ >= data_.size();
}

void ListInput::skipBlanks() {
  while (pos_ < data_.size() && (data_[pos_] == ' ' || data_[pos_] == '\t')) ++pos_;
}

// Consumes the delimiter after a field: a comma, or a line end (CR LF, LF or CR).
void ListInput::finishField() {
  skipBlanks();
  if (pos_ >= data_.size()) return;
  const char c = data_[pos_];
  if (c == ',') {
    ++pos_;
  } else if (c == '\r') {
    ++pos_;
    if (pos_ < data_.size() && data_[pos_] == '\n') ++pos_;
  } else if (c == '\n') {
    ++pos_;
  }
}

QString ListInput::inputString() {
  // An empty line is an empty field, so that an empty string printed to a line reads back.
  skipBlanks();
  if (pos_ >= data_.size()) throw InputPastEnd();
  QByteArray field;
  if (data_[pos_] == '"') {
    const qsizetype close = data_.indexOf('"', pos_ + 1);
    const qsizetype end = close < 0 ? data_.size() : close;
    field = data_.mid(pos_ + 1, end - pos_ - 1);
    pos_ = close < 0 ? data_.size() : close + 1;
    // Whatever follows the closing quote up to the delimiter is dropped.
    while (pos_ < data_.size() && data_[pos_] != ',' && !isLineEnd(data_[pos_])) ++pos_;
  } else {
    const qsizetype start = pos_;
    while (pos_ < data_.size() && data_[pos_] != ',' && !isLineEnd(data_[pos_])) ++pos_;
    field = data_.mid(start, pos_ - start);
    while (field.endsWith(' ') || field.endsWith('\t')) field.chop(1);
  }
  finishField();
  return QString::fromUtf8(field);
}

int16_t ListInput::inputInt16() {
  return to16(parseNumber(inputString()));
}

double ListInput::inputDouble() {
  return parseNumber(inputString());
}

DateTime ListInput::inputDate() {
  const auto date = parseDateTime(inputString());
  if (!date) throw TypeMismatch();
  return *date;
}

QString ListInput::lineInput() {
  if (pos_ >= data_.size()) throw InputPastEnd();
  const qsizetype start = pos_;
  while (pos_ < data_.size() && !isLineEnd(data_[pos_])) ++pos_;
  const QByteArray line = data_.mid(start, pos_ - start);
  if (pos_ < data_.size() && data_[pos_] == '\r') ++pos_;
  if (pos_ < data_.size() && data_[pos_] == '\n') ++pos_;
  return QString::fromUtf8(line);
}

void PrintFile::print(long long value) {
  print(numberText(value));
}

void PrintFile::print(double value) {
  print(numberText(value));
}

void PrintFile::print(const QString& text) {
  data_ += text.toUtf8();
  data_ += "\r\n";
}

void PrintFile::printDate(DateTime value) {
  print(saveDateText(value));
}

void PrintFile::commit(const std::filesystem::path& path) const {
  platform::writeDurably(path, data_);
}

}  // namespace rt
