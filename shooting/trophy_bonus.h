// SPDX-License-Identifier: GPL-2.0-or-later
// The trophy page's arithmetic: the random size and weight bonus of a kill and the sponsor's
// award for an animal heavier than expected.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

struct TrophyMeasure {
  double size = 0;
  double weight = 0;
};

// Adds up to a fifth to the size (not for the species counted in points, whose size is a
// count) and to the weight, drawing from `rnd` in that order.
TrophyMeasure withTrophyBonus(int species, TrophyMeasure before, const std::function<double()>& rnd);

// Whether the kill earns an award: more than a tenth heavier than before the bonus, and the
// trophy not spoiled by the shot.
bool awardDue(double weightBefore, double weightAfter, bool damagedTrophy);

// The species' award base plus up to a twentieth more, drawn from `rnd`.
double awardAmount(int16_t awardBase, const std::function<double()>& rnd);

// "Congratulations! ... helps sponsor your next hunt with an award of $<n>".
QString awardMessage(bool sponsorOn, double award);
