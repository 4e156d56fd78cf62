// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/error_box.h"

#include "platform/dialogs.h"
#include "platform/runtime.h"

#include <QCoreApplication>

namespace platform {
namespace {

QString messageFor(std::exception_ptr error, const QString& where) {
  const QString failed =
      QStringLiteral("An error stopped %1:").arg(where.isEmpty() ? QStringLiteral("the game") : where);
  QString what;
  try {
    std::rethrow_exception(error);
  } catch (const rt::OverflowError&) {
    return kOverflowText;
  } catch (const rt::SubscriptOutOfRange&) {
    return kSubscriptText;
  } catch (const std::exception& thrown) {
    what = QString::fromUtf8(thrown.what());
  } catch (...) {
    what = QStringLiteral("an unknown error");
  }
  return failed + QStringLiteral("\n\r") + what + QStringLiteral("\n\rThe game goes on.");
}

}  // namespace

void ReportEscapedError(std::exception_ptr error, const QString& where) {
  // A box that itself fails must not take the game down with it.
  try {
    MsgBox(messageFor(error, where), Buttons::Ok, Icon::Critical, QCoreApplication::applicationName());
  } catch (...) {
  }
}

}  // namespace platform
