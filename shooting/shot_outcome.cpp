// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/shot_outcome.h"

#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shooting/hit_test.h"

namespace {

bool woundingOrPoor(int16_t result) {
  return result == kHitPoor || result == kHitWounding;
}

int16_t missOutcome(int16_t outcome, int16_t curAnimal, int16_t& result, const OutcomeDraw& draw) {
  // A turkey is too small to carry a poor or wounding hit away: it is simply missed.
  if (curAnimal == kTurkey && woundingOrPoor(result)) result = 0;
  if (result >= 0 && result <= 15) outcome = kCleanMiss;
  if (woundingOrPoor(result)) {
    draw.reseed();
    if (rt::Int(100 * draw.rnd()) < 50) {
      result = 0;
      outcome = kCleanMiss;
    }
  }
  if (result == kHitPoor) outcome = kPoorHitRunsOff;
  if (result == kHitWounding) outcome = kWoundedRunsOff;
  if (result == kHitUnsuitedWeapon) outcome = kUnsuitedWeapon;
  return outcome;
}

}  // namespace

int16_t shotOutcome(int16_t previous, int16_t curAnimal, int16_t tagState, int16_t& hitZoneResult,
                    const OutcomeDraw& draw) {
  int16_t outcome = previous;
  if (hitZoneResult <= 15) {
    outcome = missOutcome(outcome, curAnimal, hitZoneResult, draw);
  } else {
    if (hitZoneResult == kHitBody) outcome = kBodyHit;
    if (hitZoneResult == kHitZone8) outcome = kZone8Hit;
  }
  if (curAnimal >= 0 && curAnimal < kFirstNonGameAnimal) {
    if (tagState == kTagNone) outcome = kNoTagHeld;
    if (tagState == kTagFilled) outcome = kTagAlreadyFilled;
  }
  if (curAnimal >= kFirstNonGameAnimal && curAnimal < kFirstProtectedAnimal) outcome = kNonGameAnimal;
  if (curAnimal >= kFirstProtectedAnimal) outcome = kProtectedAnimal;
  return outcome;
}
