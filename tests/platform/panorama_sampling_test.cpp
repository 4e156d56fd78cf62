// SPDX-License-Identifier: GPL-2.0-or-later
// The renderer's two samplings and two instruction paths: the AVX2 loops draw exactly what
// the portable ones draw, and nearest sampling shows the image pixel under each sample point.
#include "platform/panorama/panorama_renderer.h"

#include "platform/panorama_fixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace platform {
namespace {

constexpr int kWidth = 997;  // odd, so the seam falls between any two columns
constexpr int kHeight = 211;

// Every pixel different from its neighbours, so a sample taken one pixel off shows.
QImage distinctImage() {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth; ++x) image.setPixel(x, y, qRgb(x & 255, (x >> 8) * 40 + (y & 31), y));
  return image;
}

class PanoramaSampling : public ::testing::Test {
 protected:
  const QImage source = distinctImage();
  const PanoramaImage image{source};
  const PanoramaGeometry geometry = PanoramaGeometry::cylindrical(kWidth, kHeight, 55);

  PanoramaView view(int32_t heading, QSizeF size, double zoomOverBase, double rowShift) const {
    const double zoom = baseZoom(geometry, size.height()) * zoomOverBase;
    return {size, heading, zoom, clampCentreRow(geometry, size.height(), zoom, kHeight / 2.0 + rowShift)};
  }

  QImage render(PanoramaRenderer& renderer, const PanoramaView& v, Sampling sampling,
                double ratio = 1) const {
    QImage target(std::lround(v.size.width() * ratio), std::lround(v.size.height() * ratio),
                  QImage::Format_RGB32);
    target.setDevicePixelRatio(ratio);
    target.fill(Qt::magenta);
    renderer.render(image, geometry, v, target, sampling);
    return target;
  }
};

struct PathCase {
  int32_t heading;
  QSizeF size;
  double zoomOverBase;
  double rowShift;
  double ratio;
};

// Widths that leave 0 to 7 columns after whole groups of eight, headings across the seam,
// zoomed in and out past the image's height, looking up and down to the clamps.
const PathCase kPathCases[] = {
    {0, {320, 200}, 1, 0, 1},
    {kFullTurn - 1, {333, 101}, 1, 0, 1},
    {kFullTurn / 2, {257, 64}, 3.5, 40, 1},
    {12345, {100, 150}, 0.6, -500, 1},
    {kFullTurn / 4, {401, 99}, 1.7, 500, 1},
    {7, {163, 87}, 1, 0, 1.5},
    {kFullTurn - 3600, {1030, 300}, 2.2, -30, 1},
    {999999, {9, 5}, 8, 0, 2},
};

TEST_F(PanoramaSampling, FastestPathDrawsExactlyWhatThePortableOneDraws) {
  if (!PanoramaRenderer::hasAvx2()) GTEST_SKIP() << "this processor has no AVX2";
  PanoramaRenderer fast(PanoramaRenderer::Path::Fastest);
  PanoramaRenderer portable(PanoramaRenderer::Path::Portable);
  for (const Sampling sampling : {Sampling::Bilinear, Sampling::Nearest}) {
    for (const auto& c : kPathCases) {
      const PanoramaView v = view(c.heading, c.size, c.zoomOverBase, c.rowShift);
      const QImage a = render(fast, v, sampling, c.ratio);
      const QImage b = render(portable, v, sampling, c.ratio);
      ASSERT_EQ(a, b) << "sampling " << static_cast<int>(sampling) << " heading " << c.heading << " size "
                      << c.size.width() << "x" << c.size.height();
    }
  }
}

TEST_F(PanoramaSampling, RepeatedFramesOfATurningViewStayEqualAcrossPaths) {
  if (!PanoramaRenderer::hasAvx2()) GTEST_SKIP() << "this processor has no AVX2";
  PanoramaRenderer fast(PanoramaRenderer::Path::Fastest);
  PanoramaRenderer portable(PanoramaRenderer::Path::Portable);
  for (int32_t heading = 0; heading < kFullTurn; heading += kFullTurn / 7 + 1111) {
    const PanoramaView v = view(heading, {250, 120}, 1.3, 10);
    ASSERT_EQ(render(fast, v, Sampling::Bilinear), render(portable, v, Sampling::Bilinear)) << heading;
  }
}

// The image pixel whose square holds each sample point, away from the squares' edges where
// the fixed-point tracking of a point may fall either side. Columns whose view reaches past the
// image's top or bottom are drawn squeezed into it, so they are left out.
void expectNearest(const QImage& frame, const QImage& source, const PanoramaGeometry& geometry,
                   const PanoramaView& v) {
  int checked = 0;
  for (int x = 0; x < frame.width(); x += 7) {
    const double top = imagePointAt(geometry, v, {x + 0.5, 0.5}).y();
    const double bottom = imagePointAt(geometry, v, {x + 0.5, frame.height() - 0.5}).y();
    if (top < 0 || bottom > kHeight) continue;
    for (int y = 0; y < frame.height(); y += 5) {
      const QPointF p = imagePointAt(geometry, v, {x + 0.5, y + 0.5});
      const double row = p.y();
      const double fx = p.x() - std::floor(p.x());
      const double fy = row - std::floor(row);
      if (std::min(fx, 1 - fx) < 0.02 || std::min(fy, 1 - fy) < 0.02) continue;
      const int column = ((static_cast<int>(std::floor(p.x())) % kWidth) + kWidth) % kWidth;
      ASSERT_EQ(frame.pixel(x, y), source.pixel(column, static_cast<int>(row))) << x << "," << y;
      ++checked;
    }
  }
  EXPECT_GT(checked, 100);
}

TEST_F(PanoramaSampling, NearestShowsThePixelUnderEachSamplePoint) {
  for (const auto path : {PanoramaRenderer::Path::Fastest, PanoramaRenderer::Path::Portable}) {
    PanoramaRenderer renderer(path);
    for (const auto& c : {PathCase{kFullTurn - 1800, {300, 180}, 1.5, 0, 1}, PathCase{0, {211, 97}, 4, 30, 1},
                          PathCase{kFullTurn / 3, {180, 240}, 2.5, -100, 1}}) {
      const PanoramaView v = view(c.heading, c.size, c.zoomOverBase, c.rowShift);
      expectNearest(render(renderer, v, Sampling::Nearest), source, geometry, v);
    }
  }
}

}  // namespace
}  // namespace platform
