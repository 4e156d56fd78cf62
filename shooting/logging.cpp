// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/logging.h"

Q_LOGGING_CATEGORY(shootingLog, "shooting", QtWarningMsg)
