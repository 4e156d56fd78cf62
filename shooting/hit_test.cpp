// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/hit_test.h"

#include "platform/runtime.h"

namespace {

// What a hit on a zone of this code is before its quality is judged; codes of 10 and above
// leave the result as it stood, which may be a body zone's miss direction or the last shot's.
int16_t resultForCode(int16_t code, int16_t previous) {
  if (code < 8) return kHitBody;
  if (code == 8) return kHitZone8;
  if (code == 9) return kHitWounding;
  return previous;
}

int16_t judgedResult(int16_t result, int16_t quality, int16_t weaponRating,
                     const std::function<double()>& rnd) {
  if (quality > 1 && quality < 5) result = kHitWounding;
  if (quality == 0 || quality == 1) result = kHitPoor;
  // A hopeless shot goes wide in a random direction.
  if (quality < 0) result = rt::to16(rt::Int(15 * rnd() + 1));
  if (weaponRating == kUnsuitedWeaponRating) result = kHitUnsuitedWeapon;
  return result;
}

}  // namespace

int zoneOutcode(const HitZone& zone, QPoint offset, int scale) {
  int code = 0;
  if (offset.x() < scale * zone.left) code += 1;
  if (offset.x() > scale * zone.right) code += 2;
  if (offset.y() < scale * zone.top) code += 4;
  if (offset.y() > scale * zone.bottom) code += 8;
  return code;
}

int16_t shotQuality(const ShotFactors& factors, int16_t zoneValue) {
  const double sum = factors.clothesScore / 10.0 + zoneValue + factors.weaponRating;
  return rt::to16(rt::Int(sum / 3) - factors.skillLevel);
}

void scoreShot(const HitZoneRecord& record, QPoint offset, int scale, const ShotFactors& factors,
               ShotMarks& marks, const std::function<double()>& rnd) {
  int outcode = 0;
  int last = 0;
  for (last = 0; last < kZoneCount; ++last) {
    const HitZone& zone = record[last];
    if (zone.code > 0) {
      outcode = zoneOutcode(zone, offset, scale);
      if (zone.code <= 7) marks.hitZoneResult = static_cast<int16_t>(outcode);
    }
    // An empty first zone stops here too and counts as hit.
    if (outcode == 0) break;
  }
  if (outcode != 0) return;
  const int16_t code = record[last].code;
  marks.hitZoneResult = resultForCode(code, marks.hitZoneResult);
  marks.zoneValue = code;
  marks.shotQuality = shotQuality(factors, code);
  marks.hitZoneResult = judgedResult(marks.hitZoneResult, marks.shotQuality, factors.weaponRating, rnd);
}
