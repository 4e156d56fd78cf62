// SPDX-License-Identifier: GPL-2.0-or-later
// The outdoor scenery of each world in late December, painted as a strip that joins up at its
// ends: sky, far ridges, ground, trees, water and snow. Panoramas show it whole; clips show a
// piece of it behind the animal.
#pragma once

#include <QChar>
#include <QImage>
#include <QString>

namespace worldgen {

struct LandscapeRequest {
  QChar world;      // area letter
  QString variant;  // names the place, so each place looks different yet stays fixed
  int width = 2048;
  int height = 384;
  double horizon = 0.5;  // fraction of the height where the land meets the far ridges
  bool seamless = true;  // the strip is a full turn
};

QImage paintLandscape(const LandscapeRequest& request);

}  // namespace worldgen
