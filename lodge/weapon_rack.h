// SPDX-License-Identifier: GPL-2.0-or-later
// The gun rack's pages and the picture code of each weapon, which the shooting scenes draw.
#pragma once

#include <QString>

#include <cstdint>

namespace lodge {

// Pages run 1..9, one weapon each, and wrap at both ends.
int16_t nextRackPage(int16_t page);
int16_t previousRackPage(int16_t page);
// "rifle0", "bolt0", ... for weapons 1..9, the same in both world groups; "" otherwise.
QString weaponPictureCode(int weapon);

}  // namespace lodge
