// SPDX-License-Identifier: GPL-2.0-or-later
// The files a hunt starts from: the default game data\newgam.csv and the quick-hunt outfit
// data\q<AreaCode>.csv of each world, both in the save-file form the game reads.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/world_layout.h"

#include <QByteArray>
#include <QList>

#include <filesystem>

namespace worldgen {

// Writes the default game with the game's own save writer; throws when that fails.
void writeNewGame(const std::filesystem::path& file);

// What a quick hunter carries in a world: one item per slot (0 = none), best for the world.
QList<int> quickOutfit(const Content& c, const World& w);
// Equipment slots, owned items, tags, then the money, one value a line.
QByteArray quickHuntTable(const Content& c, const World& w);

}  // namespace worldgen
