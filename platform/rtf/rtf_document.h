// SPDX-License-Identifier: GPL-2.0-or-later
// A Rich Text document as the game's guide needs it: paragraphs with their alignment,
// indents and spacing, made of runs of text in bold, italic, underline and a size.
#pragma once

#include <QString>

#include <vector>

namespace platform::rtf {

struct CharFormat {
  bool bold = false;
  bool italic = false;
  bool underline = false;
  int halfPoints = 24;  // RTF sizes are in half points; 24 is 12 pt
  bool operator==(const CharFormat&) const = default;
};

struct Run {
  QString text;
  CharFormat format;
};

enum class Align { Left, Center, Right, Justify };

// Indents and spacing in twips (1/20 pt), as RTF writes them.
struct ParagraphFormat {
  Align align = Align::Left;
  int leftIndent = 0;
  int rightIndent = 0;
  int firstIndent = 0;
  int spaceBefore = 0;
  int spaceAfter = 0;
};

struct Paragraph {
  std::vector<Run> runs;
  ParagraphFormat format;
  QString text() const;
};

struct Document {
  std::vector<Paragraph> paragraphs;
  QString text() const;  // paragraphs joined with line feeds
};

}  // namespace platform::rtf
