// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen in the states a player meets it: at the lodge, at a stand with the wind
// and the clock, with the optics up, asleep at night, and in jail.
#include "tools/screenview/screen_registry.h"

#include "hunt/surround.h"
#include "platform/panorama/sv_control.h"
#include "platform/picture_box.h"
#include "shell/game_state.h"
#include "shell/panorama_names.h"
#include "shell/screen_instance.h"

#include <QPushButton>

namespace {

surround& huntAt(int16_t placeMode, const QString& location) {
  Game.PlaceMode = placeMode;
  Game.StartPano = location;
  surround& hunting = ScreenInstance<surround>::get();
  hunting.Form_Load();
  hunting.Surrinit();
  hunting.showFullScreen();
  return hunting;
}

// A hunter kitted out for the field: binoculars, a call, a wind indicator; a gusty north-west.
surround& huntAtStand() {
  Game.StandNum = 1;
  Game.EquipSlots[7] = 3;
  Game.EquipSlots[8] = 26;
  Game.EquipSlots[11] = 40;
  Game.WindDir = 7;
  Game.WindStrength = 3;
  Game.CurLocation = QStringLiteral("Stand 1");
  surround& hunting = huntAt(3, standLocation(1));
  hunting.SetItembuttons();
  return hunting;
}

// The view covered by one of the hunt's full pictures, as the clock shows it.
QWidget* coveredBy(const QString& picture) {
  surround& hunting = huntAtStand();
  hunting.Sleeppic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + picture);
  hunting.Sleeppic->show();
  hunting.Sleeppic->raise();
  hunting.svcontrol1->widget()->hide();
  return &hunting;
}

const RegisterScreen lodge{"surround", [] { return static_cast<QWidget*>(&huntAt(0, lodgeLocation())); }};
const RegisterScreen stand{"SurroundStand", [] { return static_cast<QWidget*>(&huntAtStand()); }};
const RegisterScreen optics{"SurroundOptics", [] {
                              surround& hunting = huntAtStand();
                              hunting.Scopeon();
                              return static_cast<QWidget*>(&hunting);
                            }};
const RegisterScreen night{"SurroundNight", [] { return coveredBy(QStringLiteral("nitec.bmp")); }};
const RegisterScreen jail{"SurroundJail", [] { return coveredBy(QStringLiteral("jail.bmp")); }};

}  // namespace
