// SPDX-License-Identifier: GPL-2.0-or-later
// The selected weapon's sight on the mixer: its recoil frames cut from one picture, and the
// recoil itself, stepped through with a drawn frame each.
#pragma once

#include <QPoint>

namespace platform {
class ActiveRDX;
class ImageSequence;
}  // namespace platform

// Fills `sequence` with the frames of the selected weapon's sight picture; a missing picture
// leaves it empty, so no sight is drawn.
void loadSightFrames(platform::ActiveRDX& mixer, platform::ImageSequence& sequence);

// Frames 0 to 5 with a draw after each, then frame 0 again.
void playRecoil(platform::ActiveRDX& mixer, platform::ImageSequence& sequence);

// Where the sight picture's corner goes for the cursor at `cursor`: its aim point under it.
QPoint sightCorner(QPoint cursor);
