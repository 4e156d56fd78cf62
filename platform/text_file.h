// SPDX-License-Identifier: GPL-2.0-or-later
// Sequential text files as the game reads and writes them: list input (fields split at commas
// and line ends), line input, and printing one value a line with CR LF.
#pragma once

#include "platform/datetime.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <stdexcept>

namespace rt {

// Reading beyond the last field: the readers' error handlers stop there.
class InputPastEnd : public std::runtime_error {
 public:
  InputPastEnd() : std::runtime_error("Input past end of file") {}
};

// Opening a file that is not there.
class FileNotFound : public std::runtime_error {
 public:
  explicit FileNotFound(const std::string& path) : std::runtime_error("File not found: " + path) {}
};

class ListInput {
 public:
  // Reads the whole file at once; throws FileNotFound when it cannot be opened.
  explicit ListInput(const std::filesystem::path& path);
  static ListInput fromBytes(QByteArray bytes);

  // The next field as text: leading blanks skipped; a field in double quotes runs to the
  // closing quote, any other to the next comma or line end, trailing blanks dropped.
  QString inputString();
  // The next field as a number; TypeMismatch for text, OverflowError beyond 16 bits.
  int16_t inputInt16();
  double inputDouble();
  // The next field read as a date-time; TypeMismatch when it is no date.
  DateTime inputDate();
  // The rest of the current line, without its line end.
  QString lineInput();
  bool eof() const;

 private:
  ListInput() = default;
  void skipBlanks();
  void finishField();
  QByteArray data_;
  qsizetype pos_ = 0;
};

// Collects printed lines and writes them safely: into a temporary file beside the target,
// renamed over it only when every byte is on disk, so a failed save leaves the old file.
class PrintFile {
 public:
  void print(long long value);
  void print(int16_t value) { print(static_cast<long long>(value)); }
  void print(int value) { print(static_cast<long long>(value)); }
  void print(double value);
  void print(const QString& text);
  void printDate(DateTime value);

  const QByteArray& bytes() const { return data_; }
  // Throws std::runtime_error naming the file when it cannot be written.
  void commit(const std::filesystem::path& path) const;

 private:
  QByteArray data_;
};

}  // namespace rt
