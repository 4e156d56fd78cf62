// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/guide_rtf.h"

#include <QStringList>

namespace worldgen {

namespace {

QString escaped(const QString& text) {
  QString out;
  for (const QChar c : text) {
    if (c == u'\\' || c == u'{' || c == u'}')
      out += u'\\' + QString(c);
    else if (c.unicode() > 127)
      out += QStringLiteral("\\u%1?").arg(int(c.unicode()));
    else
      out += c;
  }
  return out;
}

// **bold** and *italic* spans of one line.
QString spans(const QString& line) {
  QString out;
  bool bold = false;
  bool italic = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (line.mid(i, 2) == QStringLiteral("**")) {
      out += bold ? QStringLiteral("\\b0 ") : QStringLiteral("\\b ");
      bold = !bold;
      ++i;
    } else if (line[i] == u'*') {
      out += italic ? QStringLiteral("\\i0 ") : QStringLiteral("\\i ");
      italic = !italic;
    } else {
      out += escaped(line.mid(i, 1));
    }
  }
  return out;
}

QString paragraph(const QString& line) {
  if (line.startsWith(QStringLiteral("## ")))
    return QStringLiteral("\\pard\\sb240\\sa120\\b\\fs28 ") + spans(line.mid(3)) +
           QStringLiteral("\\b0\\fs22\\par\n");
  if (line.startsWith(QStringLiteral("# ")))
    return QStringLiteral("\\pard\\qc\\sa240\\b\\fs40 ") + spans(line.mid(2)) +
           QStringLiteral("\\b0\\fs22\\par\n");
  if (line.startsWith(QStringLiteral("- ")))
    return QStringLiteral("\\pard\\li360\\fi-240\\sa60 \\bullet  ") + spans(line.mid(2)) +
           QStringLiteral("\\par\n");
  return QStringLiteral("\\pard\\sa120 ") + spans(line) + QStringLiteral("\\par\n");
}

}  // namespace

QByteArray guideRtf(const QString& markup) {
  QString rtf =
      QStringLiteral("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\froman Times New Roman;}}\n\\f0\\fs22\n");
  for (const QString& line : markup.split(u'\n'))
    if (!line.trimmed().isEmpty()) rtf += paragraph(line.trimmed());
  rtf += QStringLiteral("}\n");
  return rtf.toLatin1();
}

}  // namespace worldgen
