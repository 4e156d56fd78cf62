// SPDX-License-Identifier: GPL-2.0-or-later
// The shell folder's logging category, quiet unless QT_LOGGING_RULES turns it on.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(shellLog)
