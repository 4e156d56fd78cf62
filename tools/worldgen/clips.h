// SPDX-License-Identifier: GPL-2.0-or-later
// The animal clips of the sample world: encounters with their hit-zone files, escapes, hits,
// animals that may not be shot, tracking films and the area films.
#pragma once

#include "tools/worldgen/animal_figure.h"
#include "tools/worldgen/content.h"

#include <QByteArray>
#include <QImage>

#include <filesystem>

namespace worldgen {

inline constexpr int kEncounterFrames = 255;  // seventeen seconds

// The scenery behind the k-th clips of a world.
QImage clipBackdrop(QChar world, int k);
// Where animal `animal` stands in picture n of its k-th encounter clip.
Pose encounterPose(int animal, int k, int n);
// The encounter clip itself, drawn over `backdrop`.
void writeEncounterClip(const std::filesystem::path& file, const QImage& backdrop, int animal, int k);
// The hit-zone file of that clip: one 50-byte record per slice the game reads.
QByteArray hitZoneFile(int animal, int k);

void writeClips(const Content& c, const std::filesystem::path& root);

}  // namespace worldgen
