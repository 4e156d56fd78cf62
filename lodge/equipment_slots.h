// SPDX-License-Identifier: GPL-2.0-or-later
// The sixteen equipment slots as the inventory shows them: the name an empty slot wears and
// the page of the slot tabs it sits on.
#pragma once

#include <QString>

namespace lodge {

inline constexpr int kFirstSlot = 1;
inline constexpr int kLastSlot = 16;
inline constexpr int kSlotPageCount = 3;

// "Hat" ... "Safety" for slots 1..16; "" for any other number.
QString slotName(int slot);
// The name slot 16 wears before the hunter has ever emptied it.
QString initialSlotName(int slot);
// Page 0 for slots up to 6, 1 for 7 to 12, 2 for 13 and up.
int slotPage(int slot);

}  // namespace lodge
