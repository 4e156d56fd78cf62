// SPDX-License-Identifier: GPL-2.0-or-later
// Every panorama of the sample world: one manifest per name the game builds, for each
// resolution code, sharing one picture per place.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>

namespace worldgen {

void writePanoramas(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
