// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/logging.h"

Q_LOGGING_CATEGORY(shellLog, "shell", QtWarningMsg)
