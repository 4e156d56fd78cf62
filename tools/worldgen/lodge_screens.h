// SPDX-License-Identifier: GPL-2.0-or-later
// The backgrounds of the lodge's screens for each world: the catalogue, the pack, the gun
// rack, the licence board, the test, the guide, the conversation box, the award page and the
// record book, all of the lodge's wood, paper, leather and brass.
#pragma once

#include <filesystem>

namespace worldgen {

void writeLodgeScreens(const std::filesystem::path& root);

}  // namespace worldgen
