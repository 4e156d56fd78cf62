// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/runtime.h"
#include "support/qt_printers.h"

#include <gtest/gtest.h>

using namespace rt;

TEST(NumberText, PutsABlankWhereTheSignOfANonNegativeNumberWouldStand) {
  EXPECT_EQ(numberText(-1), "-1");
  EXPECT_EQ(numberText(0), " 0");
  EXPECT_EQ(numberText(32767), " 32767");
  EXPECT_EQ(numberText(int16_t{-32768}), "-32768");
  EXPECT_EQ(numberText(12.5), " 12.5");
  EXPECT_EQ(numberText(-0.25), "-0.25");
  EXPECT_EQ(numberText(-0.0), " 0");
  EXPECT_EQ(numberText(1.0 / 3.0), " 0.333333333333333");
}

TEST(NumberText, PlainNumbersHaveNoBlank) {
  EXPECT_EQ(plainNumber(250), "250");
  EXPECT_EQ(plainNumber(7.25), "7.25");
}

TEST(IntPart, RoundsTowardMinusInfinity) {
  EXPECT_EQ(Int(2.9), 2);
  EXPECT_EQ(Int(-0.5), -1);
  EXPECT_EQ(Int(-2.0), -2);
  EXPECT_EQ(Int(-9.999), -10);
}

TEST(Checked16, RaisesBeforeAValueLeavesTheRange) {
  EXPECT_EQ(add16(32766, 1), 32767);
  EXPECT_THROW(add16(32767, 1), OverflowError);
  EXPECT_THROW(sub16(-32768, 1), OverflowError);
  EXPECT_THROW(mul16(200, 200), OverflowError);
  EXPECT_EQ(mul16(-128, 256), -32768);
}

TEST(Checked16, StoresNothingWhenItRaises) {
  int16_t money = 32000;
  EXPECT_THROW(money = add16(money, 1000), OverflowError);
  EXPECT_EQ(money, 32000);
}

TEST(Checked16, ConversionRoundsHalvesToEven) {
  EXPECT_EQ(to16(462.5), 462);
  EXPECT_EQ(to16(463.5), 464);
  EXPECT_EQ(to16(-2.5), -2);
  EXPECT_EQ(to16(32767.4), 32767);
  EXPECT_THROW(to16(32767.5), OverflowError);
  EXPECT_THROW(to16(std::nan("")), OverflowError);
}

TEST(ParseNumber, AcceptsBlanksAndRejectsText) {
  EXPECT_EQ(parseNumber(" 5"), 5);
  EXPECT_EQ(parseNumber("-3 "), -3);
  EXPECT_EQ(parseNumber(""), 0);
  EXPECT_EQ(parseNumber("2.75"), 2.75);
  EXPECT_THROW(parseNumber("abc"), TypeMismatch);
  EXPECT_THROW(parseNumber("5x"), TypeMismatch);
}

TEST(FormatFixed2, AlwaysTwoDecimals) {
  EXPECT_EQ(formatFixed2(0), "0.00");
  EXPECT_EQ(formatFixed2(12.5), "12.50");
  EXPECT_EQ(formatFixed2(0.125), "0.13");
  EXPECT_EQ(formatFixed2(-3.456), "-3.46");
}
