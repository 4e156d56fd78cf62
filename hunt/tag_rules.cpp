// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/tag_rules.h"

#include "platform/runtime.h"

bool huntSuccessful(const TagStates& tags) {
  for (int s = 1; s < kTagCount; ++s)
    if ((tags[s] > kTagHeld && tags[s] < 138) || tags[s] == kTagFilled) return true;
  return false;
}

bool anyTagOpen(const TagStates& tags) {
  for (int s = 1; s < kTagCount; ++s)
    if (tags[s] > kTagFilled && tags[s] < kTagAbsent) return true;
  return false;
}

int16_t tagAfterKill(int16_t tag, int16_t limit) {
  const int16_t raised = rt::add16(tag, 1);
  return raised - kTagHeld == limit ? kTagFilled : raised;
}

QString targetClassOf(int weapon) {
  if (weapon >= 1 && weapon <= 4) return QStringLiteral("3");
  if (weapon == 5) return QStringLiteral("0");
  if (weapon == 6 || weapon == 7) return QStringLiteral("2");
  if (weapon == 8 || weapon == 9) return QStringLiteral("1");
  return {};
}

QString guideKeyForQuarry(int species) {
  switch (species) {
    case 6:
    case 8:
    case 12:
    case 16: return QStringLiteral("smallg");
    case 7:
    case 13:
    case 14:
    case 15: return QStringLiteral("mediumg");
    case 5:
    case 9:
    case 11: return QStringLiteral("largeg");
    default: return {};
  }
}
