// SPDX-License-Identifier: GPL-2.0-or-later
// The renderer against the projection: rendered pixels at chosen points equal bilinear
// samples of the synthetic image where the projection says they look.
#include "platform/panorama/panorama_renderer.h"

#include "platform/panorama_fixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace platform {
namespace {

constexpr int kWidth = 720;
constexpr int kHeight = 201;

class PanoramaRender : public ::testing::Test {
 protected:
  const QImage source = panorama_test::smoothImage(kWidth, kHeight);
  const PanoramaImage image{source};
  const PanoramaGeometry geometry = PanoramaGeometry::cylindrical(kWidth, kHeight, 50);
  PanoramaRenderer renderer;

  PanoramaView view(int32_t heading, QSizeF size, double zoomOverBase = 1, double rowShift = 0) const {
    const double zoom = baseZoom(geometry, size.height()) * zoomOverBase;
    return {size, heading, zoom, clampCentreRow(geometry, size.height(), zoom, kHeight / 2.0 + rowShift)};
  }

  QImage render(const PanoramaView& v, double ratio = 1) {
    QImage target(std::lround(v.size.width() * ratio), std::lround(v.size.height() * ratio),
                  QImage::Format_RGB32);
    target.setDevicePixelRatio(ratio);
    target.fill(Qt::magenta);
    renderer.render(image, geometry, v, target);
    return target;
  }

  // Bilinear sample of the source at a continuous image point, clamped top and bottom.
  QColor expected(QPointF p) const {
    const double x = p.x() - 0.5;
    const double y = std::clamp(p.y() - 0.5, 0.0, kHeight - 1.0);
    const int x0 = static_cast<int>(std::floor(x));
    const int y0 = static_cast<int>(std::floor(y));
    const double fx = x - x0;
    const double fy = y - y0;
    double channel[3] = {0, 0, 0};
    for (const auto& [dx, dy, w] : {std::tuple{0, 0, (1 - fx) * (1 - fy)}, std::tuple{1, 0, fx * (1 - fy)},
                                    std::tuple{0, 1, (1 - fx) * fy}, std::tuple{1, 1, fx * fy}}) {
      const QRgb c = source.pixel(((x0 + dx) % kWidth + kWidth) % kWidth, std::min(y0 + dy, kHeight - 1));
      channel[0] += w * qRed(c);
      channel[1] += w * qGreen(c);
      channel[2] += w * qBlue(c);
    }
    return QColor::fromRgbF(channel[0] / 255, channel[1] / 255, channel[2] / 255);
  }

  // Compares rendered pixels on a grid with samples at the projected points.
  void expectMatchesProjection(const PanoramaView& v, double ratio = 1) {
    const QImage frame = render(v, ratio);
    for (int y = 0; y < frame.height(); y += 7) {
      for (int x = 0; x < frame.width(); x += 13) {
        const QPointF logical((x + 0.5) / ratio, (y + 0.5) / ratio);
        const QColor want = expected(imagePointAt(geometry, v, logical));
        const QColor got = frame.pixelColor(x, y);
        ASSERT_NEAR(got.red(), want.red(), 3) << x << "," << y;
        ASSERT_NEAR(got.green(), want.green(), 3) << x << "," << y;
        ASSERT_NEAR(got.blue(), want.blue(), 3) << x << "," << y;
      }
    }
  }
};

TEST_F(PanoramaRender, CentrePixelIsTheHeadingsColumnExactly) {
  for (const int column : {0, 1, 359, 719}) {
    const QImage frame = render(view(column * kFullTurn / kWidth, {101, 51}, 2));
    EXPECT_EQ(frame.pixel(50, 25), source.pixel(column, 100)) << column;
  }
}

TEST_F(PanoramaRender, MatchesTheProjectionEverywhere) {
  expectMatchesProjection(view(0, {320, 240}));
  expectMatchesProjection(view(648000, {333, 101}, 3.7, -20));
  expectMatchesProjection(view(1295999, {64, 400}, 1.2, 40));
}

TEST_F(PanoramaRender, IsSeamlessAcrossZeroAndThreeSixty) {
  // Heading 0 puts the seam in the middle of the view; both sides come from the right columns.
  expectMatchesProjection(view(0, {401, 201}, 4));
  const QImage frame = render(view(0, {401, 201}, 4));
  const QImage turned = render(view(kFullTurn, {401, 201}, 4));
  EXPECT_EQ(frame, turned);
}

TEST_F(PanoramaRender, HonoursTheDevicePixelRatio) {
  const PanoramaView v = view(200000, {160, 90}, 1.5);
  const QImage doubled = render(v, 2);
  EXPECT_EQ(doubled.size(), QSize(320, 180));
  expectMatchesProjection(v, 2);
  expectMatchesProjection(v, 1.25);
}

TEST_F(PanoramaRender, BlendsNeighbouringColumnsHalfway) {
  // Two columns, black and white: the sample halfway between them is mid-grey.
  QImage stripes(2, 3, QImage::Format_RGB32);
  stripes.fill(Qt::black);
  for (int y = 0; y < 3; ++y) stripes.setPixel(1, y, qRgb(255, 255, 255));
  const PanoramaImage two(stripes);
  const PanoramaGeometry g = PanoramaGeometry::cylindrical(2, 3, 90);
  QImage target(1, 1, QImage::Format_RGB32);
  renderer.render(two, g, {QSizeF(1, 1), kFullTurn / 4, 1, 1.5}, target);  // x = 1.0: between 0 and 1
  EXPECT_NEAR(qRed(target.pixel(0, 0)), 128, 1);
}

TEST_F(PanoramaRender, ZoomOutsideTheLimitsStillReadsInsideTheImage) {
  // The caller normally clamps; the renderer must stay inside the image when it does not.
  const QImage frame = render({QSizeF(200, 300), 0, 0.05, -500});
  EXPECT_NE(frame.pixel(100, 0), QColor(Qt::magenta).rgb());
  EXPECT_NE(frame.pixel(199, 299), QColor(Qt::magenta).rgb());
}

}  // namespace
}  // namespace platform
