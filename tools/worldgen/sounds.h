// SPDX-License-Identifier: GPL-2.0-or-later
// The synthesised sounds of the sample world: shots, reloads, calls, the animal calls in one
// file, an ambient track per world and the cash register.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>

namespace worldgen {

void writeSounds(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
