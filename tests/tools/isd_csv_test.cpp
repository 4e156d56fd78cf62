// SPDX-License-Identifier: GPL-2.0-or-later
// The text form of record files that world authors edit: CSV in, .isd, and CSV out again.
#include "platform/records/record_csv.h"
#include "platform/records/record_error.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using platform::parseRecordCsv;
using platform::recordCsv;
using platform::RecordError;
using platform::RecordTable;

TEST(IsdCsv, RoundTripsThroughAnIsdFileByteForByte) {
  const QString csv = QString::fromUtf8(
      "ID,Item,Item Description,Cost,Sub-CatNumber\n"
      "1,Wool Coat,\"Warm, and \"\"quiet\"\"\",120,1\n"
      "2,\" Boots \",\"Two lines\nof text\",,7\n"
      "3,Élan,,0,\n");
  const RecordTable table = parseRecordCsv(csv);
  ASSERT_EQ(table.rows.size(), 3);
  EXPECT_EQ(table.rows[0][2], "Warm, and \"quiet\"");
  EXPECT_EQ(table.rows[1][1], " Boots ");
  EXPECT_EQ(table.rows[1][2], "Two lines\nof text");

  QTemporaryDir dir;
  const auto file = std::filesystem::path(dir.path().toStdString()) / "Dbase" / "catalog.isd";
  platform::writeRecordFile(file, table);
  const RecordTable back = platform::readRecordFile(file);
  EXPECT_EQ(back, table);
  EXPECT_EQ(recordCsv(back), csv);
}

TEST(IsdCsv, KeepsARecordWhoseOnlyFieldIsEmpty) {
  const RecordTable table{{"Name"}, {{"a"}, {""}, {"b"}}};
  EXPECT_EQ(parseRecordCsv(recordCsv(table)), table);
}

TEST(IsdCsv, AcceptsWindowsLineEndsBlankLinesAndShortLines) {
  const RecordTable table = parseRecordCsv("ID,Hypername,Range\r\n1,~DPOI14\r\n\r\n2,^3lodge,2\r\n");
  EXPECT_EQ(table.fields, QStringList({"ID", "Hypername", "Range"}));
  ASSERT_EQ(table.rows.size(), 2);
  EXPECT_EQ(table.rows[0], QStringList({"1", "~DPOI14", ""}));
  EXPECT_EQ(table.rows[1], QStringList({"2", "^3lodge", "2"}));
}

TEST(IsdCsv, RefusesTextItCannotReadNamingTheLine) {
  EXPECT_THROW(parseRecordCsv(""), RecordError);
  try {
    parseRecordCsv("ID,Item\n1,Coat\n2,Boots,extra\n");
    ADD_FAILURE() << "a long line was accepted";
  } catch (const RecordError& error) {
    EXPECT_NE(std::string(error.what()).find("Line 3"), std::string::npos) << error.what();
  }
  EXPECT_THROW(parseRecordCsv("ID,Item\n1,\"Coat\n"), RecordError);
}

TEST(IsdCsv, ReadingSomethingElseIsAClearError) {
  QTemporaryDir dir;
  const auto missing = std::filesystem::path(dir.path().toStdString()) / "none.isd";
  EXPECT_THROW(platform::readRecordFile(missing), RecordError);
  const QString text = dir.filePath("text.isd");
  QFile file(text);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("ID,Item\n1,Coat\n");
  file.close();
  EXPECT_THROW(platform::readRecordFile(text.toStdString()), RecordError);
}

}  // namespace
