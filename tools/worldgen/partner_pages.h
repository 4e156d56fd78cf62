// SPDX-License-Identifier: GPL-2.0-or-later
// The small local web pages the menus open: the makers' page, the sponsor's, the publisher's
// and the two partners', each an index.htm with a picture beside it.
#pragma once

#include <filesystem>

namespace worldgen {

// The folders under the media root, one index.htm each.
inline constexpr const char* kPartnerFolders[] = {"devpage", "coldwater", "mardens", "qlpage", "redfern"};

void writePartnerPages(const std::filesystem::path& root);

}  // namespace worldgen
