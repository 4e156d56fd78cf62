// SPDX-License-Identifier: GPL-2.0-or-later
// Drawing on a strip that is a full turn: whatever crosses one end is drawn again at the other.
#pragma once

namespace worldgen {

// Calls draw(shift) for a thing spanning left..right, and again shifted by a turn for each end
// of the strip it crosses, so the seam never cuts it.
template <class Draw>
void drawAcrossSeam(double left, double right, int width, bool seamless, Draw&& draw) {
  draw(0.0);
  if (!seamless) return;
  if (left < 0) draw(double(width));
  if (right > width) draw(-double(width));
}

}  // namespace worldgen
