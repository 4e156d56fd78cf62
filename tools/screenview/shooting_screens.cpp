// SPDX-License-Identifier: GPL-2.0-or-later
// The shooting scenes over the sample world: a shot at the first game animal of the world's
// clip table, the trophy page and record book of a kill, and the range with a few holes.
#include "tools/screenview/screen_registry.h"

#include "platform/records/record_data.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shell/screen_instance.h"
#include "shell/screen_layout.h"
#include "shooting/record_book.h"
#include "shooting/shotdata.h"
#include "shooting/trange.h"
#include "shooting/videoshot.h"

namespace {

const QString kRifleSight = QStringLiteral("rifle0");

void armWithRifle() {
  Game.CurWeapon = 1;
  Game.CurWeaponPic = kRifleSight;
  SetWeaponSight();
}

// The encounter of the first clip of a game species in the world's clip table, as the hunt
// sets it up when an animal appears.
void setUpEncounter() {
  platform::RecordData clips;
  clips.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + Game.AreaLetter + QStringLiteral("video.isd"));
  clips.FindFirst();
  while (!clips.NoMatch() && clips.Field(QStringLiteral("Animalnum")).toInt() > kSpeciesCount)
    clips.FindNext();
  Game.CurAnimal = rt::to16(clips.Field(QStringLiteral("Animalnum")).toInt());
  Game.VideoName = clips.Field(QStringLiteral("Videoname")).trimmed();
  Game.HitVideoName = clips.Field(QStringLiteral("HitGun")).trimmed();
  Game.EscapeVideoName = clips.Field(QStringLiteral("Escape")).trimmed();
  Game.TrophySize = clips.Field(QStringLiteral("Size")).toDouble();
  Game.TrophyWeight = clips.Field(QStringLiteral("Weight")).toDouble();
  Game.TagsOwned[Game.CurAnimal] = kTagHeld;
  Game.ShotYards = 185;
  Game.CurLocation = QStringLiteral("Climbing stand over the creek bottom, stand 3");
  armWithRifle();
}

const RegisterScreen videoshot{"Videoshot", [] {
                                 setUpEncounter();
                                 auto& shot = ScreenInstance<Videoshot>::get();
                                 shot.Form_Load();
                                 // The sight where a player would hold it, near the clip's middle.
                                 const QPoint aim =
                                     shot.displayOrigin() + QPoint(160, 130) * shot.displayScale();
                                 shot.ActiveRDX1_MouseMove(0, 0, aim.x() * 15.0, aim.y() * 15.0);
                                 return static_cast<QWidget*>(&shot);
                               }};

const RegisterScreen shotdata{"Shotdata", [] {
                                setUpEncounter();
                                auto& page = ScreenInstance<Shotdata>::get();
                                page.Form_Load();
                                return static_cast<QWidget*>(&page);
                              }};

const RegisterScreen recordBook{"RecordBook", [] {
                                  setUpEncounter();
                                  Game.ScreenMode = RecordBook::kAppendMode;
                                  // Two kills of the species, the second a little bigger.
                                  ScreenInstance<RecordBook>::get().Form_Load();
                                  ScreenInstance<RecordBook>::unload();
                                  Game.TrophySize *= 1.1;
                                  Game.TrophyWeight *= 1.08;
                                  auto& book = ScreenInstance<RecordBook>::get();
                                  book.Form_Load();
                                  return static_cast<QWidget*>(&book);
                                }};

const RegisterScreen trange{"Trange", [] {
                              armWithRifle();
                              Game.ScreenState = QStringLiteral("3");
                              auto& range = ScreenInstance<Trange>::get();
                              range.Form_Load();
                              // A group of three shots low and right of the centre of the target.
                              const TargetRect t = range.target();
                              const QPoint centre((t.left + t.right) / 2, (t.top + t.bottom) / 2);
                              for (QPoint off : {QPoint(12, 20), QPoint(26, 14), QPoint(18, 31)}) {
                                const QPoint at = (centre + off) * 15;
                                range.ActiveRDX1_MouseDown(1, 0, at.x(), at.y());
                              }
                              range.ActiveRDX1_MouseMove(0, 0, centre.x() * 15.0, centre.y() * 15.0);
                              return static_cast<QWidget*>(&range);
                            }};

}  // namespace
