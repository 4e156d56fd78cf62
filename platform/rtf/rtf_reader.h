// SPDX-License-Identifier: GPL-2.0-or-later
// Reads Rich Text into a document: groups, paragraphs, bold, italic, underline, sizes,
// alignment, indents, escapes and Unicode. Tables of fonts, colours, styles and pictures are
// passed over. A damaged document gives what could be read; nothing in it can crash the reader.
#pragma once

#include "platform/rtf/rtf_document.h"

#include <QByteArray>

#include <optional>

namespace platform::rtf {

// None when the bytes do not begin as Rich Text ("{\rtf").
std::optional<Document> readRtf(const QByteArray& bytes);

}  // namespace platform::rtf
