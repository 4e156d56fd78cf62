// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/file_names.h"

#include <algorithm>

namespace {

bool isSaveNameChar(QChar c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u' ';
}

bool isHunterNameChar(QChar c) {
  return c != u',' && c != u'"' && !c.isNonCharacter() && c.category() != QChar::Other_Control &&
         c.category() != QChar::Separator_Line && c.category() != QChar::Separator_Paragraph;
}

}  // namespace

QString saveNameFrom(const QString& text) {
  QString name;
  for (const QChar c : text) {
    if (name.size() >= kMaxSaveNameLength) break;
    const QChar raised = (c >= u'a' && c <= u'z') ? c.toUpper() : c;
    if (isSaveNameChar(raised)) name += raised;
  }
  return name;
}

bool isSaveName(const QString& name) {
  return !name.isEmpty() && name.size() <= kMaxSaveNameLength &&
         std::all_of(name.begin(), name.end(), isSaveNameChar);
}

QString hunterNameFrom(const QString& text) {
  QString name;
  for (const QChar c : text)
    if (isHunterNameChar(c)) name += c;
  // A pair of UTF-16 halves is never cut apart.
  int cut = std::min<int>(static_cast<int>(name.size()), kMaxHunterNameLength);
  if (cut > 0 && cut < name.size() && name[cut - 1].isHighSurrogate()) --cut;
  return name.left(cut);
}
