// SPDX-License-Identifier: GPL-2.0-or-later
// The game paths of the shooting scenes' clips, sounds and pictures, written once.
#pragma once

#include <QString>

// The sight of the selected weapon: one picture holding its recoil frames side by side,
// equal in width, the aim point at (SightX, SightY) of each frame; magenta is see-through.
inline constexpr int kSightFrames = 6;
inline constexpr int kSightKeyColour = 0x00ff00ff;  // &H00BBGGRR
inline constexpr int kHoleKeyColour = 0x00ff00ff;

QString sightPicturePath();
QString shotSoundPath();
QString reloadSoundPath();
// Clip `name` of folder `folder` ("Vmain\", "VEscapes\", "VHits\", "VProt\").
QString clipPath(const QString& folder, const QString& name);
QString hitZoneFilePath();
// Hole picture `index` (0..9) of the range.
QString holePicturePath(int index);
// The range picture behind the target of the weapon class given by `suffix`.
QString rangePicturePath(const QString& suffix);
