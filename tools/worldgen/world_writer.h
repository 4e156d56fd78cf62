// SPDX-License-Identifier: GPL-2.0-or-later
// Writes the whole data, record and voice part of the sample world into a folder.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>

namespace worldgen {

// Throws std::runtime_error when a file cannot be written.
void writeWorld(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
