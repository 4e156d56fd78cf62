// SPDX-License-Identifier: GPL-2.0-or-later
// Reading Rich Text: what the guide uses, what other writers add, and damaged documents.
#include "platform/rtf/rtf_reader.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace {

using platform::rtf::Align;
using platform::rtf::Document;
using platform::rtf::readRtf;

Document read(const char* rtf) {
  const auto document = readRtf(QByteArray(rtf));
  EXPECT_TRUE(document.has_value()) << rtf;
  return document.value_or(Document{});
}

TEST(RtfReader, TextThatIsNotRichTextIsRefused) {
  EXPECT_FALSE(readRtf("Plain words"));
  EXPECT_FALSE(readRtf(""));
  EXPECT_FALSE(readRtf("{\\rt"));
  EXPECT_TRUE(readRtf("  \r\n{\\rtf1 x}"));
}

TEST(RtfReader, ParagraphsEndAtParAndAtTheDocumentsEnd) {
  const Document d = read("{\\rtf1\\ansi First\\par\nSecond\\par Third}");
  ASSERT_EQ(d.paragraphs.size(), 3u);
  EXPECT_EQ(d.text(), QStringLiteral("First\nSecond\nThird"));
  EXPECT_EQ(read("{\\rtf1 a\\par}").paragraphs.size(), 1u);
}

TEST(RtfReader, BoldItalicUnderlineAndSizeMakeRuns) {
  const Document d = read("{\\rtf1 plain \\b bold\\b0  \\i it\\i0  \\ul under\\ulnone  \\fs40 big}");
  const auto& runs = d.paragraphs.at(0).runs;
  ASSERT_EQ(runs.size(), 8u);
  EXPECT_EQ(runs[0].text, QStringLiteral("plain "));
  EXPECT_FALSE(runs[0].format.bold);
  EXPECT_EQ(runs[0].format.halfPoints, 24);
  EXPECT_EQ(runs[1].text, QStringLiteral("bold"));
  EXPECT_TRUE(runs[1].format.bold);
  EXPECT_TRUE(runs[3].format.italic);
  EXPECT_TRUE(runs[5].format.underline);
  EXPECT_EQ(runs[7].text, QStringLiteral("big"));
  EXPECT_EQ(runs[7].format.halfPoints, 40);
}

TEST(RtfReader, AGroupsFormatEndsWithTheGroup) {
  const Document d = read("{\\rtf1 a{\\b b{\\i c}d}e\\plain}");
  const auto& runs = d.paragraphs.at(0).runs;
  ASSERT_EQ(runs.size(), 5u);
  EXPECT_EQ(d.text(), QStringLiteral("abcde"));
  EXPECT_TRUE(runs[2].format.bold && runs[2].format.italic);
  EXPECT_TRUE(runs[3].format.bold && !runs[3].format.italic);
  EXPECT_FALSE(runs[4].format.bold);
}

TEST(RtfReader, ParagraphFormatsAreTakenAtTheParagraphsEnd) {
  const Document d = read(
      "{\\rtf1\\pard\\qc\\sb240\\sa120 Title\\par\\pard\\li360\\fi-240\\ri100 Item\\par\\pard\\qj\\qr "
      "R\\par}");
  ASSERT_EQ(d.paragraphs.size(), 3u);
  EXPECT_EQ(d.paragraphs[0].format.align, Align::Center);
  EXPECT_EQ(d.paragraphs[0].format.spaceBefore, 240);
  EXPECT_EQ(d.paragraphs[0].format.spaceAfter, 120);
  EXPECT_EQ(d.paragraphs[1].format.align, Align::Left);
  EXPECT_EQ(d.paragraphs[1].format.leftIndent, 360);
  EXPECT_EQ(d.paragraphs[1].format.firstIndent, -240);
  EXPECT_EQ(d.paragraphs[1].format.rightIndent, 100);
  EXPECT_EQ(d.paragraphs[2].format.align, Align::Right);
}

TEST(RtfReader, EscapesSymbolsAndUnicode) {
  const Document d = read(
      "{\\rtf1 \\{x\\}\\\\ caf\\'e9 \\'93q\\'94 \\u8212? \\uc2\\u8364 ab\\~\\bullet\\tab\\emdash\\line end}");
  const QString text = d.paragraphs.at(0).text();
  EXPECT_EQ(text, QStringLiteral("{x}\\ caf\u00e9 \u201cq\u201d \u2014 \u20ac\u00a0\u2022\t\u2014\u2028end"));
}

