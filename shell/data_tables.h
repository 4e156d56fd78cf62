// SPDX-License-Identifier: GPL-2.0-or-later
// Readers of the world's comma-separated tables and the equipment scores built from them.
// A missing, short or damaged table leaves what was read so far and the game goes on.
#pragma once

#include <cstdint>

// Value of catalogue item `item` in the current world, from data\items.csv.
int16_t ItemScore(int item);
// Value of tool `item` against `TagSpecies`, from data\tools.csv; 0 when the tool is not listed.
int16_t ToolScore(int item);
// Reads the current world's row of data\notequip.csv into `NotEquipScore`, doubling each value.
void LoadNotEquipScores();
// Sets `WeaponRating` of `CurWeapon` against `CurAnimal` at `RangeBand`, from data\weptab.csv.
void LoadWeaponRating();
// Sets `ClothesScore` and `ToolsScore` from the equipment slots. Throws rt::OverflowError,
// storing nothing, when a sum leaves the 16-bit range.
void ComputeEquipScores();
