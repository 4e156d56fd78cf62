// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's play on the lodge screens: shopping, equipping, racks, tags, the test, the
// guide and conversations.
#include "lodge/catalog.h"
#include "lodge/hguide.h"
#include "lodge/hunttest.h"
#include "lodge/inventory.h"
#include "lodge/licence.h"
#include "lodge/talkform.h"
#include "lodge/weapons.h"
#include "screen_players.h"
#include "shell/game_state.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>

namespace robot {

namespace {

// Selects a random row of `list`, if it has any.
bool pickRow(QListWidget& list, Dice& choices) {
  if (list.count() == 0) return false;
  list.setCurrentRow(choices.below(list.count()));
  return true;
}

void pickTab(QTabBar& tabs, Dice& choices) {
  if (tabs.count() > 0) tabs.setCurrentIndex(choices.below(tabs.count()));
}

}  // namespace

void playCatalog(QWidget& screen, PlayContext& play) {
  auto& shop = static_cast<Catalog&>(screen);
  const int clicks = 1 + play.choices.below(8);
  for (int i = 0; i < clicks; ++i) {
    switch (play.choices.below(6)) {
      case 0:
        pickTab(*shop.TabCat, play.choices);
        shop.TabCat_Click();
        break;
      case 1: shop.Catnext_Click(); break;
      case 2: shop.catback_Click(); break;
      case 3: shop.Buybutton_Click(); break;
      case 4:
        pickTab(*shop.TabInv, play.choices);
        shop.TabInv_Click();
        if (pickRow(*shop.Invlist, play.choices) && play.choices.chance(0.3)) shop.SellButton_Click();
        break;
      default: shop.Buybutton_Click(); break;
    }
  }
  shop.Closebox_Click();
}

void playInventory(QWidget& screen, PlayContext& play) {
  auto& inventory = static_cast<Inventory&>(screen);
  const int clicks = 1 + play.choices.below(6);
  for (int i = 0; i < clicks; ++i) {
    const int previous = inventory.tabinvent->currentIndex();
    pickTab(*inventory.tabinvent, play.choices);
    inventory.Tabinvent_Click(previous);
    if (play.choices.chance(0.7)) {
      if (pickRow(*inventory.dwMList, play.choices)) inventory.dwMList_DblClick();
    } else {
      const int slot = 1 + play.choices.below(16);
      if (play.choices.chance(0.5))
        inventory.InvEqupLabel_DblClick(slot);
      else
        inventory.invequip_Click(slot);
    }
  }
  inventory.Closebox_Click();
}

void playWeapons(QWidget& screen, PlayContext& play) {
  auto& rack = static_cast<Weapons&>(screen);
  const int pages = play.choices.below(9);
  for (int i = 0; i < pages; ++i) {
    if (play.choices.chance(0.8))
      rack.Catnext_Click();
    else
      rack.catback_Click();
  }
  // Mostly a weapon is taken; now and then the hunter leaves the rack empty-handed.
  if (play.choices.chance(0.9))
    rack.selwep_Click();
  else
    rack.Cancelbox_Click();
}

void playLicence(QWidget& screen, PlayContext& play) {
  auto& licence = static_cast<Licence&>(screen);
  const int clicks = Game.ScreenMode == Licence::kQuarryMode ? 1 : play.choices.below(4);
  for (int i = 0; i < clicks; ++i) {
    // Now and then a species without a tag, to see the refusal.
    int species = 1 + play.choices.below(16);
    if (Game.ScreenMode == Licence::kQuarryMode && play.choices.chance(0.8)) {
      for (int s = 1; s < kTagCount; ++s)
        if (Game.TagsOwned[s] >= kTagHeld && Game.TagsOwned[s] < kTagAbsent) species = s;
    }
    licence.Tagpic_Click(species);
  }
  if (licence.isVisible()) licence.Closebox_Click();
}

void playHunttest(QWidget& screen, PlayContext& play) {
  auto& test = static_cast<Hunttest&>(screen);
  for (int i = 0; i < int(test.Check1.size()); ++i) {
    if (play.choices.chance(0.5)) {
      test.Check1[i]->setChecked(!test.Check1[i]->isChecked());
      test.Check1_Click(i);
    }
  }
  test.Scoretest_Click();
  test.Closebox_Click();
}

void playHguide(QWidget& screen, PlayContext&) {
  static_cast<Hguide&>(screen).Closebut_Click();
}

void playTalkform(QWidget& screen, PlayContext& play) {
  auto& talk = static_cast<Talkform&>(screen);
  const int pages = play.choices.below(5);
  for (int i = 0; i < pages; ++i) {
    if (talk.Nextconv->isEnabled() && play.choices.chance(0.8))
      talk.Nextconv_Click();
    else if (talk.Prevconv->isEnabled())
      talk.Prevconv_Click();
  }
  talk.Closeframe_Click();
}

}  // namespace robot
