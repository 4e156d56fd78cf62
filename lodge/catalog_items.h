// SPDX-License-Identifier: GPL-2.0-or-later
// The outfitter's catalogue as the lodge screens read it: one item's record by its number,
// and the name and category of every item number, read once from catalog.isd.
#pragma once

#include "shell/game_state.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace platform {
class RecordData;
}

namespace lodge {

struct CatalogItem {
  int16_t id = 0;
  QString name;
  QString description;
  int16_t cost = 0;
  int16_t catNumber = 0;     // 1..5; the category tab is one less
  int16_t subCatNumber = 0;  // the equipment slot the item fills
};

// The catalogue of the world group in play.
QString catalogPath();
// The current record of `data` as an item; numbers that will not read are 0.
CatalogItem itemFromRecord(const platform::RecordData& data);
// The record of item `item`, found by `Field("ID") = ` and the number; none when absent.
std::optional<CatalogItem> Lookupitem(int item);

// Names and category tabs (0..4, -1 for no item) of item numbers 0..65.
struct ItemTables {
  std::array<QString, kOwnedItemCount> names;
  std::array<int16_t, kOwnedItemCount> tabs{};
  QString source;  // the catalogue they were read from; empty until read
};
// Reads the tables from the catalogue of the world group in play.
void LoadItemTables();
// The tables, read on first use and again when the game has moved to the other world group.
const ItemTables& itemTables();

}  // namespace lodge
