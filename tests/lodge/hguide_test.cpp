// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting guide shows the world's guide document, and a missing one is reported by its box.
#include "lodge/hguide.h"

#include "lodge_fixture.h"
#include "platform/picture_box.h"
#include "platform/rtf/rich_text_box.h"

#include <QTextBlock>
#include <QTextDocument>

namespace {

class HguideTest : public lodge_testing::LodgeFixture {};

TEST_F(HguideTest, ShowsTheGuideWithItsEmphasis) {
  drive.write("data/safety.rtf",
              "{\\rtf1\\ansi{\\fonttbl{\\f0 Times;}}\\pard\\qc\\b\\fs40 Guide\\b0\\par\n"
              "\\pard Treat every firearm as \\i loaded\\i0 .\\par}");
  Hguide guide;
  guide.Form_Load();
  EXPECT_EQ(guide.RichTextBox1->fileName(), QStringLiteral("D:\\data\\safety.rtf"));
  EXPECT_EQ(guide.RichTextBox1->toPlainText(), QStringLiteral("Guide\nTreat every firearm as loaded."));
  const QTextBlock title = guide.RichTextBox1->document()->firstBlock();
  EXPECT_EQ(title.blockFormat().alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
  EXPECT_EQ(title.begin().fragment().charFormat().fontWeight(), QFont::Bold);
  EXPECT_TRUE(guide.RichTextBox1->isReadOnly());
  EXPECT_EQ(guide.Background->picturePath(), QStringLiteral("D:\\art\\Phguide.bmp"));
}

TEST_F(HguideTest, AMissingGuideIsReportedInTheBoxWithoutAMessage) {
  Hguide guide;
  guide.Form_Load();
  EXPECT_TRUE(guide.RichTextBox1->toPlainText().contains(QStringLiteral("D:\\data\\safety.rtf")));
  EXPECT_TRUE(dialogs->shown().empty());
}

}  // namespace
