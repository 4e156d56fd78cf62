// SPDX-License-Identifier: GPL-2.0-or-later
// The rules the game state must keep after every step of play: tag codes, equipment and
// owned items known to the catalogue, money, a clock that only runs forward, and no screen
// left open over the hunting screen.
#pragma once

#include "platform/datetime.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>

struct GameState;

namespace robot {

// Item numbers of a world group's catalogue with the equipment slot each fills.
using CatalogSlots = std::map<int, int>;
CatalogSlots readCatalogSlots(const std::filesystem::path& catalogFile);

// True for the codes a species' tag may hold: 32 filled, 64 none, 128..137 held, 255 absent.
bool validTagCode(int16_t code);

class Invariants {
 public:
  void setCatalog(CatalogSlots catalog) { catalog_ = std::move(catalog); }
  // A load or a new hunt sets the clock anew; it may then stand before the last reading.
  void forgetClock() { lastClock_.reset(); }
  // What is wrong with `game` now, one note per broken rule; empty when all hold.
  QStringList check(const GameState& game);
  // Modal screens still loaded; none may outlive its step. The conversation box may stay, as
  // spoken lines show in it without a modal loop.
  static QStringList screensLeftOpen();

 private:
  QStringList checkTags(const GameState& game) const;
  QStringList checkItems(const GameState& game) const;
  std::optional<QString> checkClock(const GameState& game);

  CatalogSlots catalog_;
  std::optional<rt::DateTime> lastClock_;
};

}  // namespace robot
