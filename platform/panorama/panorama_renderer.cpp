// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_renderer.h"
// Builds the per-size and per-frame tables and runs the span loops over narrow strips.

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

using span::kFractionBits;
using span::kSubBits;
using span::kSubSteps;

constexpr int32_t kOne = 1 << kFractionBits;
constexpr int kStripWidth = 256;

span::Kernel kernelFor(Sampling sampling, bool avx2) {
#if defined(__x86_64__)
  if (avx2) return sampling == Sampling::Nearest ? span::nearestAvx2 : span::bilinearAvx2;
#else
  (void)avx2;
#endif
  return sampling == Sampling::Nearest ? span::nearestPortable : span::bilinearPortable;
}

}  // namespace

PanoramaRenderer::PanoramaRenderer(Path path) : avx2_(path == Path::Fastest && hasAvx2()) {}

bool PanoramaRenderer::hasAvx2() {
#if defined(__x86_64__)
  return __builtin_cpu_supports("avx2");
#else
  return false;
#endif
}

void PanoramaRenderer::buildTables(const TableKey& key) {
  key_ = key;
  const auto columns = static_cast<size_t>(key.width);
  columnOffset_.resize(columns);
  rowStep_.resize(columns);
  for (int x = 0; x < key.width; ++x) {
    const double dx = x + 0.5 - key.width / 2.0;
    columnOffset_[x] = key.radius * std::atan2(dx, key.focal);
    rowStep_[x] = static_cast<int32_t>(std::lround(key.verticalRadius / std::hypot(key.focal, dx) * kOne));
  }
  sourceColumn_.resize(columns);
  columnWeight_.resize(columns);
  acrossPairs_.resize(columns);
  rowPosition_.resize(columns);
  frameStep_.resize(columns);
  offset_.resize(columns);
  weight_.resize(columns);
}

void PanoramaRenderer::prepareFrame(const PanoramaImage& image, const PanoramaView& view) {
  const double centreX = headingToImageX(view.heading, image.width());
  const int64_t lowest = -int64_t{kOne};                       // padded row above the image
  const int64_t highest = int64_t{image.height()} * kOne - 1;  // the row below is padded too
  const int rows = key_.height;
  for (int x = 0; x < key_.width; ++x) {
    const auto sample = static_cast<int64_t>(std::floor((centreX + columnOffset_[x] - 0.5) * kSubSteps));
    const int64_t column = (sample >> kSubBits) % image.width();
    sourceColumn_[x] = static_cast<int32_t>(column < 0 ? column + image.width() : column);
    const auto across = static_cast<uint32_t>(sample & (kSubSteps - 1));
    columnWeight_[x] = static_cast<uint8_t>(across << kSubBits);
    acrossPairs_[x] = ((kSubSteps - across) | across << 8) * 0x10001u;

    // Keep every read inside the padded image whatever the caller asked for.
    int64_t step = std::min<int64_t>(rowStep_[x], (highest - lowest) / std::max(rows - 1, 1));
    const double firstRow = view.centreRow - 0.5 + (0.5 - rows / 2.0) * step / kOne;
    int64_t start = std::llround(firstRow * kOne);
    start = std::clamp(start, lowest, highest - step * (rows - 1));
    rowPosition_[x] = static_cast<int32_t>(start);
    frameStep_[x] = static_cast<int32_t>(step);
  }
}

void PanoramaRenderer::render(const PanoramaImage& image, const PanoramaGeometry& geometry,
                              const PanoramaView& view, QImage& target, Sampling sampling) {
  const double ratio = target.devicePixelRatio();
  const TableKey key{target.width(), target.height(), focalLength(geometry, view.zoom) * ratio,
                     geometry.radius, geometry.verticalRadius};
  if (key.width <= 0 || key.height <= 0 || image.width() <= 0 || image.height() <= 0) return;
  if (!(key == key_)) buildTables(key);
  prepareFrame(image, view);
  // Narrow strips from top to bottom: each view row of a strip reads a short run of a few
  // image rows, so few pages and lines are in use at once; whole rows would sweep a curved
  // band of hundreds of image rows and miss the TLB on nearly every read.
  const span::Kernel kernel = kernelFor(sampling, avx2_);
  uchar* bits = target.bits();
  const std::ptrdiff_t pitch = target.bytesPerLine();
  for (int first = 0; first < key.width; first += kStripWidth) {
    span::Job job{image.paddedRows(),
                  static_cast<int32_t>(image.stride()),
                  rowPosition_.data() + first,
                  frameStep_.data() + first,
                  sourceColumn_.data() + first,
                  columnWeight_.data() + first,
                  acrossPairs_.data() + first,
                  std::min(kStripWidth, key.width - first),
                  nullptr,
                  offset_.data(),
                  weight_.data()};
    for (int y = 0; y < key.height; ++y) {
      job.out = reinterpret_cast<uint32_t*>(bits + y * pitch) + first;
      kernel(job);
    }
  }
}

}  // namespace platform
