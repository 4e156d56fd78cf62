// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/names.h"

#include "shell/game_state.h"

namespace {

const char* const kBaseWeapons[] = {
    "No Weapon Selected", ".257 Rifle",        ".280 Rifle",       ".300 Rifle",
    ".338 Rifle",         "44 Magnum Handgun", "12 Gauge Shotgun", ".54 Black Powder Rifle",
    "Aluminum Bow",       "Recurve Bow"};

const char* const kPermitWeapons[] = {
    "No Weapon Selected",      ".243 Rifle",      ".308 Rifle",         "7mm Magnum",   "8mm Magnum",
    ".358 Bolt Action Pistol", "30-30 Lever Gun", "45-70 Sharps Rifle", "Aluminum Bow", "Recurve Bow"};

struct Species {
  const char* name;
  const char* unit;
};

// Alphabetical but for the deer, in the order the game numbers its animals.
const Species kSpecies[] = {
    {"Bighorn Sheep", "Curl (in inches)"},
    {"Bison", "Sq. Ft."},
    {"Black Bear", "Sq. Ft."},
    {"Brown Bear", "Sq. Ft."},
    {"Caribou", "Rack Spread (in inches)"},
    {"Cougar", "Sq. Ft."},
    {"Blacktail Deer", "Points"},
    {"Coyote", "Sq. Ft."},
    {"Elk", "Points"},
    {"Grizzly Bear", "Sq. Ft."},
    {"Moose", "Rack Spread (in inches)"},
    {"Mountain Goat", "Sq. Ft."},
    {"Mule Deer", "Points"},
    {"Pronghorn", "Horn Size (in inches)"},
    {"Turkey", "Beard (in inches)"},
    {"Whitetail Deer", "Points"},
};

bool isSpecies(int n) {
  return n >= 1 && n <= kSpeciesCount;
}

}  // namespace

QString weaponNameIn(bool specialPermit, int n) {
  if (n < 0 || n > kWeaponCount) return {};
  return QString::fromLatin1(specialPermit ? kPermitWeapons[n] : kBaseWeapons[n]);
}

QString worldNameIn(bool specialPermit, int n) {
  switch (n) {
    case 0: return QStringLiteral("Piedmont");
    case 1: return QStringLiteral("Dakota");
    case 2: return specialPermit ? QStringLiteral("Teton") : QStringLiteral("Bitterroot");
    case 3: return QStringLiteral("Yukon");
    default: return {};
  }
}

QString speciesNameOf(int n) {
  return isSpecies(n) ? QString::fromLatin1(kSpecies[n - 1].name) : QString();
}

QString trophyUnitOf(int n) {
  return isSpecies(n) ? QString::fromLatin1(kSpecies[n - 1].unit) : QString();
}

QString WeaponName(int n) {
  return weaponNameIn(Game.XpackMode != 0, n);
}

QString WorldName(int n) {
  return worldNameIn(Game.XpackMode != 0, n);
}

QString SkillName() {
  switch (Game.SkillLevel) {
    case 0: return QStringLiteral("Beginner");
    case 1: return QStringLiteral("Experienced");
    case 2: return QStringLiteral("Advanced");
    default: return {};
  }
}

QString SpeciesName(int n) {
  if (!isSpecies(n)) return QStringLiteral("Non-Game Animal");
  Game.TrophyUnit = trophyUnitOf(n);
  return speciesNameOf(n);
}
