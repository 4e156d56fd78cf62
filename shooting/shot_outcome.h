// SPDX-License-Identifier: GPL-2.0-or-later
// The outcome code the video shot hands to the aftermath: what the hit-zone result, the
// species and its tag make of the shot.
#pragma once

#include <cstdint>
#include <functional>

enum ShotOutcomeCode : int16_t {
  kNoShot = 0,
  kCleanMiss = 1,
  kBodyHit = 2,
  kZone8Hit = 3,
  kWoundedRunsOff = 4,
  kNonGameAnimal = 5,
  kProtectedAnimal = 6,
  kNoTagHeld = 7,
  kTagAlreadyFilled = 8,
  kUnsuitedWeapon = 9,
  kPoorHitRunsOff = 10,
};

inline constexpr int16_t kTurkey = 15;
inline constexpr int16_t kFirstNonGameAnimal = 17;
inline constexpr int16_t kFirstProtectedAnimal = 27;

// A hit or miss can still be undone by chance: the draw is made afresh after reseeding.
struct OutcomeDraw {
  std::function<void()> reseed;
  std::function<double()> rnd;
};

// The outcome for the animal `curAnimal` whose tag state is `tagState` (ignored from species
// 17 on). `hitZoneResult` may be turned into a plain miss (0) on the way. Starts from
// `previous`, which stands where no rule applies.
int16_t shotOutcome(int16_t previous, int16_t curAnimal, int16_t tagState, int16_t& hitZoneResult,
                    const OutcomeDraw& draw);
