// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/media_log.h"

Q_LOGGING_CATEGORY(mediaLog, "platform.media", QtWarningMsg)
