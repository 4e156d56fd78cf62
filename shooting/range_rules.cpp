// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/range_rules.h"

#include "platform/runtime.h"

namespace {

// Rows by weapon group: rifles 1-4, handgun 5, 6-7, bows 8-9.
constexpr TargetLayout kStandardTargets[] = {
    {{252, 44, 638, 370}, {-5, -5}},
    {{150, 147, 490, 280}, {-21, -33}},
    {{220, 164, 449, 252}, {-7, -7}},
    {{89, 3, 558, 399}, {-21, -33}},
};
constexpr TargetLayout kPermitTargets[] = {
    {{139, 65, 475, 197}, {-5, -5}},
    {{164, 74, 483, 200}, {-21, -33}},
    {{139, 79, 475, 207}, {-5, -5}},
    {{259, 105, 347, 204}, {-21, -33}},
};

std::optional<int> weaponGroup(int weapon) {
  if (weapon >= 1 && weapon <= 4) return 0;
  if (weapon == 5) return 1;
  if (weapon == 6 || weapon == 7) return 2;
  if (weapon == 8 || weapon == 9) return 3;
  return std::nullopt;
}

}  // namespace

std::optional<TargetLayout> targetLayout(bool specialPermit, int weapon) {
  const auto group = weaponGroup(weapon);
  if (!group) return std::nullopt;
  return specialPermit ? kPermitTargets[*group] : kStandardTargets[*group];
}

TargetRect scaledTarget(const TargetRect& design, double k) {
  return {rt::to16(design.left * k), rt::to16(design.top * k), rt::to16(design.right * k),
          rt::to16(design.bottom * k)};
}

bool onTarget(const TargetRect& target, QPoint click) {
  const bool off = click.x() < target.left || click.y() < target.top || click.x() > target.right ||
                   click.y() > target.bottom;
  return !off;
}

QPoint holePosition(QPoint click, int16_t elevation, int16_t windage, QPoint holeOffset) {
  return {rt::add16(rt::add16(click.x(), rt::mul16(kPixelsPerSightStep, elevation)), holeOffset.x()),
          rt::add16(rt::add16(click.y(), rt::mul16(kPixelsPerSightStep, windage)), holeOffset.y())};
}

int16_t adjustedSight(int16_t value, int step) {
  // Each button checks only the limit it moves toward.
  const int16_t moved = rt::add16(value, step);
  if (step < 0 && moved < -kSightLimit) return -kSightLimit;
  if (step > 0 && moved > kSightLimit) return kSightLimit;
  return moved;
}
