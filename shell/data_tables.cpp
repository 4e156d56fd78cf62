// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/data_tables.h"

#include "platform/files.h"
#include "platform/runtime.h"
#include "platform/text_file.h"
#include "shell/game_state.h"

#include <functional>

namespace {

// Opens a table of the media tree and runs `read` over it. Whatever goes wrong inside
// (no file, too few fields, text where a number belongs) ends the reading quietly.
void readTable(const QString& name, const std::function<void(rt::ListInput&)>& read) {
  try {
    rt::ListInput in(platform::files().resolve(Game.MediaRoot + name));
    read(in);
  } catch (const std::exception&) {
    // Keep what was read.
  }
}

void skipLines(rt::ListInput& in, int count) {
  for (int i = 0; i < count; ++i) in.lineInput();
}

bool isClothingSlot(int slot) {
  return (slot >= 1 && slot <= 6) || (slot >= 12 && slot <= 16);
}
bool isToolSlot(int slot) {
  return slot >= 9 && slot <= 11;
}

}  // namespace

int16_t ItemScore(int item) {
  int16_t score = 0;
  readTable(QStringLiteral("data\\items.csv"), [&](rt::ListInput& in) {
    if (item > 0 && item < 255) skipLines(in, item);
    for (int world = 0; world <= Game.WorldNum; ++world) score = in.inputInt16();
  });
  return score;
}

int16_t ToolScore(int item) {
  int16_t score = 0;
  readTable(QStringLiteral("data\\tools.csv"), [&](rt::ListInput& in) {
    while (!in.eof()) {
      if (in.inputInt16() == item) {
        for (int column = 1; column <= Game.TagSpecies; ++column) score = in.inputInt16();
        return;
      }
      in.lineInput();
    }
  });
  return score;
}

void LoadNotEquipScores() {
  constexpr int kSlots = kEquipSlotCount - 1;
  readTable(QStringLiteral("data\\notequip.csv"), [](rt::ListInput& in) {
    for (int field = 0; field < Game.WorldNum * kSlots; ++field) in.inputInt16();
    // The file holds half values.
    for (int slot = 1; slot <= kSlots; ++slot) Game.NotEquipScore[slot] = rt::mul16(in.inputInt16(), 2);
  });
}

void LoadWeaponRating() {
  if (Game.CurAnimal >= 17) {
    Game.WeaponRating = -255;
    return;
  }
  if (Game.RangeBand > 2) Game.RangeBand = 2;
  const int row = (Game.CurWeapon - 1) + 9 * Game.RangeBand;
  int16_t rating = 0;
  readTable(QStringLiteral("data\\weptab.csv"), [&](rt::ListInput& in) {
    if (row > 0) skipLines(in, row);
    for (int field = 0; field <= Game.CurAnimal + 1; ++field) rating = in.inputInt16();
  });
  Game.WeaponRating = rating;
}

void ComputeEquipScores() {
  int16_t clothes = 0;
  int16_t tools = 0;
  for (int slot = 1; slot < kEquipSlotCount; ++slot) {
    const int16_t item = Game.EquipSlots[slot];
    if (isClothingSlot(slot))
      clothes = rt::add16(clothes, item != 0 ? ItemScore(item) : Game.NotEquipScore[slot]);
    else if (isToolSlot(slot))
      tools = rt::add16(tools, item != 0 ? ToolScore(item) : Game.NotEquipScore[slot]);
  }
  Game.ClothesScore = clothes;
  Game.ToolsScore = tools;
}
