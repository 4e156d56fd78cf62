// SPDX-License-Identifier: GPL-2.0-or-later
// Where a shot at a clip struck: the click is tested against the zones of the time slice's
// record, and the zone hit, the hunter's clothing, the weapon and the skill level decide how
// good the hit was.
#pragma once

#include "shooting/hit_zone_file.h"

#include <QPoint>

#include <cstdint>
#include <functional>

// Zone codes: 1..7 body, 8 and 9 special, 10 and above further zones.
inline constexpr int16_t kHitBody = 64;
inline constexpr int16_t kHitZone8 = 16;
inline constexpr int16_t kHitWounding = -32;
inline constexpr int16_t kHitPoor = -128;
inline constexpr int16_t kHitUnsuitedWeapon = -254;
inline constexpr int16_t kUnsuitedWeaponRating = -10;

// The shared values the hit test reads.
struct ShotFactors {
  int16_t clothesScore = 0;
  int16_t weaponRating = 0;
  int16_t skillLevel = 0;
};

// The shared values the hit test writes; each keeps its old value where the test sets none.
struct ShotMarks {
  int16_t hitZoneResult = 0;
  int16_t zoneValue = 0;
  int16_t shotQuality = 0;
};

// 1 left of the zone, 2 right, 4 above, 8 below; 0 inside. `offset` is the click less the
// clip's origin, in screen pixels; the zone grows with the display scale. Its edges are inside.
int zoneOutcode(const HitZone& zone, QPoint offset, int scale);

// Tests the click against `record` and scores the zone hit into `marks`. Draws from `rnd` only
// for a quality below 0. Throws rt::OverflowError when the quality does not fit 16 bits, after
// storing what came before it.
void scoreShot(const HitZoneRecord& record, QPoint offset, int scale, const ShotFactors& factors,
               ShotMarks& marks, const std::function<double()>& rnd);

// The quality figure of a hit on a zone of code `zoneValue`.
int16_t shotQuality(const ShotFactors& factors, int16_t zoneValue);
