// SPDX-License-Identifier: GPL-2.0-or-later
// The full-view pictures between and after the days of a hunt: night at the lodge and at
// camp, the hunt's happy and unhappy ends, jail, and the binocular and rangefinder views.
#pragma once

#include <filesystem>

namespace worldgen {

void writeNightAndEndPictures(const std::filesystem::path& root);
void writeOpticsOverlays(const std::filesystem::path& root);

}  // namespace worldgen
