// SPDX-License-Identifier: GPL-2.0-or-later
// The photograph of each trophy, one per encounter clip of a game species: the animal in the
// world's scenery where the hunter met it.
#pragma once

#include "tools/worldgen/content.h"

#include <QImage>

#include <filesystem>

namespace worldgen {

// The record book's picture of a species, standing in the first world it lives in.
QImage recordBookPicture(const Content& c, int species);

void writeTrophyPhotos(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
