// SPDX-License-Identifier: GPL-2.0-or-later
// Reads Rich Text into a document: groups, paragraphs, bold, italic, underline, sizes,
// alignment, indents, escapes and Unicode. Tables of fonts, colours, styles and pictures are
// passed over. A damaged document gives what could be read; nothing in it can crash the reader.
#pragma once

#include "platform/rtf/rtf_document.h"

#include <QByteArray>

#include <optional>

namespace platform::rtf {

// What a paragraph and a document hold at most: a longer paragraph goes on in a new one and
// a longer document is cut, so laying out what was read stays quick whatever the file.
inline constexpr qsizetype kMaxParagraphChars = 4096;
inline constexpr qsizetype kMaxDocumentChars = 1 << 18;

// None when the bytes do not begin as Rich Text ("{\rtf").
std::optional<Document> readRtf(const QByteArray& bytes);
// Plain text as paragraphs, one a line, with the same bounds.
Document plainDocument(const QString& text);

}  // namespace platform::rtf
