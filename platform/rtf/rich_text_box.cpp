// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/rtf/rich_text_box.h"

#include "platform/files.h"
#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_text_document.h"

#include <QFile>

namespace platform {
namespace {

// A guide is a few pages; anything this size is not one and is not read whole.
constexpr qint64 kLargestDocument = 32 * 1024 * 1024;
constexpr int kMargin = 12;

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  document()->setDocumentMargin(kMargin);
}

bool RichTextBox::setFileName(const QString& gamePath) {
  fileName_ = gamePath;
  QFile file(QString::fromStdString(files().resolve(gamePath).string()));
  if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestDocument) {
    showProblem(QStringLiteral("The file ") + gamePath + QStringLiteral(" could not be opened."));
    return false;
  }
  const QByteArray bytes = file.readAll();
  const auto document = rtf::readRtf(bytes);
  rtf::fillTextDocument(document ? *document : rtf::plainDocument(QString::fromLatin1(bytes)),
                        *this->document());
  moveCursor(QTextCursor::Start);
  return true;
}

void RichTextBox::showProblem(const QString& text) {
  rtf::Document note;
  note.paragraphs.push_back({{{text, {.italic = true}}}, {}});
  rtf::fillTextDocument(note, *document());
}

}  // namespace platform
