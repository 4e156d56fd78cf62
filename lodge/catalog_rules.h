// SPDX-License-Identifier: GPL-2.0-or-later
// The outfitter's rules on the owned list and the equipment slots: what is owned, where a
// bought item goes, what a sold item leaves behind and what it fetches.
#pragma once

#include "shell/game_state.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace lodge {

using OwnedList = std::array<int16_t, kOwnedItemCount>;
using EquipList = std::array<int16_t, kEquipSlotCount>;

inline constexpr int kCategoryCount = 5;

// Text of category tab 0..4 ("Clothing" ... "Safety"); "" for any other number.
QString CatnumtoStr(int tab);

// The entry 1..65 that holds `item`, if any.
std::optional<int> findOwned(const OwnedList& owned, int16_t item);
// Writes `item` into the first empty entry 1..65; a full list takes nothing (returns false).
bool AddtoInv(OwnedList& owned, int16_t item);
// Empties the first owned entry holding `item`, then the first of slots 1..12 holding it.
// Slots 13..16 are left alone: gear carried there stays carried after it is sold.
void Removefrominv(OwnedList& owned, EquipList& equipped, int16_t item);

// A price equal to the wallet is still affordable.
bool canAfford(int16_t money, int16_t cost);
// Int(cost - cost x 0.1) in doubles, as the till always reckoned it: a tenth lost on resale.
int16_t sellBackPrice(int16_t cost);
// The slot a bought item goes into at once: its own slot (0..16) when that slot is empty.
std::optional<int> autoEquipSlot(const EquipList& equipped, int subCatNumber);

}  // namespace lodge
