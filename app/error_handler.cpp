// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/error_handler.h"

#include "platform/error_box.h"

#include <QMetaEnum>

namespace {

// "Catalog Buybutton (MouseButtonRelease)": enough to find the handler that failed.
QString describe(const QObject* receiver, const QEvent* event) {
  const char* type = QMetaEnum::fromType<QEvent::Type>().valueToKey(event->type());
  QString text = QString::fromLatin1(receiver->metaObject()->className());
  if (!receiver->objectName().isEmpty()) text += u' ' + receiver->objectName();
  return text +
         QStringLiteral(" (%1)").arg(type ? QString::fromLatin1(type) : QString::number(event->type()));
}

}  // namespace

bool GameApplication::notify(QObject* receiver, QEvent* event) {
  // Errors are raised before anything is stored, so dropping the event leaves the game whole.
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    platform::ReportEscapedError(std::current_exception(), describe(receiver, event));
    return true;
  }
}
