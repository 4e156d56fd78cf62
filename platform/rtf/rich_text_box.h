// SPDX-License-Identifier: GPL-2.0-or-later
// A read-only rich-text box that loads a Rich Text file by its game path. A missing or
// unreadable file is reported inside the box itself; a file that is not Rich Text is shown
// as plain text.
#pragma once

#include <QTextEdit>

namespace platform {

class RichTextBox : public QTextEdit {
 public:
  explicit RichTextBox(QWidget* parent = nullptr);

  // Loads and shows the file; returns whether it could be read.
  bool setFileName(const QString& gamePath);
  const QString& fileName() const { return fileName_; }

 private:
  void showProblem(const QString& text);

  QString fileName_;
};

}  // namespace platform
