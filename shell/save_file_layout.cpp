// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/save_file_layout.h"

#include "shell/game_state.h"

namespace {

SaveField integer(const char* name, int16_t GameState::*member, bool gameOnly = true) {
  return {name, gameOnly, 1, [member](rt::PrintFile& out) { out.print(Game.*member); },
          [member](rt::ListInput& in) { Game.*member = in.inputInt16(); }};
}

SaveField real(const char* name, double GameState::*member) {
  return {name, true, 1, [member](rt::PrintFile& out) { out.print(Game.*member); },
          [member](rt::ListInput& in) { Game.*member = in.inputDouble(); }};
}

SaveField text(const char* name, QString GameState::*member) {
  return {name, true, 1, [member](rt::PrintFile& out) { out.print(Game.*member); },
          [member](rt::ListInput& in) { Game.*member = in.inputString(); }};
}

template <size_t N>
SaveField array(const char* name, std::array<int16_t, N> GameState::*member) {
  return {name, false, static_cast<int>(N),
          [member](rt::PrintFile& out) {
            for (const int16_t value : Game.*member) out.print(value);
          },
          [member](rt::ListInput& in) {
            for (int16_t& value : Game.*member) value = in.inputInt16();
          }};
}

// Weapons 0..9, elevation then windage for each; entry 10 is never written.
SaveField sights() {
  constexpr int kWeapons = 10;
  return {"SightElev/SightWind", true, 2 * kWeapons,
          [](rt::PrintFile& out) {
            for (int w = 0; w < kWeapons; ++w) {
              out.print(Game.SightElev[w]);
              out.print(Game.SightWind[w]);
            }
          },
          [](rt::ListInput& in) {
            for (int w = 0; w < kWeapons; ++w) {
              Game.SightElev[w] = in.inputInt16();
              Game.SightWind[w] = in.inputInt16();
            }
          }};
}

SaveField date() {
  return {"GameDate", true, 1, [](rt::PrintFile& out) { out.printDate(Game.GameDate); },
          [](rt::ListInput& in) { Game.GameDate = in.inputDate(); }};
}

std::vector<SaveField> buildLayout() {
  using G = GameState;
  return {
      array("EquipSlots", &G::EquipSlots),
      array("OwnedItems", &G::OwnedItems),
      array("TagsOwned", &G::TagsOwned),
      integer("SavedFlagA", &G::SavedFlagA, false),
      integer("Money", &G::Money, false),
      integer("TagSpecies", &G::TagSpecies),
      integer("SkillLevel", &G::SkillLevel),
      date(),
      integer("WorldNum", &G::WorldNum),
      text("AreaLetter", &G::AreaLetter),
      text("AreaCode", &G::AreaCode),
      text("HunterName", &G::HunterName),
      integer("PlaceMode", &G::PlaceMode),
      integer("CurHotspot", &G::CurHotspot),
      integer("CallUsed", &G::CallUsed),
      integer("OpticsBonus", &G::OpticsBonus),
      integer("EventCooldown", &G::EventCooldown),
      text("HitVideoName", &G::HitVideoName),
      text("EscapeVideoName", &G::EscapeVideoName),
      text("VideoName", &G::VideoName),
      real("TrophySize", &G::TrophySize),
      real("TrophyWeight", &G::TrophyWeight),
      text("StartPano", &G::StartPano),
      integer("StandNum", &G::StandNum),
      integer("TerrainClass", &G::TerrainClass),
      integer("RangeBand", &G::RangeBand),
      integer("RangeYards", &G::RangeYards),
      integer("SkillLevel", &G::SkillLevel),  // written twice; the second copy wins
      integer("ClothesScore", &G::ClothesScore),
      integer("ToolsScore", &G::ToolsScore),
      integer("CurWeapon", &G::CurWeapon),
      text("CurWeaponPic", &G::CurWeaponPic),
      integer("WeaponRating", &G::WeaponRating),
      integer("ZoneValue", &G::ZoneValue),
      integer("ShotQuality", &G::ShotQuality),
      text("TrophyUnit", &G::TrophyUnit),
      integer("CurAnimal", &G::CurAnimal),
      integer("ShotOutcome", &G::ShotOutcome),
      integer("HitZoneResult", &G::HitZoneResult),
      integer("WoundedFlag", &G::WoundedFlag),
      integer("OpticsUp", &G::OpticsUp),
      integer("WindDir", &G::WindDir),
      integer("WindStrength", &G::WindStrength),
      integer("SayIndex", &G::SayIndex),
      text("CurLocation", &G::CurLocation),
      sights(),
  };
}

}  // namespace

const std::vector<SaveField>& saveFileLayout() {
  static const std::vector<SaveField> layout = buildLayout();
  return layout;
}

int saveFileLines(char kind) {
  int lines = 0;
  for (const SaveField& field : saveFileLayout())
    if (kind == kGameKind || !field.gameOnly) lines += field.lines;
  return lines;
}
