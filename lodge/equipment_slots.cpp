// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/equipment_slots.h"

namespace lodge {
namespace {

constexpr int kLastClothesSlot = 6;
constexpr int kLastToolSlot = 12;

}  // namespace

QString slotName(int slot) {
  static const char* const names[kLastSlot] = {
      "Hat",   "Coat",   "Pants",          "Blaze", "Coveralls", "Footwear",     "Optics",  "Calls",
      "Lures", "Scents", "Wind Indicator", "Knife", "Tent",      "Sleeping Bag", "Baggage", "Safety"};
  return slot >= kFirstSlot && slot <= kLastSlot ? QString::fromLatin1(names[slot - 1]) : QString();
}

QString initialSlotName(int slot) {
  return slot == kLastSlot ? QStringLiteral("Safety Equipment") : slotName(slot);
}

int slotPage(int slot) {
  if (slot <= kLastClothesSlot) return 0;
  return slot <= kLastToolSlot ? 1 : 2;
}

}  // namespace lodge
