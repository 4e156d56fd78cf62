// SPDX-License-Identifier: GPL-2.0-or-later
// The head box's buttons, the moves to camp and lodge, and the way back from the main menu.
#include "hunt/location_table.h"
#include "hunt/modal_screen.h"
#include "hunt/surround.h"
#include "lodge/hguide.h"
#include "lodge/inventory.h"
#include "lodge/weapons.h"
#include "platform/files.h"
#include "platform/panorama/sv_control.h"
#include "shell/data_tables.h"
#include "shell/filer.h"
#include "shell/game_state.h"
#include "shell/panorama_names.h"
#include "shell/screen_layout.h"
#include "shell/shared_procedures.h"

#include <QApplication>
#include <QTimer>

#include <filesystem>

namespace {

constexpr int32_t kFacingSouth = 648000;
const QString kPublisherSite = QStringLiteral("https://www.varnholt-games.example/");

// The head box's screens cover the view; its timer and buttons rest until they close.
template <class Screen>
void showOverHeadBox(surround& hunting) {
  hunting.Clearheadbox();
  showModalScreen<Screen>();
  hunting.Setheadbox();
}

}  // namespace

void surround::bntHuntgd_Click() {
  showOverHeadBox<Hguide>(*this);
}

void surround::butInv_Click() {
  showOverHeadBox<Inventory>(*this);
  SetItembuttons();
  Scopeoff();
}

void surround::ChangeWep_Click() {
  showOverHeadBox<Weapons>(*this);
}

void surround::Campbut_Click() {
  Scopeoff();
  loadPanorama(campLocation(), svcontrol1->Heading());
  arriveAt(2);
  Setheadbox();
  AddTime(1, QStringLiteral("h"));
}

void surround::SetToCamp() {
  moveToRecordedPlace(QStringLiteral("^camp"));
}

void surround::Settolodge() {
  moveToRecordedPlace(QStringLiteral("^3lodge"));
}

// Moves without a hotspot: the place and its kind come from the path the hotspot would take.
void surround::moveToRecordedPlace(const QString& path) {
  Scopeoff();
  const auto place = findLocation(path);
  if (!place) return;
  arriveAt(place->loctype);
  loadPanorama(place->filejump, svcontrol1->Heading());
  Setheadbox();
}

void surround::Mainmenu_Click() {
  Clearheadbox();
  Game.ScreenState = QStringLiteral("MAINMENU");
  showModalScreen<Filer>();
  if (Game.ScreenState == u"LOADED") {
    LoadNotEquipScores();
    ComputeEquipScores();
    // A game saved at the range resumes at the lodge.
    if (Game.PlaceMode == 5) Game.PlaceMode = 0;
    if (Game.PlaceMode == 3) SetWeaponSight();
    loadPanorama(loadedPlaceLocation(Game.PlaceMode), kFacingSouth);
  }
  SetItembuttons();
  Scopeoff();
  Setheadbox();
  if (Game.ScreenState == u"QUIT GAME") {
    close();
    QCoreApplication::quit();
    return;
  }
  CHKRestartGame();
}

void surround::btnMdnweb_Click() {
  if (!Game.SponsorOn) return;
  Timer2->stop();
  OpenWebPage(this, Game.MediaRoot + QStringLiteral("mardens\\index.htm"));
}

void surround::btnQuillonweb_Click() {
  Timer2->stop();
  std::error_code ec;
  const bool localPages =
      std::filesystem::is_directory(platform::files().resolve(Game.MediaRoot + QStringLiteral("qlpage")), ec);
  OpenWebPage(this, localPages ? Game.MediaRoot + QStringLiteral("qlpage\\index.htm") : kPublisherSite);
}

void surround::btnRedfern_Click() {
  Timer2->stop();
  OpenWebPage(this, Game.MediaRoot + QStringLiteral("redfern\\index.htm"));
}
