// SPDX-License-Identifier: GPL-2.0-or-later
// The optics, and what follows a shot: the guide's words, time, the trophy screens, the tag,
// tracking a wounded animal to a new stand, and the offences that end in jail.
#include "hunt/encounter_rules.h"
#include "hunt/location_table.h"
#include "hunt/modal_screen.h"
#include "hunt/optics_levels.h"
#include "hunt/optics_overlay.h"
#include "hunt/shot_speech.h"
#include "hunt/surround.h"
#include "hunt/tag_rules.h"
#include "platform/panorama/sv_control.h"
#include "platform/random.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/panorama_names.h"
#include "shooting/record_book.h"
#include "shooting/shotdata.h"

#include <QPushButton>
#include <QTimer>

namespace {

constexpr int16_t kOffence = 2;  // pending move: the hunt ends in jail

}  // namespace

int16_t surround::opticsLevel() const {
  return Game.EquipSlots[7];
}

void surround::Scope_Click() {
  Game.OpticsUp ? Scopeoff() : Scopeon();
}

void surround::Scopeon() {
  const int level = opticsLevel();
  if (opticsStand_ != Game.StandNum) {
    SVControl2->Load(opticsPanoramaPath(Game.StandNum));
    opticsStand_ = Game.StandNum;
  }
  SVControl2->SetHeading(svcontrol1->Heading());
  svcontrol1->widget()->hide();
  SVControl2->widget()->show();
  SVControl2->SetZoom(opticsZoom(level) * SVControl2->BaseZoom());
  opticspic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + Game.ResCode2 +
                            (isRangefinder(level) ? QStringLiteral("rngf.bmp") : QStringLiteral("bino.bmp")));
  opticspic->show();
  opticspic->raise();
  Game.OpticsBonus = int16_t(opticsBonusOf(level));
  Game.OpticsUp = 1;
  Scope->setText(QStringLiteral("Optics Down"));
}

void surround::Scopeoff() {
  if (!Game.OpticsUp) return;
  // The main view turns to where the optics last looked.
  svcontrol1->SetHeading(heading2_);
  svcontrol1->widget()->show();
  SVControl2->widget()->hide();
  opticspic->hide();
  Game.OpticsBonus = 0;
  Scope->setText(QStringLiteral("Optics Up"));
  Game.OpticsUp = 0;
}

void surround::Aftershot() {
  // The heaviest rifle drops what it was not meant for; scored as a good hit.
  if (Game.CurWeapon == 4 && Game.ShotOutcome == 9) {
    Game.ShotOutcome = 2;
    Game.ShotQuality = 7;
  }
  switch (Game.ShotOutcome) {
    case 0: Game.CurAnimal = 0; break;
    case 1:
      Say(missSpeechKey(Game.HitZoneResult));
      Game.CurAnimal = 0;
      Game.EventCooldown = 2;
      break;
    case 2:
    case 3: animalDown(); break;
    case 4:
    case 10: bodyHit(); break;
    case 5:
      Say(QStringLiteral("nongame"));
      Game.EventCooldown = 6;
      Game.CurAnimal = 0;
      break;
    case 6:
    case 7:
    case 8:
      // A protected animal, one without a tag, one whose tag is filled: the warden is waiting.
      Say(offenceSpeechKey(Game.ShotOutcome));
      Game.PendingMove = kOffence;
      break;
    case 9:
      Say(QStringLiteral("wweapon"));
      Game.CurAnimal = 0;
      Game.EventCooldown = 2;
      break;
    case 11:
      Say(QStringLiteral("wanimal"));
      killHandling(Game.CurAnimal);
      break;
    default: break;
  }
}

void surround::animalDown() {
  Game.EventCooldown = 2;
  Game.DamagedTrophy = 0;
  Game.ShotQuality = cappedQuality(Game.CurWeapon, Game.ShotQuality);
  Say(killSpeechKey(Game.ShotQuality));
  if (damagesTrophy(Game.ShotQuality)) Game.DamagedTrophy = -1;
  killHandling(Game.CurAnimal);
}

// The trophy page and the record book read the animal; it is cleared once both are done.
void surround::killHandling(int16_t species) {
  AddTimeNoChk(3, QStringLiteral("h"));
  Clearheadbox();
  showModalScreen<Shotdata>();
  Clearheadbox();
  Game.ScreenMode = 4;
  showModalScreen<RecordBook>();
  if (species >= 1 && species < kTagCount)
    Game.TagsOwned[species] = tagAfterKill(Game.TagsOwned[species], Game.TagLimit[species]);
  Game.WoundedFlag = 0;
  Game.TrackedSpecies = 0;
  Game.CurAnimal = 0;
  Game.PendingMove = 1;
}

// The animal runs off wounded; the guide takes the hunter to another stand to pick up the trail.
void surround::bodyHit() {
  platform::random().Randomize();
  int16_t stand = Game.StandNum;
  while (stand == Game.StandNum) stand = int16_t(rt::Int(platform::Rnd() * 4 + 1));
  Game.StandNum = stand;
  if (const auto place = findLocation(QStringLiteral("^") + standLocation(stand)))
    Game.CurLocation = place->description;
  Game.WoundedPlace = trailPointKey(Game.AreaLetter, stand, int(rt::Int(platform::Rnd() * 10)));
  if (const auto point = findLocation(Game.WoundedPlace)) Game.TerrainClass = point->terrain;
  Game.TrackedSpecies = Game.CurAnimal;
  Say(QStringLiteral("bodyhit"));
  AddTimeNoChk(15, QStringLiteral("n"));
  Game.WoundedFlag = -1;
  Say(QStringLiteral("tracking"));
  Timer2->stop();
  if (Game.VideosOn) playTrackingFilm();
  AddTimeNoChk(15, QStringLiteral("n"));
  Say(QStringLiteral("newstand"));
  arriveAt(3);
  Game.PendingMove = 3;
}

void surround::playTrackingFilm() {
  Game.VideoReturn = 1;
  Game.AviTracking = 1;
  playFilm(Game.AreaLetter + QStringLiteral("trak") + QString::number(int(rt::Int(platform::Rnd() * 2))));
  Game.AviTracking = 0;
}
