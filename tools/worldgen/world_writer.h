// SPDX-License-Identifier: GPL-2.0-or-later
// Writes the sample world into a folder: its tables, records and voices, and unless asked
// not to, the painted panoramas, pictures, clips and sounds.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>

namespace worldgen {

enum class WorldParts { TablesRecordsAndVoices, Everything };

// Throws std::runtime_error when a file cannot be written.
void writeWorld(const Content& c, const std::filesystem::path& root,
                WorldParts parts = WorldParts::Everything);

}  // namespace worldgen
