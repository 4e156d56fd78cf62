// SPDX-License-Identifier: GPL-2.0-or-later
// The still pictures of the sample world: item pictures and icons, weapons, tags, trophies
// and the portraits of the people one talks to; then every screen's own pictures, the
// shooting scenes' sights and targets, the trophy photographs and the partners' pages.
#pragma once

#include "tools/worldgen/content.h"

#include <filesystem>

namespace worldgen {

void writePictures(const Content& c, const std::filesystem::path& root);

// The catalogue's item pictures and icons and the gun rack's weapons and icons, the part of
// the pictures that the catalogue's and the rack's own checks look at.
void writeGearPictures(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
