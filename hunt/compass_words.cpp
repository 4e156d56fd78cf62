// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/compass_words.h"

#include <array>

namespace {

const std::array<const char*, 8> kDirections = {"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
const std::array<const char*, 5> kStrengths = {"Light", "Breezy", "Steady", "Gusty", "Strong"};

struct Sector {
  int lastDegree;
  const char* word;
};

// Whole degrees from south, the panorama's zero, round to west and back to south.
constexpr std::array<Sector, 9> kSectors = {{{22, "S"},
                                             {68, "SW"},
                                             {112, "W"},
                                             {158, "NW"},
                                             {202, "N"},
                                             {248, "NE"},
                                             {293, "E"},
                                             {338, "SE"},
                                             {360, "S"}}};

template <size_t N>
QString wordAt(const std::array<const char*, N>& words, int index) {
  if (index < 0 || index >= int(N)) return {};
  return QString::fromLatin1(words[size_t(index)]);
}

}  // namespace

QString compassWord(int32_t heading) {
  const int degrees = heading / 3600;
  for (const Sector& sector : kSectors)
    if (degrees <= sector.lastDegree) return QString::fromLatin1(sector.word);
  return {};
}

QString windDirectionWord(int direction) {
  return wordAt(kDirections, direction);
}

QString windStrengthWord(int strength) {
  return wordAt(kStrengths, strength);
}

QString windCaption(int direction, int strength) {
  return windDirectionWord(direction) + u' ' + windStrengthWord(strength);
}

int16_t nextWindDirection(int16_t direction) {
  return direction >= 7 ? 0 : int16_t(direction + 1);
}

int16_t nextWindStrength(int16_t strength) {
  return strength >= 4 ? 4 : int16_t(strength + 1);
}
