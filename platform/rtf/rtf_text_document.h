// SPDX-License-Identifier: GPL-2.0-or-later
// Lays a read Rich Text document into the text document a rich-text widget shows.
#pragma once

#include "platform/rtf/rtf_document.h"

class QTextDocument;

namespace platform::rtf {

// Replaces the contents of `target` with `document`; twips become pixels at 96 dpi.
void fillTextDocument(const Document& document, QTextDocument& target);

}  // namespace platform::rtf
