// SPDX-License-Identifier: GPL-2.0-or-later
// The camera arithmetic and the hotspot hit test, which share one projection.
#include "platform/panorama/panorama_projection.h"
#include "platform/panorama/panorama_hit_test.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

constexpr int kWidth = 3600;
constexpr int kHeight = 600;
const PanoramaGeometry kGeometry = PanoramaGeometry::cylindrical(kWidth, kHeight, 60);

PanoramaView viewAt(int32_t heading, double zoomOverBase = 1, QSizeF size = {640, 480}) {
  const double zoom = baseZoom(kGeometry, size.height()) * zoomOverBase;
  return {size, heading, zoom, clampCentreRow(kGeometry, size.height(), zoom, kHeight / 2.0)};
}

QPointF centreOf(const PanoramaView& view) {
  return {view.size.width() / 2, view.size.height() / 2};
}

TEST(PanoramaHeading, CentresTheColumnInProportionToTheTurn) {
  EXPECT_DOUBLE_EQ(headingToImageX(0, kWidth), 0.5);
  EXPECT_DOUBLE_EQ(headingToImageX(648000, kWidth), kWidth / 2 + 0.5);
  EXPECT_DOUBLE_EQ(headingToImageX(3600, kWidth), 10.5);  // one degree is ten columns here
  EXPECT_EQ(imageXToHeading(10.5, kWidth), 3600);
  EXPECT_EQ(imageXToHeading(0.4, kWidth), kFullTurn - 36);  // a tenth of a column left of 0
}

TEST(PanoramaHeading, AFullTurnComesBack) {
  EXPECT_EQ(normalizeHeading(kFullTurn), 0);
  EXPECT_EQ(normalizeHeading(-1), kFullTurn - 1);
  EXPECT_EQ(normalizeHeading(3LL * kFullTurn + 648000), 648000);
  const QPointF before = imagePointAt(kGeometry, viewAt(123456), {100, 50});
  const QPointF after = imagePointAt(kGeometry, viewAt(normalizeHeading(123456 + kFullTurn)), {100, 50});
  EXPECT_NEAR(before.x(), after.x(), 1e-9);
}

TEST(PanoramaView, CentreShowsTheHeadingsColumnAtEveryZoom) {
  for (const double zoom : {1.0, 1.5, 4.0}) {
    const PanoramaView view = viewAt(648000, zoom);
    const QPointF centre = imagePointAt(kGeometry, view, centreOf(view));
    EXPECT_NEAR(centre.x(), kWidth / 2 + 0.5, 1e-9) << zoom;
    EXPECT_NEAR(centre.y(), kHeight / 2.0, 1e-9) << zoom;
  }
}

TEST(PanoramaView, ZoomingInNarrowsWhatTheViewShows) {
  const QPointF wide = imagePointAt(kGeometry, viewAt(0, 1), {600, 400});
  const QPointF close = imagePointAt(kGeometry, viewAt(0, 2), {600, 400});
  EXPECT_GT(wide.x(), close.x());
  EXPECT_GT(wide.y(), close.y());
  EXPECT_GT(close.x(), 0.5);
}

TEST(PanoramaView, BaseZoomFillsTheHeightAndLimitsHold) {
  const PanoramaView view = viewAt(0);
  EXPECT_NEAR(imagePointAt(kGeometry, view, {320, 0}).y(), 0, 1e-9);
  EXPECT_NEAR(imagePointAt(kGeometry, view, {320, 480}).y(), kHeight, 1e-9);
  // Off the middle column the view reaches less far up, so nothing outside the image shows.
  EXPECT_GT(imagePointAt(kGeometry, view, {0, 0}).y(), 0);
  const double base = baseZoom(kGeometry, 480);
  EXPECT_DOUBLE_EQ(clampZoom(kGeometry, 480, base / 2), base);
  EXPECT_DOUBLE_EQ(clampZoom(kGeometry, 480, base * 100), base * kMaxZoomOverBase);
  EXPECT_DOUBLE_EQ(clampCentreRow(kGeometry, 480, base, 0), kHeight / 2.0);
  EXPECT_DOUBLE_EQ(clampCentreRow(kGeometry, 480, base * 2, 0), kHeight / 4.0);
  EXPECT_DOUBLE_EQ(clampCentreRow(kGeometry, 480, base * 2, kHeight), kHeight * 3 / 4.0);
}

