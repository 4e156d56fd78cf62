// SPDX-License-Identifier: GPL-2.0-or-later
// The comma-separated tables under data\, as the game's readers expect them: no header
// line, fields in a fixed order, one CR LF per line.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/world_layout.h"

#include <QByteArray>

namespace worldgen {

inline constexpr int kAnimalCount = 42;

QByteArray itemsTable(const Content& c);                    // a leading line, then item n on line n + 1
QByteArray toolsTable(const Content& c);                    // tool item, then species 1..16
QByteArray notEquipTable(const Content& c);                 // four worlds x sixteen half scores
QByteArray weaponTable(const Content& c);                   // 27 lines: weapon number, species 0..16
QByteArray tagCostTable(const Content& c);                  // species 0..16
QByteArray tagLimitTable(const Content& c);                 // species 1..16
QByteArray habitatTable(const Content& c, const World& w);  // species 1..16, 0 = absent
QByteArray testTable(const Content& c);                     // answer, "question"

// Species 1..16 that live in the world of this area letter.
QList<int> speciesOf(const Content& c, QChar letter);
// Every animal 1..42 that lives there.
QList<int> animalsOf(const Content& c, QChar letter);
// Row of animal n (1..42) in the animals table.
int animalRow(const Content& c, int animal);

// Rating of weapon 1..9 against species 0..16 at range band 0..2.
int weaponRating(const Content& c, int weapon, int species, int band);

}  // namespace worldgen
