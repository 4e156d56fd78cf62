// SPDX-License-Identifier: GPL-2.0-or-later
// The file service's logging category: names refused and writes that failed or were mended.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(filesLog)
