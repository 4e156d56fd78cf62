// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/logging.h"

Q_LOGGING_CATEGORY(lodgeLog, "lodge", QtWarningMsg)