TEST(PanoramaView, ViewPointAtUndoesImagePointAt) {
  const PanoramaView view = viewAt(1000, 1.7, {1023, 611});
  for (const QPointF p : {QPointF(0, 0), QPointF(511.5, 305.5), QPointF(1023, 611), QPointF(17, 600)}) {
    const auto back = viewPointAt(kGeometry, view, imagePointAt(kGeometry, view, p));
    ASSERT_TRUE(back.has_value());
    EXPECT_NEAR(back->x(), p.x(), 1e-6);
    EXPECT_NEAR(back->y(), p.y(), 1e-6);
  }
  // Across the seam, and written one turn over, the same point maps to the same place.
  const auto seam = viewPointAt(kGeometry, viewAt(0), {kWidth - 20.0, 300});
  const auto written = viewPointAt(kGeometry, viewAt(0), {-20.0, 300});
  ASSERT_TRUE(seam && written);
  EXPECT_NEAR(seam->x(), written->x(), 1e-9);
  EXPECT_LT(seam->x(), 320);
  EXPECT_FALSE(viewPointAt(kGeometry, viewAt(0), {kWidth / 2.0, 300}).has_value());  // behind
}

TEST(PanoramaView, DragKeepsThePointUnderThePointer) {
  PanoramaView view = viewAt(500000, 1.3);
  const QPointF grabbed = imagePointAt(kGeometry, view, {100, 200});
  view.heading = normalizeHeading(int64_t{view.heading} + headingChangeForDrag(kGeometry, view, 100, 540));
  EXPECT_NEAR(imagePointAt(kGeometry, view, {540, 200}).x(), grabbed.x(), 0.01);
}

TEST(PanoramaHitTest, EdgesSplitBetweenNeighbours) {
  const std::vector<QPointF> square{{10, 10}, {20, 10}, {20, 20}, {10, 20}};
  EXPECT_TRUE(polygonContains(square, {15, 15}));
  EXPECT_TRUE(polygonContains(square, {10, 10}));
  EXPECT_FALSE(polygonContains(square, {20, 15}));
  EXPECT_FALSE(polygonContains(square, {15, 20}));
  EXPECT_FALSE(polygonContains(square, {9.99, 15}));
  const std::vector<QPointF> notch{{0, 0},   {30, 0},  {30, 30}, {20, 30},
                                   {20, 10}, {10, 10}, {10, 30}, {0, 30}};
  EXPECT_FALSE(polygonContains(notch, {15, 20}));
  EXPECT_TRUE(polygonContains(notch, {5, 20}));
}

TEST(PanoramaHitTest, FindsHotspotsAtTheCentreAndAcrossTheSeam) {
  const std::vector<PanoramaHotspot> hotspots{
      {QStringLiteral("^seam"),
       {{kWidth - 30.0, 100}, {kWidth + 30.0, 100}, {kWidth + 30.0, 200}, {kWidth - 30.0, 200}}},
      {QStringLiteral("~left"), {{-40.0, 300}, {-10.0, 300}, {-10.0, 350}, {-40.0, 350}}},
      {QStringLiteral("!first"), {{1000, 0}, {1200, 0}, {1200, 600}, {1000, 600}}},
      {QStringLiteral("!second"), {{1100, 0}, {1300, 0}, {1300, 600}, {1100, 600}}}};
  EXPECT_EQ(hotspotAt(hotspots, {5, 150}, kWidth), "^seam");
  EXPECT_EQ(hotspotAt(hotspots, {kWidth - 5.0, 150}, kWidth), "^seam");
  EXPECT_EQ(hotspotAt(hotspots, {kWidth - 25.0, 320}, kWidth), "~left");
  EXPECT_EQ(hotspotAt(hotspots, {1150, 10}, kWidth), "!first");
  EXPECT_EQ(hotspotAt(hotspots, {1250, 10}, kWidth), "!second");
  EXPECT_EQ(hotspotAt(hotspots, {40, 150}, kWidth), "");

  // Through the projection: the view's centre at heading 0 is column 0, inside the seam hotspot.
  PanoramaView view = viewAt(0, 2);
  view.centreRow = 150;
  EXPECT_EQ(hotspotAt(hotspots, imagePointAt(kGeometry, view, centreOf(view)), kWidth), "^seam");
}

}  // namespace
}  // namespace platform
