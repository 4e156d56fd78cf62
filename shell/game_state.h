// SPDX-License-Identifier: GPL-2.0-or-later
// The one set of global values every screen reads and writes: the hunter, the world, the
// clock, what is owned and carried, the tags, the weapon and the encounter in progress.
// 16-bit values are int16_t so that arithmetic on them can be checked like the original's.
#pragma once

#include "platform/datetime.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

// Array sizes fixed by the save-file layout.
inline constexpr int kEquipSlotCount = 17;  // slots 1..16, slot 0 never holds anything
inline constexpr int kOwnedItemCount = 66;  // entries 1..65
inline constexpr int kTagCount = 17;        // species 1..16
inline constexpr int kSightCount = 11;      // weapons 0..9; entry 10 is never used
inline constexpr int16_t kEmptyOwnedEntry = 255;
inline constexpr int kConvLineCount = 51;  // lines a speech key may own

// Tag states.
inline constexpr int16_t kTagFilled = 32;
inline constexpr int16_t kTagNone = 64;
inline constexpr int16_t kTagHeld = 128;  // 128..137: held, raised by one per animal taken
inline constexpr int16_t kTagAbsent = 255;

struct GameState {
  // Directories and run settings, set at start-up and never saved.
  QString MediaRoot = QStringLiteral("D:\\");
  QString Fileloc;
  int16_t XpackMode = 0;
  QString DbaseDir = QStringLiteral("Dbase\\");
  QString SaveExt = QStringLiteral(".VN");
  int32_t ScreenWidth = 0;  // twips; 32-bit so that wide screens fit
  int32_t ScreenHeight = 0;
  int16_t TwipsPerPixel = 15;
  int32_t LayoutX = 0;
  int32_t LayoutW = 0;
  int32_t LayoutY = 0;
  QString ResCode = QStringLiteral("1");
  QString ResCode2 = QStringLiteral("1");
  QString ScreenState;
  int16_t VideoBusy = 0;
  QString HelpFile;  // the game's help pages, opened by F1

  // The game, all saved.
  std::array<int16_t, kEquipSlotCount> EquipSlots{};
  std::array<int16_t, kOwnedItemCount> OwnedItems{};
  std::array<int16_t, kTagCount> TagsOwned{};
  int16_t SavedFlagA = 0;
  int16_t Money = 2500;
  int16_t TagSpecies = 0;
  int16_t SkillLevel = 0;
  rt::DateTime GameDate = 0;
  int16_t WorldNum = 0;
  QString AreaCode;
  QString AreaLetter;
  QString HunterName = QStringLiteral("Hunter");
  int16_t PlaceMode = 0;
  int16_t CurHotspot = 0;
  int16_t CallUsed = 0;
  int16_t OpticsBonus = 0;
  int16_t EventCooldown = 0;
  QString HitVideoName;
  QString EscapeVideoName;
  QString VideoName;
  double TrophySize = 0;
  double TrophyWeight = 0;
  QString StartPano = QStringLiteral("3lodge");
  int16_t StandNum = 0;
  int16_t TerrainClass = 0;
  int16_t RangeBand = 0;
  int16_t RangeYards = 0;
  int16_t ClothesScore = 0;
  int16_t ToolsScore = 0;
  int16_t CurWeapon = 0;
  QString CurWeaponPic;
  int16_t WeaponRating = 0;
  int16_t ZoneValue = 0;
  int16_t ShotQuality = 0;
  QString TrophyUnit;
  int16_t CurAnimal = 0;
  int16_t ShotOutcome = 0;
  int16_t HitZoneResult = 0;
  int16_t WoundedFlag = 0;
  int16_t OpticsUp = 0;
  int16_t WindDir = 0;
  int16_t WindStrength = 0;
  int16_t SayIndex = 0;
  QString CurLocation;
  std::array<int16_t, kSightCount> SightElev{};
  std::array<int16_t, kSightCount> SightWind{};

  // Derived from the tables of the current world; not saved.
  std::array<int16_t, kEquipSlotCount> NotEquipScore{};
  int16_t SightX = 0;
  int16_t SightY = 0;
  int16_t SightZ = 0;

  // Further shared values the screens hand to each other; not saved.
  std::array<int16_t, kTagCount> TagLimit{};  // animals a tag allows, species 1..16
  int16_t ScreenMode = 0;        // why a reused screen opened: tags 1 buy, 2 quarry; record book 3, 4
  int16_t PendingMove = 0;       // move after the shot: 1 camp, 2 jail, 3 stand
  int16_t FirstArrival = 0;      // set on arriving at the lodge from elsewhere
  int16_t ConversationDone = 0;  // cleared as a conversation starts; nothing else uses it yet
  int16_t MediaBusy = 0;         // a sound of a lodge screen is playing
  int16_t VideoReturn = 0;       // what the clip player returns to
  int16_t AviTracking = 0;       // the clip about to play is a tracking film
  int16_t MissDirection = 0;     // miss direction code of the last shot
  int16_t DamagedTrophy = 0;     // the trophy was spoiled by the shot
  int16_t TrackedSpecies = 0;    // species of the wounded animal being tracked
  int16_t ShotYards = 0;         // distance of the last shot
  QString WoundedPlace;          // the trail point where the wounded animal lies, upper-cased
  bool VideosOn = true;          // intro, area and tracking films
  bool TestRewarded = false;     // the hunter's test prizes were paid this hunt
  bool SponsorOn = true;         // the world has a sponsor and its pages
  // The conversation in progress: the numbers of its recorded lines, how many, and the stretch
  // of sound of the line now current. The list position is SayIndex.
  std::array<int16_t, kConvLineCount> ConvLines{};
  int16_t ConvCount = 0;
  QString ConvStart;
  QString ConvEnd;
  QString ConvPath;
};

// The game's global values. Reset with `Game = GameState{}`.
extern GameState Game;
