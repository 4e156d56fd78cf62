// SPDX-License-Identifier: GPL-2.0-or-later
// The pictures of the shooting scenes: each weapon's sight in its six recoil frames, the
// bullet holes, and the range behind each class of target in every world.
#pragma once

#include <QImage>

#include <filesystem>

namespace worldgen {

// The sights' and holes' see-through colour, magenta (&H00FF00FF).
inline constexpr QRgb kKeyColour = 0xffff00ff;
inline constexpr int kRecoilFrames = 6;

// A weapon's sight as the shooter sees it, frames side by side; the aim point of frame 0 lies
// at the weapon's sight offsets.
QImage sightStrip(int weapon);

void writeShootingPictures(const std::filesystem::path& root);

}  // namespace worldgen
