// SPDX-License-Identifier: GPL-2.0-or-later
// What each optics item in the optics slot does: how far it magnifies, and whether it also
// measures the distance.
#pragma once

// Levels 1..4 are binoculars, 5 and 6 rangefinders; any other level magnifies nothing (1).
double opticsZoom(int level);
bool isRangefinder(int level);
// Added to the encounter number while the optics are up: half the magnification, whole.
int opticsBonusOf(int level);
