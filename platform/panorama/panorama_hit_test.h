// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the hotspot at an image point. Polygons may run past the image's left or right edge,
// so a hotspot can straddle the 0/360 seam.
#pragma once

#include "platform/panorama/panorama_manifest.h"

#include <QPointF>
#include <QString>

#include <vector>

namespace platform {

// Even-odd rule; a point on a left or top edge is inside, on a right or bottom edge outside,
// so two polygons sharing an edge never both claim a point.
bool polygonContains(const std::vector<QPointF>& polygon, QPointF point);

// The first listed hotspot holding `point` (x in [0, imageWidth)), or an empty name.
QString hotspotAt(const std::vector<PanoramaHotspot>& hotspots, QPointF point, int imageWidth);

}  // namespace platform
