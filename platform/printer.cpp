// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printer.h"

#include "platform/files.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <functional>

namespace platform {
namespace {

using DrawPage = std::function<void(QPainter&, const QRect&)>;

// A name that no earlier print in the folder has taken.
QString freePdfPath(const QString& folder, const QString& documentName) {
  const QString stem = documentName.isEmpty() ? QStringLiteral("print") : documentName;
  const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
  QString path = QDir(folder).filePath(stem + u'-' + stamp + QStringLiteral(".pdf"));
  for (int n = 2; QFileInfo::exists(path); ++n)
    path = QDir(folder).filePath(QStringLiteral("%1-%2-%3.pdf").arg(stem, stamp).arg(n));
  return path;
}

void drawImage(QPainter& painter, const QRect& area, const QImage& image) {
  const QSize size = image.size().scaled(area.size(), Qt::KeepAspectRatio);
  const QRect target(area.topLeft() + QPoint((area.width() - size.width()) / 2, 0), size);
  painter.drawImage(target, image);
}

void drawText(QPainter& painter, const QRect& area, const QString& text) {
  QFont font = painter.font();
  font.setPointSize(11);
  painter.setFont(font);
  QString shown = text;
  shown.replace(QStringLiteral("\n\r"), QStringLiteral("\n")).replace(u'\r', u'\n');
  painter.drawText(area, Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, shown);
}

PrintResult printPage(QtPrinter::Target target, const QString& pdfFolder, const QString& documentName,
                      const DrawPage& draw) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(documentName);
  PrintResult result;
  if (target == QtPrinter::Target::PdfOnly || QPrinterInfo::defaultPrinter().isNull()) {
    const QString folder = QString::fromStdString(files().resolve(pdfFolder).string());
    if (!QDir().mkpath(folder)) return result;
    result.pdfPath = freePdfPath(folder, documentName);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(result.pdfPath);
  }
  QPainter painter;
  if (!painter.begin(&printer)) return {};
  // The painter's origin is the top left of the printable area.
  draw(painter, QRect(QPoint(0, 0), printer.pageLayout().paintRectPixels(printer.resolution()).size()));
  result.printed = painter.end();
  if (!result.printed) result.pdfPath.clear();
  return result;
}

}  // namespace

PrintResult QtPrinter::PrintImage(const QImage& page, const QString& documentName) {
  return printPage(target_, pdfFolder(), documentName,
                   [&](QPainter& painter, const QRect& area) { drawImage(painter, area, page); });
}

PrintResult QtPrinter::PrintText(const QString& text, const QString& documentName) {
  return printPage(target_, pdfFolder(), documentName,
                   [&](QPainter& painter, const QRect& area) { drawText(painter, area, text); });
}

template <>
std::unique_ptr<Printer> Service<Printer>::makeDefault() {
  return std::make_unique<QtPrinter>();
}

}  // namespace platform
