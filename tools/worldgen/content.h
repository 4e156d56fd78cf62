// SPDX-License-Identifier: GPL-2.0-or-later
// The authored sources of the sample world, read from the content folder: every table the
// generator turns into game files, each kept as the text table its author wrote.
#pragma once

#include "platform/records/record_file.h"

#include <QString>

#include <filesystem>

namespace worldgen {

using platform::RecordTable;

struct Content {
  RecordTable catalog;        // catalogue records plus one score column per world
  RecordTable toolEffects;    // tool item, then its effect against species 1..16
  RecordTable notEquipped;    // one row per world: half scores of the empty slots 1..16
  RecordTable animals;        // animals 1..42: names, clip stems, worlds, sizes, calls
  RecordTable tags;           // species 0..16: tag cost and limit
  RecordTable weaponsBase;    // weapon records of the base worlds
  RecordTable weaponsPermit;  // weapon records of the special-permit worlds
  RecordTable weaponRatings;  // rating rules per weapon
  RecordTable speech;         // one spoken line a row: key, speaker, text pieces split by |
  RecordTable testQuestions;  // answer and question
  RecordTable places;         // per world: camp, fork, stands, map with heading and description
  RecordTable landmarks;      // per world: trail-point landmarks with their terrain class
  QString guide;              // the hunting guide in its light markup
};

// Reads every source; throws std::runtime_error naming a missing or unreadable one.
Content loadContent(const std::filesystem::path& folder);

// The folder the build keeps the sources in.
std::filesystem::path defaultContentFolder();

// Value of `field` in `row` of `table`; throws when the table has no such field.
QString cell(const RecordTable& table, int row, const QString& field);

}  // namespace worldgen
