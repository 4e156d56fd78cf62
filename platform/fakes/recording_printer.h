// SPDX-License-Identifier: GPL-2.0-or-later
// A printer that prints nothing: it keeps every page it is given and answers a chosen result.
#pragma once

#include "platform/printer.h"

#include <QList>
#include <QStringList>

namespace platform {

class RecordingPrinter final : public Printer {
 public:
  explicit RecordingPrinter(PrintResult result = {true, {}}) : result_(std::move(result)) {}
  PrintResult PrintImage(const QImage& page, const QString& documentName) override {
    images_ << page;
    names_ << documentName;
    return result_;
  }
  PrintResult PrintText(const QString& text, const QString& documentName) override {
    texts_ << text;
    names_ << documentName;
    return result_;
  }
  const QList<QImage>& images() const { return images_; }
  const QStringList& texts() const { return texts_; }
  const QStringList& names() const { return names_; }

 private:
  PrintResult result_;
  QList<QImage> images_;
  QStringList texts_, names_;
};

}  // namespace platform
