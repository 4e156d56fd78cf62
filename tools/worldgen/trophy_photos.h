// SPDX-License-Identifier: GPL-2.0-or-later
// The photograph of each trophy, one per encounter clip of a game species: the animal in the
// world's scenery where the hunter met it.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>

namespace worldgen {

void writeTrophyPhotos(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
