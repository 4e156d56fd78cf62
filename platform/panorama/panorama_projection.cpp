// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform {

PanoramaGeometry PanoramaGeometry::cylindrical(int width, int height, double verticalFovDegrees) {
  const double halfFov = verticalFovDegrees * std::numbers::pi / 360.0;
  return {width, height, width / (2 * std::numbers::pi), height / 2.0 / std::tan(halfFov)};
}

int32_t normalizeHeading(int64_t heading) {
  const int64_t wrapped = heading % kFullTurn;
  return static_cast<int32_t>(wrapped < 0 ? wrapped + kFullTurn : wrapped);
}

double headingToImageX(int32_t heading, int width) {
  return static_cast<double>(normalizeHeading(heading)) * width / kFullTurn + 0.5;
}

int32_t imageXToHeading(double x, int width) {
  return normalizeHeading(std::llround((x - 0.5) * kFullTurn / width));
}

double baseZoom(const PanoramaGeometry& geometry, double viewHeight) {
  return std::max(viewHeight, 1.0) / geometry.height;
}

double clampZoom(const PanoramaGeometry& geometry, double viewHeight, double zoom) {
  const double least = baseZoom(geometry, viewHeight);
  return std::clamp(zoom, least, least * kMaxZoomOverBase);
}

double clampCentreRow(const PanoramaGeometry& geometry, double viewHeight, double zoom, double row) {
  const double halfView = std::max(viewHeight, 1.0) / 2.0 / zoom;
  if (2 * halfView >= geometry.height) return geometry.height / 2.0;
  return std::clamp(row, halfView, geometry.height - halfView);
}

QPointF imagePointAt(const PanoramaGeometry& geometry, const PanoramaView& view, QPointF viewPoint) {
  const double f = focalLength(geometry, view.zoom);
  const double dx = viewPoint.x() - view.size.width() / 2;
  const double dy = viewPoint.y() - view.size.height() / 2;
  const double x = headingToImageX(view.heading, geometry.width) + geometry.radius * std::atan2(dx, f);
  const double y = view.centreRow + dy * geometry.verticalRadius / std::hypot(f, dx);
  const double wrapped = std::fmod(x, geometry.width);
  return {wrapped < 0 ? wrapped + geometry.width : wrapped, y};
}

std::optional<QPointF> viewPointAt(const PanoramaGeometry& geometry, const PanoramaView& view,
                                   QPointF imagePoint) {
  constexpr double kNearlyAside = 0.49 * std::numbers::pi;
  const double turn = 2 * std::numbers::pi;
  double angle = (imagePoint.x() - headingToImageX(view.heading, geometry.width)) / geometry.radius;
  angle -= turn * std::floor(angle / turn + 0.5);
  if (std::abs(angle) > kNearlyAside) return std::nullopt;
  const double f = focalLength(geometry, view.zoom);
  const double dx = f * std::tan(angle);
  const double dy = (imagePoint.y() - view.centreRow) * std::hypot(f, dx) / geometry.verticalRadius;
  return QPointF(view.size.width() / 2 + dx, view.size.height() / 2 + dy);
}

int32_t headingChangeForDrag(const PanoramaGeometry& geometry, const PanoramaView& view, double from,
                             double to) {
  const double f = focalLength(geometry, view.zoom);
  const double half = view.size.width() / 2;
  const double turn = std::atan2(from - half, f) - std::atan2(to - half, f);
  return static_cast<int32_t>(std::lround(turn * kFullTurn / (2 * std::numbers::pi)));
}

}  // namespace platform
