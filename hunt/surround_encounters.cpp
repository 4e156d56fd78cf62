// SPDX-License-Identifier: GPL-2.0-or-later
// The hunt's tick: the clock runs, and in the field the dice bring calls, remarks, wind,
// ambience, and now and then an animal, handed to the shooting scene.
#include "hunt/compass_words.h"
#include "hunt/encounter_rules.h"
#include "hunt/location_table.h"
#include "hunt/modal_screen.h"
#include "hunt/surround.h"
#include "lodge/speech.h"
#include "platform/media/media_window.h"
#include "platform/panorama/sv_control.h"
#include "platform/random.h"
#include "platform/records/record_data.h"
#include "platform/runtime.h"
#include "shell/data_tables.h"
#include "shell/game_state.h"
#include "shell/shared_procedures.h"
#include "shooting/videoshot.h"

#include <QPushButton>
#include <QTimer>

namespace {

constexpr int kMostVideosPerAnimal = 16;

int draw(int range) {
  return int(rt::Int(platform::Rnd() * range));
}

void reseed() {
  platform::random().Randomize();
}

QString recordFile(const QString& name, bool perArea) {
  return Game.MediaRoot + Game.DbaseDir + (perArea ? Game.AreaLetter : QString()) + name;
}

}  // namespace

void surround::Timer2_Timer() {
  // While a clip plays the hunt stands still; the timer runs on and the tick comes again.
  if (Game.VideoBusy != 0) return;
  Timer2->stop();
  if (Game.PlaceMode == 3) tickEvents();
  Game.CallUsed = 0;
  Game.EventCooldown = std::max<int16_t>(0, int16_t(Game.EventCooldown - 1));
  AddTime(5, QStringLiteral("n"));
  StartHuntTimer();
  CHKRestartGame();
}

void surround::tickEvents() {
  if (Game.WoundedFlag) {
    reseed();
    if (draw(100) > 80 || Game.ZoneValue == 10) {
      Game.WoundedFlag = 0;
      Game.TrackedSpecies = 0;
      Game.CurAnimal = 0;
      Say(QStringLiteral("escape"));
    }
  }
  const bool ready = svcontrol1->ReadyState() == platform::kReadyComplete;
  if (!(Game.EventCooldown <= 0 || !Game.WoundedFlag || ready)) return;
  reseed();
  // Only a wounded animal stays in play from one tick to the next.
  if (Game.CurAnimal > 0 && !Game.WoundedFlag) Game.CurAnimal = 0;
  const TickEvent event = Game.CurAnimal > 0 ? eventWithAnimalInPlay(draw(51)) : eventWithNoAnimal(draw(121));
  switch (event) {
    case TickEvent::AnimalCall: Animalsnds(Game.TagSpecies); break;
    case TickEvent::TerrainRemark:
      if (Game.TerrainClass != 0) Saynotext(QStringLiteral("terrain") + QString::number(Game.TerrainClass));
      break;
    case TickEvent::StandRemark: Saynotext(QStringLiteral("Stand")); break;
    case TickEvent::WindShift: shiftWind(); break;
    case TickEvent::Encounter: encounter(); break;
    case TickEvent::AmbientSound: talk::AreaSound(); break;
    case TickEvent::Nothing: break;
  }
}

void surround::shiftWind() {
  reseed();
  if (draw(50) < 25) Game.WindDir = nextWindDirection(Game.WindDir);
  if (draw(50) < 25) Game.WindStrength = nextWindStrength(Game.WindStrength);
  Windbut->setText(windCaption(Game.WindDir, Game.WindStrength));
}

void surround::Callbutton_Click() {
  if (Game.EquipSlots[8] <= 0) return;
  Game.MediaBusy = -1;
  MCIWnd1->setFileName(Game.MediaRoot + QStringLiteral("sound\\item") + QString::number(Game.EquipSlots[8]) +
                       QStringLiteral(".wav"));
  MCIWnd1->command(QStringLiteral("PLAY"));
  Game.CallUsed = -1;
}

