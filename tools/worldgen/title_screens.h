// SPDX-License-Identifier: GPL-2.0-or-later
// The pictures around the hunt itself: the main menu, both sides of the postcard, the four
// world pictures, the loading screen and the sponsor's badge.
#pragma once

#include <filesystem>

namespace worldgen {

void writeTitleScreens(const std::filesystem::path& root);

}  // namespace worldgen
