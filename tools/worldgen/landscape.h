// SPDX-License-Identifier: GPL-2.0-or-later
// The outdoor scenery of each world in late December, painted as a strip that joins up at its
// ends: a sky with the low winter sun, far ridges in haze, forest, ground, water and snow.
// Panoramas show it whole; clips show a piece of it behind the animal.
#pragma once

#include "tools/worldgen/trees.h"

#include <QChar>
#include <QColor>
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

// `description` is the place's own words: "...above the pond..." brings water, "timber" woods.
QImage paintLandscape(const LandscapeRequest& request, const QString& description = {});

// What grows and lies in a world, for painters that add things to its scenery.
struct Flora {
  TreeKind woods;
  TreeKind second;
  ShrubKind brush;
  QColor stone;
  QColor water;
  QColor ground;
  double snow;  // share of the ground under snow
};

Flora floraOf(QChar world);

// A frozen pond or lake seen from eye height, with reeds or snow on its rim.
void paintFrozenWater(QPainter& p, const QRectF& area, const Flora& flora, StableRandom& rnd);

}  // namespace worldgen
