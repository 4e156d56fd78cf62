// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_file.h"
#include "support/qt_printers.h"

#include "platform/runtime.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

using namespace rt;

TEST(ListInput, SplitsFieldsAtCommasAndLineEnds) {
  auto in = ListInput::fromBytes("  12, -3,abc  \r\nnext line,7\n8\r9");
  EXPECT_EQ(in.inputInt16(), 12);
  EXPECT_EQ(in.inputInt16(), -3);
  EXPECT_EQ(in.inputString(), "abc");
  EXPECT_EQ(in.inputString(), "next line");
  EXPECT_EQ(in.inputInt16(), 7);
  EXPECT_EQ(in.inputInt16(), 8);
  EXPECT_EQ(in.inputInt16(), 9);
  EXPECT_TRUE(in.eof());
  EXPECT_THROW(in.inputInt16(), InputPastEnd);
}

TEST(ListInput, QuotedStringsKeepCommasAndBlanks) {
  auto in = ListInput::fromBytes("\"Smith, J \",5\r\n\"open");
  EXPECT_EQ(in.inputString(), "Smith, J ");
  EXPECT_EQ(in.inputInt16(), 5);
  EXPECT_EQ(in.inputString(), "open");
}

TEST(ListInput, AnEmptyLineIsAnEmptyField) {
  auto in = ListInput::fromBytes("a\r\n\r\n\r\nb\r\n");
  EXPECT_EQ(in.inputString(), "a");
  EXPECT_EQ(in.inputString(), "");
  EXPECT_EQ(in.inputInt16(), 0);
  EXPECT_EQ(in.inputString(), "b");
  EXPECT_THROW(in.inputString(), InputPastEnd);
}

TEST(ListInput, LineInputTakesTheRestOfTheLine) {
  auto in = ListInput::fromBytes("1,2,3\r\n4,5\r\n");
  EXPECT_EQ(in.inputInt16(), 1);
  EXPECT_EQ(in.lineInput(), "2,3");
  EXPECT_EQ(in.lineInput(), "4,5");
  EXPECT_THROW(in.lineInput(), InputPastEnd);
}

TEST(ListInput, DamagedNumbersRaise) {
  auto in = ListInput::fromBytes("x1,40000,2.5,\x01\x02");
  EXPECT_THROW(in.inputInt16(), TypeMismatch);
  EXPECT_THROW(in.inputInt16(), OverflowError);
  EXPECT_EQ(in.inputDouble(), 2.5);
  EXPECT_THROW(in.inputInt16(), TypeMismatch);
}

TEST(ListInput, DatesReadAsTextAndConvert) {
  auto in = ListInput::fromBytes("12/22/97 06:00:00 AM\r\nnever\r\n");
  EXPECT_EQ(in.inputDate(), dateSerial(1997, 12, 22) + 0.25);
  EXPECT_THROW(in.inputDate(), TypeMismatch);
}

TEST(ListInput, AMissingFileRaises) {
  EXPECT_THROW(ListInput("/nonexistent/folder/file.csv"), FileNotFound);
}

TEST(PrintFile, WritesOneValueALineWithCrLf) {
  PrintFile out;
  out.print(5);
  out.print(int16_t{-1});
  out.print(12.5);
  out.print(QStringLiteral("HUNTER"));
  out.print(QString());
  out.printDate(dateSerial(1997, 12, 22) + 0.25);
  EXPECT_EQ(out.bytes(), QByteArray(" 5\r\n-1\r\n 12.5\r\nHUNTER\r\n\r\n12/22/1997 6:00:00 AM\r\n"));
}

TEST(PrintFile, AFailedCommitRaisesAndAGoodOneReplacesTheFile) {
  QTemporaryDir dir;
  const std::filesystem::path target = dir.path().toStdString() + "/save.VNG";
  std::ofstream(target) << "old";
  PrintFile out;
  out.print(1);
  EXPECT_THROW(out.commit(dir.path().toStdString() + "/missing-folder/save.VNG"), std::runtime_error);
  out.commit(target);
  std::ifstream in(target);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), " 1\r\n");
}
