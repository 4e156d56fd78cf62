// SPDX-License-Identifier: GPL-2.0-or-later
// What the guide says after a shot: where a miss went, and how clean a kill was.
#pragma once

#include <QString>

#include <cstdint>

// The miss direction's bits (1 left, 2 right, 4 high, 8 low) are tested in that order and the
// last set one is told, so a shot high and left is told as high.
QString missSpeechKey(int direction);

// A kill's quality as the guide judges it: muzzle-loaders and bows (weapons 5, 8, 9) never
// score above 7.
int16_t cappedQuality(int weapon, int16_t quality);
// "toomuch" (10 and above: the trophy is damaged), "almost" (8, 9), "goodhit".
QString killSpeechKey(int16_t quality);
// What the guide says about an offence: shot outcomes 6 "protect", 7 "notag", 8 "filltag".
QString offenceSpeechKey(int outcome);

inline bool damagesTrophy(int16_t quality) {
  return quality >= 10;
}
