// SPDX-License-Identifier: GPL-2.0-or-later
// The camera arithmetic of a cylindrical panorama seen through a flat view: which image point
// a view point shows, which column a heading centres, and the limits of zoom and vertical look.
// The renderer and the hotspot hit test both go through here, so what is drawn is what is hit.
#pragma once

#include <QPointF>
#include <QSizeF>

#include <cstdint>
#include <optional>

namespace platform {

// Headings are in 1/3600 degree; a full turn is 360 degrees.
inline constexpr int32_t kFullTurn = 360 * 3600;

// Image points are continuous: pixel (i, j) covers [i, i+1) x [j, j+1).
struct PanoramaGeometry {
  int width = 0;
  int height = 0;
  double radius = 0;          // image columns per radian of turn
  double verticalRadius = 0;  // image rows per unit of tan(elevation)

  static PanoramaGeometry cylindrical(int width, int height, double verticalFovDegrees);
  bool valid() const { return width > 0 && height > 0; }
};

struct PanoramaView {
  QSizeF size;           // logical pixels
  int32_t heading = 0;   // 0 .. kFullTurn - 1
  double zoom = 1;       // logical view pixels per image row at the view's centre
  double centreRow = 0;  // image row shown on the view's middle line
};

int32_t normalizeHeading(int64_t heading);

// Heading h centres column h * width / kFullTurn: heading 0 looks at the middle of column 0,
// headings grow to the right. Returned as the continuous x of that column's middle.
double headingToImageX(int32_t heading, int width);
int32_t imageXToHeading(double x, int width);

// The zoom at which the image's full height just fills the view's middle column; the least
// zoom allowed, since below it the view would run off the image's top and bottom.
double baseZoom(const PanoramaGeometry& geometry, double viewHeight);
inline constexpr double kMaxZoomOverBase = 4.0;
double clampZoom(const PanoramaGeometry& geometry, double viewHeight, double zoom);

// Looking up or down slides the view along the cylinder, as a shift lens does, so verticals
// stay vertical; the view may not leave the image.
double clampCentreRow(const PanoramaGeometry& geometry, double viewHeight, double zoom, double row);

// Focal length of the view in logical pixels.
inline double focalLength(const PanoramaGeometry& geometry, double zoom) {
  return zoom * geometry.verticalRadius;
}

// The image point seen at a logical view point; x is wrapped into [0, width).
QPointF imagePointAt(const PanoramaGeometry& geometry, const PanoramaView& view, QPointF viewPoint);

// The logical view point showing an image point, or nothing when it lies behind the viewer.
// x is taken modulo the image width, whichever side of the seam it is written on.
std::optional<QPointF> viewPointAt(const PanoramaGeometry& geometry, const PanoramaView& view,
                                   QPointF imagePoint);

// How far the heading turns when the image point under view x `from` is carried to `to`.
int32_t headingChangeForDrag(const PanoramaGeometry& geometry, const PanoramaView& view, double from,
                             double to);

}  // namespace platform
