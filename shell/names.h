// SPDX-License-Identifier: GPL-2.0-or-later
// The names the game gives to weapons, worlds, skill levels and species, and the trophy
// measure of each species: one table each, read everywhere.
#pragma once

#include <QString>

#include <cstdint>

inline constexpr int kWeaponCount = 9;    // 1..9
inline constexpr int kSpeciesCount = 16;  // game species 1..16
inline constexpr int kWorldCount = 4;     // 0..3

// Weapon n (0..9) of the active world group; "" outside that range.
QString WeaponName(int n);
// World n (0..3) of the active world group; "" for any other number.
QString WorldName(int n);
// From `SkillLevel`: "Beginner", "Experienced", "Advanced"; "" for any other value.
QString SkillName();
// Species n (1..16), setting `TrophyUnit`; "Non-Game Animal" with `TrophyUnit` untouched else.
QString SpeciesName(int n);

// The same tables without the global state, for tools that build the world.
QString weaponNameIn(bool specialPermit, int n);
QString worldNameIn(bool specialPermit, int n);
QString speciesNameOf(int n);  // "" outside 1..16
QString trophyUnitOf(int n);   // "" outside 1..16
