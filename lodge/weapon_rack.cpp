// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/weapon_rack.h"

#include "shell/names.h"

namespace lodge {

int16_t nextRackPage(int16_t page) {
  return page >= kWeaponCount ? 1 : static_cast<int16_t>(page + 1);
}

int16_t previousRackPage(int16_t page) {
  return page <= 1 ? kWeaponCount : static_cast<int16_t>(page - 1);
}

QString weaponPictureCode(int weapon) {
  static const char* const codes[kWeaponCount] = {"rifle0", "bolt0", "rifle0", "bolt0", "hgun0",
                                                  "12ga0",  "54hr0", "Bow0",   "RBow0"};
  return weapon >= 1 && weapon <= kWeaponCount ? QString::fromLatin1(codes[weapon - 1]) : QString();
}

}  // namespace lodge
