// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/start_files.h"

#include "platform/datetime.h"
#include "platform/text_file.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "tools/worldgen/tables.h"

#include <stdexcept>

namespace worldgen {

namespace {

constexpr int kQuickHuntMoney = 400;
constexpr int kBinocularLevel = 3;  // good glass, no rangefinder: the quick hunter still judges range

// Column of a world's item scores; Bitterroot and Teton share the mountain column.
const char* scoreField(const World& w) {
  static const char* const kFields[] = {"Score Piedmont", "Score Dakota", "Score Mountains", "Score Yukon"};
  return kFields[w.number];
}

int bestItemForSlot(const Content& c, const World& w, int slot) {
  int best = 0;
  int bestScore = 0;
  for (int row = 0; row < c.catalog.rows.size(); ++row) {
    if (cell(c.catalog, row, "Sub-CatNumber").toInt() != slot) continue;
    const int score = cell(c.catalog, row, scoreField(w)).toInt();
    if (best == 0 || score > bestScore) best = cell(c.catalog, row, "ID").toInt(), bestScore = score;
  }
  return best;
}

int catalogRowOf(const Content& c, int item) {
  for (int row = 0; row < c.catalog.rows.size(); ++row)
    if (cell(c.catalog, row, "ID").toInt() == item) return row;
  throw std::runtime_error("item " + std::to_string(item) + " is not in the catalogue");
}

// The tool that most favours the world's first species: the most negative effect brings the
// hunted species more often.
int bestToolForSlot(const Content& c, const World& w, int slot) {
  const QString species = speciesNameOf(speciesOf(c, w.letter).first());
  int best = 0;
  int bestEffect = 0;
  for (int row = 0; row < c.toolEffects.rows.size(); ++row) {
    const int item = cell(c.toolEffects, row, "ID").toInt();
    if (cell(c.catalog, catalogRowOf(c, item), "Sub-CatNumber").toInt() != slot) continue;
    const int effect = cell(c.toolEffects, row, species).toInt();
    if (best == 0 || effect < bestEffect) best = item, bestEffect = effect;
  }
  return best;
}

}  // namespace

void writeNewGame(const std::filesystem::path& file) {
  Game = GameState{};
  Game.OwnedItems.fill(kEmptyOwnedEntry);
  Game.TagsOwned.fill(kTagNone);
  Game.TagsOwned[0] = 0;
  Game.GameDate = rt::dateSerial(1997, 12, 22) + rt::timeSerial(6, 0, 0);
  Game.AreaCode = worldNameIn(false, 0).left(6);
  Game.AreaLetter = Game.AreaCode.left(1);
  if (!writeSaveFile(QString::fromStdString(file.string()), kGameKind))
    throw std::runtime_error("cannot write " + file.string());
}

QList<int> quickOutfit(const Content& c, const World& w) {
  QList<int> outfit(kEquipSlotCount, 0);
  for (int slot = 1; slot < kEquipSlotCount; ++slot) {
    const bool tool = slot >= 8 && slot <= 11;
    outfit[slot] = tool ? bestToolForSlot(c, w, slot) : bestItemForSlot(c, w, slot);
  }
  outfit[7] = kBinocularLevel;
  return outfit;
}

QByteArray quickHuntTable(const Content& c, const World& w) {
  const QList<int> outfit = quickOutfit(c, w);
  QList<int> owned(kOwnedItemCount, kEmptyOwnedEntry);
  int next = 1;
  for (int slot = 1; slot < kEquipSlotCount; ++slot)
    if (outfit[slot] != 0) owned[next++] = outfit[slot];
  const QList<int> species = speciesOf(c, w.letter);
  rt::PrintFile out;
  for (const int item : outfit) out.print(item);
  for (const int item : owned) out.print(item);
  for (int s = 0; s < kTagCount; ++s) out.print(s == 0 ? 0 : species.contains(s) ? kTagHeld : kTagAbsent);
  out.print(kQuickHuntMoney);
  return out.bytes();
}

}  // namespace worldgen
