// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files_log.h"

Q_LOGGING_CATEGORY(filesLog, "platform.files", QtWarningMsg)
