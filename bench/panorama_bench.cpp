// SPDX-License-Identifier: GPL-2.0-or-later
// The panorama renderer's cost: a 1920 x 1080 view of an 8192-pixel-wide panorama, still and
// turning every frame, on one core. Compare with bench/panorama_vs_v360.sh.
#include "platform/panorama/panorama_renderer.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace platform;

constexpr int kPanoramaWidth = 8192;
constexpr int kPanoramaHeight = 1536;

QImage paintedPanorama() {
  QImage image(kPanoramaWidth, kPanoramaHeight, QImage::Format_RGB32);
  for (int y = 0; y < kPanoramaHeight; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < kPanoramaWidth; ++x) line[x] = qRgb(x * 7 & 255, (x ^ y) & 255, y * 3 & 255);
  }
  return image;
}

const PanoramaImage& panorama() {
  static const PanoramaImage image(paintedPanorama());
  return image;
}

void renderView(benchmark::State& state, bool turning, double zoomOverBase,
                Sampling sampling = Sampling::Bilinear,
                PanoramaRenderer::Path path = PanoramaRenderer::Path::Fastest) {
  const PanoramaImage& image = panorama();
  const auto geometry = PanoramaGeometry::cylindrical(
      kPanoramaWidth, kPanoramaHeight, 2 * std::atan(M_PI * kPanoramaHeight / kPanoramaWidth) * 180 / M_PI);
  const QSizeF size(1920, 1080);
  const double zoom = baseZoom(geometry, size.height()) * zoomOverBase;
  PanoramaView view{size, 0, zoom, kPanoramaHeight / 2.0};
  QImage target(1920, 1080, QImage::Format_RGB32);
  PanoramaRenderer renderer(path);
  for (auto _ : state) {
    if (turning) view.heading = normalizeHeading(int64_t{view.heading} + 4321);
    renderer.render(image, geometry, view, target, sampling);
    benchmark::DoNotOptimize(target.constBits());
  }
  state.counters["views/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_PanoramaStill(benchmark::State& state) {
  renderView(state, false, 1.0);
}
void BM_PanoramaTurning(benchmark::State& state) {
  renderView(state, true, 1.0);
}
void BM_PanoramaTurningZoomed(benchmark::State& state) {
  renderView(state, true, 2.5);
}
// The loops every processor runs, for comparison with the AVX2 ones above.
void BM_PanoramaTurningPortable(benchmark::State& state) {
  renderView(state, true, 1.0, Sampling::Bilinear, PanoramaRenderer::Path::Portable);
}
// While the view is dragged.
void BM_PanoramaTurningNearest(benchmark::State& state) {
  renderView(state, true, 1.0, Sampling::Nearest);
}
void BM_PanoramaTurningNearestPortable(benchmark::State& state) {
  renderView(state, true, 1.0, Sampling::Nearest, PanoramaRenderer::Path::Portable);
}

// Opening a panorama whose image is not cached: decode the JPEG and lay it out for drawing.
void BM_PanoramaDecode(benchmark::State& state) {
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  buffer.open(QIODevice::WriteOnly);
  paintedPanorama().save(&buffer, "JPEG", 85);
  for (auto _ : state) {
    buffer.close();
    buffer.open(QIODevice::ReadOnly);
    const PanoramaImage image(QImageReader(&buffer, "JPEG").read());
    benchmark::DoNotOptimize(image.paddedRows());
  }
}

BENCHMARK(BM_PanoramaStill)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PanoramaTurning)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PanoramaTurningZoomed)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PanoramaTurningPortable)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PanoramaTurningNearest)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PanoramaTurningNearestPortable)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PanoramaDecode)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
