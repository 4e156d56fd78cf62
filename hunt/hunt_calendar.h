// SPDX-License-Identifier: GPL-2.0-or-later
// The hunt's week: when a day ends, which morning follows it, and when the hunt is over.
// The week is fixed, the one before the new year of 1997.
#pragma once

#include "platform/datetime.h"

// A day ends at the first advance that reaches seven in the evening.
bool dayHasEnded(rt::DateTime clock);
// Six in the morning after the day of `clock`, Monday to Friday; any other day is unchanged.
rt::DateTime nextMorning(rt::DateTime clock);
// The hunt is over once the clock reaches Saturday.
bool isLastDay(rt::DateTime clock);
