// SPDX-License-Identifier: GPL-2.0-or-later
// Moving about the hunting ground: opening places, the compass, and what entering, leaving and
// clicking each kind of hotspot does.
#include "hunt/compass_words.h"
#include "hunt/location_table.h"
#include "hunt/modal_screen.h"
#include "hunt/optics_overlay.h"
#include "hunt/surround.h"
#include "hunt/tag_rules.h"
#include "lodge/catalog.h"
#include "lodge/hunttest.h"
#include "lodge/licence.h"
#include "lodge/weapons.h"
#include "platform/dialogs.h"
#include "platform/panorama/sv_control.h"
#include "platform/picture_box.h"
#include "platform/random.h"
#include "platform/runtime.h"
#include "platform/screens_host.h"
#include "shell/aviplay.h"
#include "shell/game_state.h"
#include "shell/panorama_names.h"
#include "shell/screen_instance.h"
#include "shell/shared_procedures.h"
#include "shooting/record_book.h"
#include "shooting/trange.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int32_t kFacingSouth = 648000;
constexpr double kWalkZoomStep = 1.1;
constexpr double kWalkZoomEnd = 1.5;

}  // namespace

void surround::openLicence(int16_t mode) {
  Game.ScreenMode = mode;
  showModalScreen<Licence>();
}

void surround::loadPanorama(const QString& location, int32_t heading) {
  Game.StartPano = location;
  svcontrol1->Load(panoramaPath(location));
  svcontrol1->SetHeading(heading);
}

void surround::showPlaceText(const QString& extra) {
  Poidescript->setText(Game.CurLocation + QStringLiteral("\r\n") + extra);
}

void surround::Surrinit() {
  loadPanorama(Game.StartPano, kFacingSouth);
  svcontrol1->widget()->show();
  showPlaceText();
  Sleeppic->hide();
  opticspic->hide();
  Setheadbox();
  Timer2->stop();
  SetItembuttons();
}

void surround::SVOnLocation(int32_t heading) {
  compass->setText(compassWord(heading));
}

void surround::SVControl1_OnLocation(int32_t heading) {
  heading1_ = heading;
  SVOnLocation(heading);
}

void surround::SVControl2_OnLocation(int32_t heading) {
  heading2_ = heading;
  SVOnLocation(heading);
}

void surround::SVControl1_OnEnterHotspot(const QString& name) {
  enterHotspot(*svcontrol1, name);
}

void surround::SVControl2_OnEnterHotspot(const QString& name) {
  enterHotspot(*SVControl2, name);
}

void surround::SVControl1_OnLeaveHotspot(const QString& name) {
  leaveHotspot(*svcontrol1, name);
}

void surround::SVControl2_OnLeaveHotspot(const QString& name) {
  leaveHotspot(*SVControl2, name);
}

// The lodge greets the hunter each time he comes in from elsewhere.
void surround::arriveAt(int16_t placeType) {
  if (placeType == 0 && Game.PlaceMode != 0) Game.FirstArrival = 1;
  Game.PlaceMode = placeType;
}

void surround::enterHotspot(platform::SVControl& view, const QString& name) {
  view.SetTracking(false);
  // The host greets the hunter once per arrival at the lodge.
  if (Game.FirstArrival && Game.PlaceMode == 0) {
    Say(QStringLiteral("Entry"));
    Game.FirstArrival = 0;
  }
  if (name.startsWith(u'~')) SVEnterHotspot(name.trimmed());
  view.SetTracking(true);
  StartHuntTimer();
  CHKRestartGame();
}

void surround::leaveHotspot(platform::SVControl& view, const QString& name) {
  view.SetTracking(false);
  if (name.startsWith(u'~')) {
    showPlaceText();
    Rangelab->hide();
  }
  view.SetTracking(true);
  CHKRestartGame();
}

void surround::SVEnterHotspot(const QString& name) {
  if (const auto place = findLocation(name)) {
    Game.RangeBand = place->range;
    showPlaceText(place->description);
    Game.RangeYards = place->yards;
    if (Game.OpticsUp && opticsLevel() > 4) {
      Rangelab->setText(QString::number(place->yards));
      Rangelab->show();
    }
    if (Game.TrackedSpecies > 0 && place->hypername.trimmed().toUpper() == Game.WoundedPlace)
      findWoundedAnimal();
  }
  endOfHover();
}

// The hunter reaches the trail point where the wounded animal lay down.
void surround::findWoundedAnimal() {
  Timer2->stop();
  if (!Game.WoundedFlag) return;
  platform::random().Randomize();
  const int draw = int(rt::Int(platform::Rnd() * 100));
  if (draw < 50 || Game.ZoneValue == 10) {
    Game.WoundedFlag = 0;
    Game.TrackedSpecies = 0;
    Say(QStringLiteral("escape"));
    return;
  }
  Saynotext(QStringLiteral("bodyfind"));
  StartVideoshot();
  Aftershot();
}

