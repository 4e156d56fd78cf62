// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_log.h"

Q_LOGGING_CATEGORY(panoramaLog, "platform.panorama", QtWarningMsg)
