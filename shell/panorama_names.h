// SPDX-License-Identifier: GPL-2.0-or-later
// The names of the panoramas of the current world: one place that builds them, for the
// screens that open them and the tools that write them.
#pragma once

#include <QString>

// Location names: the part of a panorama file name after the world letter.
QString lodgeLocation();
QString rangeLocation();
QString campLocation();        // area prefix + "camp", or "2camp" in the special-permit worlds
QString standLocation(int n);  // "3" + area prefix + "stnd" (or "2snd") + n
QString quickHuntLocation();   // "map" (or "2map") + area prefix
// The location a saved place reopens: a stand, the camp, the lodge; the range is not
// reopened, so a game saved there resumes at the lodge.
QString loadedPlaceLocation(int placeMode);

// `MediaRoot` + "surnd\" + world letter + location + ".svh".
QString panoramaPath(const QString& location);
// The optics view of stand n: `MediaRoot` + "surnd\63" + area prefix + "stnd" (or "2snd") + n + ".svh".
QString opticsPanoramaPath(int n);
