// SPDX-License-Identifier: GPL-2.0-or-later
// Prints a picture of a screen, or a page of text, on the default printer; where the system
// has no printer the page becomes a PDF in a folder the game chooses.
#pragma once

#include "platform/service.h"

#include <QImage>
#include <QString>

namespace platform {

struct PrintResult {
  bool printed = false;  // false: nothing came out, the caller reports it
  QString pdfPath;       // host path of the PDF written in place of a printer, else empty
};

class Printer {
 public:
  virtual ~Printer() = default;
  // One page: the image scaled to fit it, keeping its shape.
  virtual PrintResult PrintImage(const QImage& page, const QString& documentName) = 0;
  // One page of text, wrapped to the page width.
  virtual PrintResult PrintText(const QString& text, const QString& documentName) = 0;

  // The game folder ("C:\Hunt\saves\") where a PDF goes when there is no printer.
  void setPdfFolder(const QString& gameFolder) { pdfFolder_ = gameFolder; }
  const QString& pdfFolder() const { return pdfFolder_; }

 private:
  QString pdfFolder_;
};

// QPrinter on the system's default printer, or a PDF when there is none (or when asked to
// write PDFs only, as a machine without printers does).
class QtPrinter final : public Printer {
 public:
  enum class Target { DefaultPrinter, PdfOnly };
  explicit QtPrinter(Target target = Target::DefaultPrinter) : target_(target) {}
  PrintResult PrintImage(const QImage& page, const QString& documentName) override;
  PrintResult PrintText(const QString& text, const QString& documentName) override;

 private:
  Target target_;
};

template <>
std::unique_ptr<Printer> Service<Printer>::makeDefault();

inline Printer& printer() {
  return Service<Printer>::get();
}

}  // namespace platform
