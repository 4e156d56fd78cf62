// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge screens, each opened over the hunting screen as the game opens it: the gun rack,
// the licence for buying tags and for choosing the quarry, the outfitter, the inventory, the
// hunter's test and the guide.
#include "tools/screenview/screen_registry.h"

#include "hunt/surround.h"
#include "lodge/catalog.h"
#include "lodge/hguide.h"
#include "lodge/hunttest.h"
#include "lodge/inventory.h"
#include "lodge/licence.h"
#include "lodge/weapons.h"
#include "shell/game_state.h"
#include "shell/screen_instance.h"

#include <QCheckBox>

#include <iterator>

namespace {

// The lodge screens open over the hunting screen and take their place from it.
void showHuntingScreen() {
  surround& hunting = ScreenInstance<surround>::get();
  hunting.Form_Load();
  hunting.Surrinit();
  hunting.showFullScreen();
}

template <class Screen>
QWidget* openScreen() {
  showHuntingScreen();
  auto& screen = ScreenInstance<Screen>::get();
  screen.Form_Load();
  return &screen;
}

QWidget* openLicence(int16_t mode) {
  Game.ScreenMode = mode;
  // A held tag and a filled one, so that every picture of the board shows.
  Game.TagsOwned[16] = kTagHeld;
  Game.TagsOwned[13] = kTagFilled;
  return openScreen<Licence>();
}

// A few items bought and some of them worn, so the lists and slots have something to show.
void outfitHunter() {
  const int16_t bought[] = {7, 9, 10, 14, 17, 1, 2};
  for (int i = 0; i < static_cast<int>(std::size(bought)); ++i) Game.OwnedItems[i + 1] = bought[i];
  Game.EquipSlots[1] = 7;
  Game.EquipSlots[2] = 10;
  Game.EquipSlots[7] = 1;
  Game.CurWeapon = 2;
}

const RegisterScreen weapons{"Weapons", &openScreen<Weapons>};
const RegisterScreen licence{"Licence", [] { return openLicence(Licence::kBuyMode); }};
const RegisterScreen quarry{"LicenceQuarry", [] { return openLicence(Licence::kQuarryMode); }};
const RegisterScreen catalog{"Catalog", [] {
                               outfitHunter();
                               return openScreen<Catalog>();
                             }};
const RegisterScreen inventory{"Inventory", [] {
                                 outfitHunter();
                                 return openScreen<Inventory>();
                               }};
const RegisterScreen hunttest{"Hunttest", &openScreen<Hunttest>};
// A test already paid for this hunt, marked with some answers wrong, so no prize box opens.
const RegisterScreen hunttestMarked{"HunttestMarked", [] {
                                      Game.TestRewarded = true;
                                      auto* test = static_cast<Hunttest*>(openScreen<Hunttest>());
                                      for (int i = 0; i < 10; i += 3) test->Check1[i]->click();
                                      test->Scoretest_Click();
                                      return static_cast<QWidget*>(test);
                                    }};
const RegisterScreen hguide{"Hguide", &openScreen<Hguide>};

}  // namespace