void surround::Animalsnds(int16_t species) {
  if (Game.MediaBusy) MCIWnd1->command(QStringLiteral("Close"));
  const int record = animalSoundRecord(species, draw(50));
  Game.MediaBusy = -1;
  try {
    platform::RecordData sounds;
    sounds.SetDatabaseName(recordFile(QStringLiteral("Asounds.isd"), false));
    sounds.SetCriteria(QStringLiteral("Field(\"ID\") = ") + QString::number(record));
    sounds.FindFirst();
    if (sounds.NoMatch()) return;
    MCIWnd1->setFileName(Game.MediaRoot + QStringLiteral("sound\\animals.wav"));
    MCIWnd1->command(QStringLiteral("PLAY From ") + sounds.Field(QStringLiteral("Animal Start")).trimmed() +
                     QStringLiteral(" to ") + sounds.Field(QStringLiteral("Animal Stop")).trimmed());
  } catch (const platform::RecordError&) {
    // A damaged sound table plays nothing; the hunt goes on.
  }
}

// The animal shows up at one of the ten trail points of the hunter's stand.
void surround::pickTrailPoint() {
  reseed();
  if (const auto point = findLocation(trailPointKey(Game.AreaLetter, Game.StandNum, draw(10))))
    Game.TerrainClass = point->terrain;
}

void surround::encounter() {
  pickTrailPoint();
  const int roll = draw(100);
  const int16_t callEffect = Game.CallUsed ? ToolScore(Game.EquipSlots[8]) : int16_t(0);
  if (roll > encounterNumber(Game.ToolsScore, callEffect, Game.OpticsBonus))
    Game.CurAnimal = Game.TagSpecies;
  else
    Game.CurAnimal = int16_t(rt::Int(platform::Rnd() * 42 + 1));
  if (!chooseEncounterVideo()) {
    Game.CurAnimal = 0;
    return;
  }
  StartVideoshot();
  Aftershot();
}

bool surround::chooseEncounterVideo() {
  try {
    platform::RecordData videos;
    videos.SetDatabaseName(recordFile(QStringLiteral("video.isd"), true));
    videos.SetCriteria(QStringLiteral("Field(\"Animalnum\") = ") + rt::numberText(Game.CurAnimal));
    QStringList names;
    for (videos.FindFirst(); !videos.NoMatch() && names.size() < kMostVideosPerAnimal; videos.FindNext())
      names << videos.Field(QStringLiteral("Videoname"));
    if (names.isEmpty()) return false;
    const QString chosen = names[draw(int(names.size()))];
    videos.SetCriteria(QStringLiteral("Field(\"Videoname\") = \"") + chosen + QStringLiteral("\""));
    videos.FindFirst();
    Game.VideoName = videos.Field(QStringLiteral("Videoname")).trimmed();
    Game.TrophySize = rt::parseNumber(videos.Field(QStringLiteral("Size")));
    Game.TrophyWeight = rt::parseNumber(videos.Field(QStringLiteral("Weight")));
    const QString hit =
        videos.Field(Game.CurWeapon >= 8 ? QStringLiteral("HitArrow") : QStringLiteral("HitGun"));
    if (hit.trimmed() != u"EMPTY") Game.HitVideoName = hit.trimmed();
    Game.EscapeVideoName = videos.Field(QStringLiteral("Escape")).trimmed();
    return true;
  } catch (const std::exception&) {
    return false;  // a damaged video table brings no animal
  }
}

// The shooting scene plays the encounter; its result comes back in the shared shot values.
void surround::StartVideoshot() {
  // The weapon is rated against the animal in view, at the distance of the last place looked at.
  LoadWeaponRating();
  Game.ShotYards = Game.RangeYards;
  showModalScreen<Videoshot>();
}

// A fixed bison encounter for trying out the shooting scene; nothing in the game calls it.
void surround::TestEncounter() {
  pickTrailPoint();
  Game.TagSpecies = 2;
  Game.CurAnimal = 2;
  Game.TrophySize = 14;
  Game.TrophyWeight = 400;
  Game.VideoName = QStringLiteral("DCBison3");
  Game.EscapeVideoName = QStringLiteral("deBison2");
  Game.HitVideoName = QStringLiteral("dhBison2");
  StartVideoshot();
  Aftershot();
}
