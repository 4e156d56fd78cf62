// SPDX-License-Identifier: GPL-2.0-or-later
// The dice of the hunt's tick: which event a draw brings, how likely the hunted species is,
// and which trail point an animal shows up at.
#pragma once

#include <QString>

#include <cstdint>

enum class TickEvent { Nothing, AnimalCall, TerrainRemark, StandRemark, WindShift, Encounter, AmbientSound };

// A draw of 0..50 while an animal is in play: a call, a remark on the ground, or the ambience.
TickEvent eventWithAnimalInPlay(int draw);
// A draw of 0..120 while none is.
TickEvent eventWithNoAnimal(int draw);

// The number a draw of 0..99 must beat for the animal to be of the hunted species.
double encounterNumber(int16_t toolsScore, int16_t callEffect, int16_t opticsBonus);

// The `~` hotspot of trail point `point` (0..9) of stand `stand`, upper-cased as the location
// table keys it.
QString trailPointKey(const QString& areaLetter, int stand, int point);

// The sound record of a species' call: the first of its two records on a draw below 25.
int animalSoundRecord(int species, int draw);