void surround::SVControl1_OnSelectHotspot(const QString& name) {
  Timer2->stop();
  const QChar kind = name.isEmpty() ? QChar() : name.front();
  const QString rest = name.mid(1);
  switch (kind.unicode()) {
    case u'^': walkTo(name); break;
    case u'@':
      Game.ConversationDone = 0;
      InitSaylist(rest);
      break;
    case u'!': showModalScreen<Catalog>(); break;
    case u'*': openLicence(1); break;
    case u'+':
      Game.ScreenMode = 3;
      showModalScreen<RecordBook>();
      break;
    case u'%': showModalScreen<Hunttest>(); break;
    case u'$': playAreaFilm(); break;
    case u'&': enterRange(); break;
    case u':': shootAtTarget(rest.trimmed()); break;
    default: break;
  }
  svcontrol1->SetTracking(true);
  StartHuntTimer();
  CHKRestartGame();
}

void surround::walkTo(const QString& name) {
  auto place = findLocation(name);
  if (!place) return;
  // Walking closes in on the way; doorways into lodge, range and stands do not.
  if (name.mid(1, 1) != u"3") {
    walking_ = true;
    const double base = svcontrol1->BaseZoom();
    while (svcontrol1->Zoom() < kWalkZoomEnd * base) {
      svcontrol1->SetZoom(svcontrol1->Zoom() * kWalkZoomStep);
      QApplication::processEvents();
    }
    walking_ = false;
  }
  arriveAt(place->loctype);
  Game.StartPano = place->filejump;
  switch (Game.PlaceMode) {
    case 2: AddTimeNoChk(2, QStringLiteral("h")); break;
    case 1: Saynotext(QStringLiteral("chstand")); break;
    case 3: enterField(*place); break;
    default: break;
  }
  loadPanorama(place->filejump, int32_t(rt::Int(place->heading * 3600.0)));
  Setheadbox();
}

// On the way into the field the hunter picks his quarry and his weapon; without a weapon he
// is turned back to camp.
void surround::enterField(LocationRecord& place) {
  Clearheadbox();
  openLicence(2);
  const QString guide = guideKeyForQuarry(Game.TagSpecies);
  if (!guide.isEmpty()) Say(guide);
  Clearheadbox();
  showModalScreen<Weapons>();
  if (Game.CurWeapon == 0) {
    if (auto camp = findLocation(QStringLiteral("^camp"))) {
      place = *camp;
      arriveAt(camp->loctype);
    }
  }
  Game.CurLocation = place.description;
  // Field descriptions end in their stand's digit.
  const QString digit = place.description.trimmed().right(1);
  Game.StandNum = digit.isEmpty() || !digit.front().isDigit() ? 0 : int16_t(digit.toInt());
  showPlaceText();
  Setheadbox();
  SetItembuttons();
  AddTimeNoChk(1, QStringLiteral("h"));
}

void surround::playAreaFilm() {
  if (!Game.VideosOn) {
    platform::MsgBox(
        QStringLiteral("Unable to Show Video. Run Varnholt Configuration Program to Enable Videos"),
        platform::Buttons::Ok, platform::Icon::None, QStringLiteral("Videos Have Been Turned Off"));
    return;
  }
  Game.VideoReturn = 1;
  playFilm(Game.AreaLetter + QStringLiteral("Movie"));
}

// The film player takes the film's name in the hand-over word.
void surround::playFilm(const QString& name) {
  Game.ScreenState = name;
  Aviplay& film = ScreenInstance<Aviplay>::get();
  platform::screensHost().ShowModal(film);
  ScreenInstance<Aviplay>::unload();
}

void surround::enterRange() {
  Clearheadbox();
  showModalScreen<Weapons>();
  QApplication::processEvents();
  loadPanorama(rangeLocation(), svcontrol1->Heading());
  arriveAt(5);
  Setheadbox();
}

void surround::shootAtTarget(const QString& targetClass) {
  Game.ScreenState = targetClass;
  if (targetClass != targetClassOf(Game.CurWeapon)) {
    Say(QStringLiteral("target"));
    return;
  }
  Clearheadbox();
  showModalScreen<Trange>();
  SetItembuttons();
  Setheadbox();
  Scopeoff();
}

// Last on every hover: the hunt ends when no tag is left to fill, otherwise a move that the
// shot's aftermath left pending is carried out.
void surround::endOfHover() {
  if (!anyTagOpen(Game.TagsOwned)) {
    Say(QStringLiteral("alltags"));
    Game.PendingMove = 0;
    endHunt(QStringLiteral("endgame.bmp"));
    return;
  }
  switch (Game.PendingMove) {
    case 1:
    case 3: Timer1->start(30); break;
    case 2:
      Game.PendingMove = 0;
      endHunt(QStringLiteral("jail.bmp"));
      break;
    default: break;
  }
}

void surround::Timer1_Timer() {
  Timer1->stop();
  if (Game.PendingMove == 3) {
    Game.PendingMove = 0;
    loadPanorama(standLocation(Game.StandNum), svcontrol1->Heading());
  } else if (Game.PendingMove == 1) {
    Game.PendingMove = 0;
    SetToCamp();
  }
}
