// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_hit_test.h"

namespace platform {

bool polygonContains(const std::vector<QPointF>& polygon, QPointF point) {
  bool inside = false;
  for (size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
    const QPointF& a = polygon[i];
    const QPointF& b = polygon[j];
    if ((a.y() > point.y()) == (b.y() > point.y())) continue;
    const double crossX = a.x() + (point.y() - a.y()) * (b.x() - a.x()) / (b.y() - a.y());
    if (point.x() >= crossX) inside = !inside;
  }
  return inside;
}

QString hotspotAt(const std::vector<PanoramaHotspot>& hotspots, QPointF point, int imageWidth) {
  const double turn = imageWidth;
  for (const auto& hotspot : hotspots) {
    for (const double shift : {0.0, turn, -turn}) {
      if (polygonContains(hotspot.polygon, point + QPointF(shift, 0))) return hotspot.name;
    }
  }
  return {};
}

}  // namespace platform
