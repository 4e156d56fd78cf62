// SPDX-License-Identifier: GPL-2.0-or-later
// Writes the sample world into a folder: its tables, records and voices, and unless asked
// not to, the painted panoramas, pictures, clips and sounds.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>
#include <functional>
#include <string_view>

namespace worldgen {

enum class WorldParts { TablesRecordsAndVoices, Everything };

// Told each stage's name as it begins, so that a terminal can show how far a long run is.
using StageReport = std::function<void(std::string_view stage)>;
inline constexpr int kWorldStages = 7;

// Throws std::runtime_error when a file cannot be written.
void writeWorld(const Content& c, const std::filesystem::path& root,
                WorldParts parts = WorldParts::Everything, const StageReport& onStage = {});

}  // namespace worldgen
