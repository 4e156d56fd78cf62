// SPDX-License-Identifier: GPL-2.0-or-later
// Every panorama of the sample world: one manifest per name the game builds, for each
// resolution code, sharing one picture per place.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/world_layout.h"

#include <filesystem>

namespace worldgen {

// The places with the hotspots their manifests carry: an optics view carries its stand's.
QList<Place> panoramaPlaces(const World& w, const Content& c);

void writePanoramas(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
