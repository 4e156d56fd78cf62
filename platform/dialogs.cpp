// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs.h"

#include <QApplication>
#include <QMessageBox>

namespace platform {
namespace {

QMessageBox::Icon qtIcon(Icon icon) {
  switch (icon) {
    case Icon::Information: return QMessageBox::Information;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Critical: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::None: break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons qtButtons(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case Buttons::Ok: break;
  }
  return QMessageBox::Ok;
}

Answer answerOf(int pressed) {
  switch (pressed) {
    case QMessageBox::Cancel: return Answer::Cancel;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return Answer::Ok;
  }
}

}  // namespace

Answer QtDialogs::MsgBox(const MessageBox& box) {
  // A line feed followed by a carriage return shows as one line break.
  QString shown = box.text;
  shown.replace(QStringLiteral("\n\r"), QStringLiteral("\n")).replace(u'\r', u'\n');
  QMessageBox dialog(qtIcon(box.icon), box.title, shown, qtButtons(box.buttons),
                     QApplication::activeWindow());
  const int pressed = dialog.exec();
  if (pressed == QMessageBox::Escape || pressed == 0)
    return box.buttons == Buttons::Ok ? Answer::Ok
                                      : (box.buttons == Buttons::YesNo ? Answer::No : Answer::Cancel);
  return answerOf(pressed);
}

template <>
std::unique_ptr<Dialogs> Service<Dialogs>::makeDefault() {
  return std::make_unique<QtDialogs>();
}

}  // namespace platform