TEST(RtfReader, TablesPicturesAndStarredGroupsAreNotShown) {
  const Document d = read(
      "{\\rtf1{\\fonttbl{\\f0\\froman Times;}}{\\colortbl;\\red255\\green0\\blue0;}{\\stylesheet{\\s0 "
      "Normal;}}"
      "{\\info{\\title Secret}}{\\*\\generator Writer;}{\\pict\\pngblip 89504e47}Shown{\\*\\unknown "
      "hidden}.}");
  EXPECT_EQ(d.text(), QStringLiteral("Shown."));
}

TEST(RtfReader, BinaryDataIsSkippedByItsLength) {
  QByteArray rtf("{\\rtf1 a{\\*\\blob\\bin5 }}{\\x}b}");
  const auto d = readRtf(rtf);
  ASSERT_TRUE(d);
  EXPECT_EQ(d->text(), QStringLiteral("ab"));
  EXPECT_TRUE(readRtf("{\\rtf1 a\\bin99999999999999999999 xyz}"))
      << "a length past the end stops the reading";
}

TEST(RtfReader, DamagedDocumentsGiveWhatCouldBeRead) {
  EXPECT_EQ(read("{\\rtf1 unfinished \\b bold").text(), QStringLiteral("unfinished bold"));
  EXPECT_EQ(read("{\\rtf1 a}}}} after the end").text(), QStringLiteral("a"));
  EXPECT_EQ(read("{\\rtf1 x\\").text(), QStringLiteral("x"));
  EXPECT_EQ(read("{\\rtf1 x\\'4").text(), QStringLiteral("x"));
  EXPECT_EQ(read("{\\rtf1 \\fs999999999999999999 x}").paragraphs.at(0).runs.at(0).format.halfPoints, 3276);
  EXPECT_EQ(read("{\\rtf1 \\li-99999999 x\\par}").paragraphs.at(0).format.leftIndent, -31680);
  EXPECT_EQ(read("{\\rtf1 \\averyveryveryveryveryveryverylongcontrolwordindeed x}").text(),
            QStringLiteral("x"));
}

TEST(RtfReader, DeepNestingNeitherCrashesNorLosesTheText) {
  QByteArray rtf("{\\rtf1 ");
  rtf += QByteArray(100000, '{') + "\\b deep" + QByteArray(100000, '}') + " out}";
  const auto d = readRtf(rtf);
  ASSERT_TRUE(d);
  EXPECT_EQ(d->text(), QStringLiteral("deep out"));
  EXPECT_FALSE(d->paragraphs.at(0).runs.back().format.bold);
}

TEST(RtfReader, MangledBytesNeverCrashTheReader) {
  const QByteArray seed(
      "{\\rtf1\\ansi{\\fonttbl{\\f0 Times;}}\\pard\\qc\\b\\fs40 Title\\b0\\par\\pard\\li360\\fi-240 "
      "\\bullet  Item {\\i one}\\'e9\\u8212?\\par{\\*\\x y}\\bin3 abc end}");
  QRandomGenerator random(20261123);
  for (int round = 0; round < 3000; ++round) {
    QByteArray bytes = seed;
    const int changes = 1 + static_cast<int>(random.bounded(8));
    for (int i = 0; i < changes; ++i) {
      const auto at = static_cast<qsizetype>(random.bounded(static_cast<quint32>(bytes.size())));
      switch (random.bounded(3)) {
        case 0: bytes[at] = static_cast<char>(random.bounded(256)); break;
        case 1: bytes.remove(at, 1 + static_cast<qsizetype>(random.bounded(5))); break;
        default: bytes.insert(at, "{}\\'"[random.bounded(4)]); break;
      }
      if (bytes.isEmpty()) bytes = "{";
    }
    const auto d = readRtf(bytes);
    // Every character shown comes from at least one byte of the file.
    if (d) {
      EXPECT_LE(d->text().size(), bytes.size()) << "round " << round;
    }
  }
}

}  // namespace
