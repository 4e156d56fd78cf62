// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/trophy_bonus.h"

#include "platform/runtime.h"

namespace {

// Deer counted in points: their size is a number of tines, not a measure to stretch.
bool keepsItsSize(int species) {
  return species == 7 || species == 9 || species == 13 || species == 16;
}

}  // namespace

TrophyMeasure withTrophyBonus(int species, TrophyMeasure before, const std::function<double()>& rnd) {
  TrophyMeasure after = before;
  if (!keepsItsSize(species)) after.size = before.size + rnd() * (before.size * 0.2);
  after.weight = before.weight + rnd() * (before.weight * 0.2);
  return after;
}

bool awardDue(double weightBefore, double weightAfter, bool damagedTrophy) {
  return weightAfter > 1.1 * weightBefore && !damagedTrophy;
}

double awardAmount(int16_t awardBase, const std::function<double()>& rnd) {
  // The award is kept in single precision.
  return static_cast<float>(awardBase + rt::Int(rnd() * awardBase / 20));
}

QString awardMessage(bool sponsorOn, double award) {
  const QString sponsor = sponsorOn ? QStringLiteral("Marden's") : QStringLiteral("Quillon");
  return QStringLiteral("Congratulations! ") + sponsor +
         QStringLiteral(" helps sponsor your next hunt with an award of $") + rt::plainNumber(award);
}
