// SPDX-License-Identifier: GPL-2.0-or-later
// The rich-text box: loading a document by its game path and reporting what it cannot load.
#include "platform/rtf/rich_text_box.h"

#include "platform/rtf/rtf_reader.h"
#include "support/temp_drive.h"

#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

class RichTextBoxTest : public ::testing::Test {
 protected:
  testing_support::TempDrive drive{u'D'};
  platform::RichTextBox box;
};

TEST_F(RichTextBoxTest, LoadsADocumentWithItsFormatsAndStartsAtTheTop) {
  drive.write("data/Guide.RTF", "{\\rtf1\\pard\\qc{\\b\\fs40 Title}\\par\\pard\\li720 {\\i body} text\\par}");
  ASSERT_TRUE(box.setFileName(QStringLiteral("D:\\data\\guide.rtf")));
  EXPECT_EQ(box.toPlainText(), QStringLiteral("Title\nbody text"));
  const QTextBlock title = box.document()->firstBlock();
  EXPECT_EQ(title.blockFormat().alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
  const QTextCharFormat big = title.begin().fragment().charFormat();
  EXPECT_EQ(big.fontWeight(), QFont::Bold);
  EXPECT_DOUBLE_EQ(big.fontPointSize(), 20.0);
  const QTextBlock body = title.next();
  EXPECT_DOUBLE_EQ(body.blockFormat().leftMargin(), 48.0) << "720 twips are 48 pixels";
  EXPECT_TRUE(body.begin().fragment().charFormat().fontItalic());
  EXPECT_EQ(box.textCursor().position(), 0);
}

TEST_F(RichTextBoxTest, AMissingFileIsReportedInTheBox) {
  EXPECT_FALSE(box.setFileName(QStringLiteral("D:\\data\\safety.rtf")));
  EXPECT_EQ(box.toPlainText(), QStringLiteral("The file D:\\data\\safety.rtf could not be opened."));
  EXPECT_EQ(box.fileName(), QStringLiteral("D:\\data\\safety.rtf"));
}

TEST_F(RichTextBoxTest, AFileThatIsNotRichTextIsShownAsItIs) {
  drive.write("data/notes.rtf", "Just words,\nno markup.");
  ASSERT_TRUE(box.setFileName(QStringLiteral("D:\\data\\notes.rtf")));
  EXPECT_EQ(box.toPlainText(), QStringLiteral("Just words,\nno markup."));
}

TEST_F(RichTextBoxTest, LoadingAgainReplacesTheDocument) {
  drive.write("data/a.rtf", "{\\rtf1 first}");
  drive.write("data/b.rtf", "{\\rtf1 second}");
  box.setFileName(QStringLiteral("D:\\data\\a.rtf"));
  box.setFileName(QStringLiteral("D:\\data\\b.rtf"));
  EXPECT_EQ(box.toPlainText(), QStringLiteral("second"));
}

// A document of one 8 MB line: the box holds short paragraphs, and only the start of it.
TEST_F(RichTextBoxTest, AHugeSingleLineIsCutIntoShortParagraphs) {
  const QByteArray words = QByteArray("deer ").repeated(8 * 1024 * 1024 / 5);
  for (const QByteArray& bytes : {"{\\rtf1 " + words + "}", words}) {
    drive.write("data/huge.rtf", bytes);
    ASSERT_TRUE(box.setFileName(QStringLiteral("D:\\data\\huge.rtf")));
    const QTextDocument& doc = *box.document();
    EXPECT_LE(doc.characterCount(), platform::rtf::kMaxDocumentChars + doc.blockCount());
    EXPECT_GT(doc.blockCount(), 1);
    for (QTextBlock block = doc.firstBlock(); block.isValid(); block = block.next())
      ASSERT_LE(block.length(), platform::rtf::kMaxParagraphChars + 1);
    EXPECT_TRUE(doc.firstBlock().text().startsWith(QStringLiteral("deer deer")));
  }
}

}  // namespace
