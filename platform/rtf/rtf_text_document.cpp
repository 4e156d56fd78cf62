// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/rtf/rtf_text_document.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace platform::rtf {
namespace {

constexpr double kTwipsPerPixel = 15.0;

Qt::Alignment alignment(Align align) {
  switch (align) {
    case Align::Center: return Qt::AlignHCenter;
    case Align::Right: return Qt::AlignRight;
    case Align::Justify: return Qt::AlignJustify;
    case Align::Left: break;
  }
  return Qt::AlignLeft;
}

QTextBlockFormat blockFormat(const ParagraphFormat& p) {
  QTextBlockFormat f;
  f.setAlignment(alignment(p.align));
  f.setLeftMargin(p.leftIndent / kTwipsPerPixel);
  f.setRightMargin(p.rightIndent / kTwipsPerPixel);
  f.setTextIndent(p.firstIndent / kTwipsPerPixel);
  f.setTopMargin(p.spaceBefore / kTwipsPerPixel);
  f.setBottomMargin(p.spaceAfter / kTwipsPerPixel);
  return f;
}

QTextCharFormat charFormat(const CharFormat& c) {
  QTextCharFormat f;
  f.setFontWeight(c.bold ? QFont::Bold : QFont::Normal);
  f.setFontItalic(c.italic);
  f.setFontUnderline(c.underline);
  f.setFontPointSize(c.halfPoints / 2.0);
  return f;
}

}  // namespace

void fillTextDocument(const Document& document, QTextDocument& target) {
  target.clear();
  QTextCursor cursor(&target);
  bool first = true;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (first)
      cursor.setBlockFormat(blockFormat(paragraph.format));
    else
      cursor.insertBlock(blockFormat(paragraph.format));
    first = false;
    for (const Run& run : paragraph.runs) cursor.insertText(run.text, charFormat(run.format));
  }
}

}  // namespace platform::rtf
