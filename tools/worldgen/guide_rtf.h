// SPDX-License-Identifier: GPL-2.0-or-later
// Turns the guide's light markup into the Rich Text document the guide screen shows:
// "# " a title, "## " a heading, "- " a bulleted line, *italic* and **bold** inside lines,
// blank lines between paragraphs.
#pragma once

#include <QByteArray>
#include <QString>

namespace worldgen {

QByteArray guideRtf(const QString& markup);

}  // namespace worldgen
