// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/logging.h"

Q_LOGGING_CATEGORY(huntLog, "hunt", QtWarningMsg)
