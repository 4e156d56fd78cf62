// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/shot_speech.h"

#include <array>

QString missSpeechKey(int direction) {
  struct Bit {
    int mask;
    const char* key;
  };
  constexpr std::array<Bit, 4> kBits = {{{1, "leftmiss"}, {2, "rtmiss"}, {4, "highmiss"}, {8, "lowmiss"}}};
  QString key;
  if (direction == 0 || direction > 15) key = QStringLiteral("anymiss");
  for (const Bit& bit : kBits)
    if (direction & bit.mask) key = QString::fromLatin1(bit.key);
  return key;
}

int16_t cappedQuality(int weapon, int16_t quality) {
  const bool gentle = weapon == 5 || weapon == 8 || weapon == 9;
  return gentle && quality > 7 ? int16_t(7) : quality;
}

QString killSpeechKey(int16_t quality) {
  if (quality >= 10) return QStringLiteral("toomuch");
  if (quality >= 8) return QStringLiteral("almost");
  return QStringLiteral("goodhit");
}

QString offenceSpeechKey(int outcome) {
  switch (outcome) {
    case 6: return QStringLiteral("protect");
    case 7: return QStringLiteral("notag");
    case 8: return QStringLiteral("filltag");
    default: return {};
  }
}
