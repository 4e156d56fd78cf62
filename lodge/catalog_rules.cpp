// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/catalog_rules.h"

#include "platform/runtime.h"

namespace lodge {
namespace {

constexpr int kLastOwnedEntry = kOwnedItemCount - 1;
constexpr int kLastSellSearchSlot = 12;

}  // namespace

QString CatnumtoStr(int tab) {
  static const char* const names[kCategoryCount] = {"Clothing", "Optics", "Tools", "Camping", "Safety"};
  return tab >= 0 && tab < kCategoryCount ? QString::fromLatin1(names[tab]) : QString();
}

std::optional<int> findOwned(const OwnedList& owned, int16_t item) {
  for (int entry = 1; entry <= kLastOwnedEntry; ++entry)
    if (owned[entry] == item) return entry;
  return std::nullopt;
}

bool AddtoInv(OwnedList& owned, int16_t item) {
  const auto free = findOwned(owned, kEmptyOwnedEntry);
  if (free) owned[*free] = item;
  return free.has_value();
}

void Removefrominv(OwnedList& owned, EquipList& equipped, int16_t item) {
  if (const auto entry = findOwned(owned, item)) owned[*entry] = kEmptyOwnedEntry;
  for (int slot = 1; slot <= kLastSellSearchSlot; ++slot) {
    if (equipped[slot] == item) {
      equipped[slot] = 0;
      break;
    }
  }
}

bool canAfford(int16_t money, int16_t cost) {
  return money - cost >= 0;
}

int16_t sellBackPrice(int16_t cost) {
  return rt::to16(rt::Int(cost - cost * 0.1));
}

std::optional<int> autoEquipSlot(const EquipList& equipped, int subCatNumber) {
  if (subCatNumber < 0 || subCatNumber >= kEquipSlotCount || equipped[subCatNumber] != 0) return std::nullopt;
  return subCatNumber;
}

}  // namespace lodge
