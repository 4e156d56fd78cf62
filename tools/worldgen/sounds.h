// SPDX-License-Identifier: GPL-2.0-or-later
// The sounds of the sample world: shots, reloads, the hunter's calls, the animal calls in one
// file, an ambient track per world and the cash register; recorded where Debian has them.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/sound_recordings.h"

#include <filesystem>

namespace worldgen {

// With the installed recordings; says once which ones are missing and were synthesised.
void writeSounds(const Content& c, const std::filesystem::path& root);
void writeSounds(const Content& c, const std::filesystem::path& root, const Recordings& recordings);

}  // namespace worldgen
