// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's invariants over the game state.
#include "invariants.h"

#include "lodge/catalog.h"
#include "lodge/hguide.h"
#include "lodge/hunttest.h"
#include "lodge/inventory.h"
#include "lodge/licence.h"
#include "lodge/weapons.h"
#include "platform/records/record_file.h"
#include "shell/aviplay.h"
#include "shell/filer.h"
#include "shell/game_state.h"
#include "shell/screen_instance.h"
#include "shooting/record_book.h"
#include "shooting/shotdata.h"
#include "shooting/trange.h"
#include "shooting/videoshot.h"

#include <cmath>

namespace robot {

CatalogSlots readCatalogSlots(const std::filesystem::path& catalogFile) {
  const platform::RecordTable table = platform::readRecordFile(catalogFile);
  const qsizetype id = table.fields.indexOf(QStringLiteral("ID"));
  const qsizetype slot = table.fields.indexOf(QStringLiteral("Sub-CatNumber"));
  CatalogSlots items;
  if (id < 0 || slot < 0) return items;
  for (const QStringList& row : table.rows) items[row[id].trimmed().toInt()] = row[slot].trimmed().toInt();
  return items;
}

bool validTagCode(int16_t code) {
  return code == kTagFilled || code == kTagNone || code == kTagAbsent || (code >= 128 && code <= 137);
}

QStringList Invariants::checkTags(const GameState& game) const {
  QStringList notes;
  for (int species = 1; species < kTagCount; ++species) {
    const int16_t code = game.TagsOwned[species];
    if (!validTagCode(code)) notes << QStringLiteral("tag of species %1 holds %2").arg(species).arg(code);
  }
  return notes;
}

QStringList Invariants::checkItems(const GameState& game) const {
  QStringList notes;
  for (int entry = 1; entry < kOwnedItemCount; ++entry) {
    const int16_t item = game.OwnedItems[entry];
    if (item != kEmptyOwnedEntry && !catalog_.contains(item))
      notes << QStringLiteral("owned entry %1 holds unknown item %2").arg(entry).arg(item);
  }
  for (int slot = 1; slot < kEquipSlotCount; ++slot) {
    const int16_t item = game.EquipSlots[slot];
    if (item == 0) continue;
    const auto found = catalog_.find(item);
    if (found == catalog_.end())
      notes << QStringLiteral("slot %1 holds unknown item %2").arg(slot).arg(item);
    else if (found->second != slot)
      notes << QStringLiteral("slot %1 holds item %2 of slot %3").arg(slot).arg(item).arg(found->second);
  }
  return notes;
}

std::optional<QString> Invariants::checkClock(const GameState& game) {
  const rt::DateTime now = game.GameDate;
  const std::optional<rt::DateTime> before = lastClock_;
  lastClock_ = now;
  if (!before || now >= *before) return std::nullopt;
  // The morning reset sets the clock to dawn of a later day, never to an earlier one.
  if (std::floor(now) > std::floor(*before)) return std::nullopt;
  return QStringLiteral("clock went back from %1 to %2").arg(*before, 0, 'f', 5).arg(now, 0, 'f', 5);
}

QStringList Invariants::check(const GameState& game) {
  QStringList notes = checkTags(game);
  notes += checkItems(game);
  if (game.Money < 0) notes << QStringLiteral("money below zero: %1").arg(game.Money);
  if (auto clock = checkClock(game)) notes << *clock;
  notes += screensLeftOpen();
  return notes;
}

QStringList Invariants::screensLeftOpen() {
  QStringList open;
  const auto note = [&open](bool exists, const char* name) {
    if (exists) open << QStringLiteral("screen left open: ") + QLatin1String(name);
  };
  note(ScreenInstance<Catalog>::exists(), "Catalog");
  note(ScreenInstance<Inventory>::exists(), "Inventory");
  note(ScreenInstance<Weapons>::exists(), "Weapons");
  note(ScreenInstance<Licence>::exists(), "Licence");
  note(ScreenInstance<Hunttest>::exists(), "Hunttest");
  note(ScreenInstance<Hguide>::exists(), "Hguide");
  note(ScreenInstance<Videoshot>::exists(), "Videoshot");
  note(ScreenInstance<Shotdata>::exists(), "Shotdata");
  note(ScreenInstance<RecordBook>::exists(), "RecordBook");
  note(ScreenInstance<Trange>::exists(), "Trange");
  note(ScreenInstance<Aviplay>::exists(), "Aviplay");
  note(ScreenInstance<Filer>::exists(), "Filer");
  return open;
}

}  // namespace robot
