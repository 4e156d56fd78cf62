// SPDX-License-Identifier: GPL-2.0-or-later
// The message box the player sees when an error escapes an event handler: the runtime's
// overflow box for a 16-bit overflow, otherwise a message naming what failed.
#pragma once

#include <QString>

#include <exception>

namespace platform {

inline const QString kOverflowText = QStringLiteral("Run-time error '6': Overflow");
inline const QString kSubscriptText = QStringLiteral("Run-time error '9': Subscript out of range");

// Shows the box for `error`, caught while `where` ran (a screen and its event, say).
void ReportEscapedError(std::exception_ptr error, const QString& where);

}  // namespace platform
