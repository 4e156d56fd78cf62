// SPDX-License-Identifier: GPL-2.0-or-later
// isdtool: converts CSV to .isd record files and back, and prints a record file, so that
// world authors keep record files as text.
#include "platform/records/record_csv.h"
#include "platform/records/record_error.h"

#include <QFile>
#include <QString>

#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace {

constexpr char kUsage[] =
    "usage: isdtool import FILE.csv FILE.isd   CSV (first line = field names) to a record file\n"
    "       isdtool export FILE.isd [FILE.csv] a record file to CSV (standard output without FILE.csv)\n"
    "       isdtool print FILE.isd             every record, one field a line\n";

QString readText(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.toStdString());
  return QString::fromUtf8(file.readAll());
}

void writeText(const QString& path, const QString& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
    throw std::runtime_error("cannot write " + path.toStdString());
  file.write(text.toUtf8());
}

void print(const QString& text) {
  std::fputs(text.toUtf8().constData(), stdout);
}

QString describe(const platform::RecordTable& table) {
  qsizetype width = 0;
  for (const QString& field : table.fields) width = std::max(width, field.size());
  QString text;
  for (qsizetype row = 0; row < table.rows.size(); ++row) {
    text += QStringLiteral("record %1\n").arg(row + 1);
    for (qsizetype i = 0; i < table.fields.size(); ++i)
      text += QStringLiteral("  %1 : %2\n")
                  .arg(table.fields[i], -static_cast<int>(width))
                  .arg(table.rows[row][i]);
  }
  return text + QStringLiteral("%1 records\n").arg(table.rows.size());
}

int run(const QStringList& args) {
  const QString command = args.value(0);
  if (command == u"import" && args.size() == 3) {
    platform::writeRecordFile(args[2].toStdString(), platform::parseRecordCsv(readText(args[1])));
    return 0;
  }
  if (command == u"export" && (args.size() == 2 || args.size() == 3)) {
    const QString csv = platform::recordCsv(platform::readRecordFile(args[1].toStdString()));
    if (args.size() == 3)
      writeText(args[2], csv);
    else
      print(csv);
    return 0;
  }
  if (command == u"print" && args.size() == 2) {
    print(describe(platform::readRecordFile(args[1].toStdString())));
    return 0;
  }
  std::fputs(kUsage, stderr);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList args;
  for (int i = 1; i < argc; ++i) args << QString::fromLocal8Bit(argv[i]);
  try {
    return run(args);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "isdtool: %s\n", error.what());
    return 1;
  }
}
