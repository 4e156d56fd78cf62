// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/rtf/rtf_document.h"

#include <QStringList>

namespace platform::rtf {

QString Paragraph::text() const {
  QString all;
  for (const Run& run : runs) all += run.text;
  return all;
}

QString Document::text() const {
  QStringList lines;
  for (const Paragraph& p : paragraphs) lines << p.text();
  return lines.join(u'\n');
}

}  // namespace platform::rtf
