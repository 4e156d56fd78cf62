// SPDX-License-Identifier: GPL-2.0-or-later
// The words the hunting screen shows for where the hunter looks and where the wind blows.
#pragma once

#include <QString>

#include <cstdint>

// The eight-point word for a panorama heading in 1/3600 degree. The panorama's zero heading
// looks south.
QString compassWord(int32_t heading);

// Wind directions 0..7 from "N" clockwise, strengths 0..4 from "Light"; other values are empty.
QString windDirectionWord(int direction);
QString windStrengthWord(int strength);
// The wind button's caption: direction, a blank, strength.
QString windCaption(int direction, int strength);

// One step of a wind shift: the direction turns a point clockwise (7 wraps to 0); the strength
// rises by one and holds at the strongest.
int16_t nextWindDirection(int16_t direction);
int16_t nextWindStrength(int16_t strength);
