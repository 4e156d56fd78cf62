// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_renderer.h"

#include <algorithm>
#include <array>
#include <cmath>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace platform {
namespace {

constexpr int kFractionBits = 16;
constexpr int32_t kOne = 1 << kFractionBits;
// Four bits of sub-pixel position each way: the four corner weights then sum to 256, and
// every channel times its weight fits a 16-bit lane.
constexpr int kSubBits = 4;
constexpr int kSubSteps = 1 << kSubBits;
constexpr int kStripWidth = 256;

struct alignas(16) CornerWeights {
  std::array<uint16_t, 8> top;  // left pixel's four channels, then the right pixel's
  std::array<uint16_t, 8> bottom;
};

constexpr std::array<CornerWeights, kSubSteps * kSubSteps> makeWeightTable() {
  std::array<CornerWeights, kSubSteps * kSubSteps> table{};
  for (int u = 0; u < kSubSteps; ++u) {
    for (int v = 0; v < kSubSteps; ++v) {
      auto& w = table[u * kSubSteps + v];
      for (int c = 0; c < 4; ++c) {
        w.top[c] = static_cast<uint16_t>((kSubSteps - u) * (kSubSteps - v));
        w.top[c + 4] = static_cast<uint16_t>(u * (kSubSteps - v));
        w.bottom[c] = static_cast<uint16_t>((kSubSteps - u) * v);
        w.bottom[c + 4] = static_cast<uint16_t>(u * v);
      }
    }
  }
  return table;
}

constexpr auto kWeights = makeWeightTable();

#if defined(__SSE2__)
inline uint32_t blend(const uint32_t* p, std::ptrdiff_t stride, const CornerWeights& w) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i top = _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), zero);
  const __m128i bottom =
      _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + stride)), zero);
  __m128i sum = _mm_add_epi16(
      _mm_mullo_epi16(top, _mm_load_si128(reinterpret_cast<const __m128i*>(w.top.data()))),
      _mm_mullo_epi16(bottom, _mm_load_si128(reinterpret_cast<const __m128i*>(w.bottom.data()))));
  sum = _mm_add_epi16(sum, _mm_srli_si128(sum, 8));
  sum = _mm_srli_epi16(_mm_add_epi16(sum, _mm_set1_epi16(128)), 8);
  return static_cast<uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(sum, sum)));
}

// Two neighbouring view pixels at once: their sums share the final add, shift, pack and store.
inline void blendPair(const uint32_t* a, const uint32_t* b, std::ptrdiff_t stride, const CornerWeights& wa,
                      const CornerWeights& wb, uint32_t* out) {
  const auto load = [](const uint32_t* p) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)); };
  const auto weights = [](const std::array<uint16_t, 8>& w) {
    return _mm_load_si128(reinterpret_cast<const __m128i*>(w.data()));
  };
  const __m128i zero = _mm_setzero_si128();
  const __m128i top = _mm_unpacklo_epi64(load(a), load(b));
  const __m128i bottom = _mm_unpacklo_epi64(load(a + stride), load(b + stride));
  const __m128i sumA = _mm_add_epi16(_mm_mullo_epi16(_mm_unpacklo_epi8(top, zero), weights(wa.top)),
                                     _mm_mullo_epi16(_mm_unpacklo_epi8(bottom, zero), weights(wa.bottom)));
  const __m128i sumB = _mm_add_epi16(_mm_mullo_epi16(_mm_unpackhi_epi8(top, zero), weights(wb.top)),
                                     _mm_mullo_epi16(_mm_unpackhi_epi8(bottom, zero), weights(wb.bottom)));
  __m128i sum = _mm_add_epi16(_mm_unpacklo_epi64(sumA, sumB), _mm_unpackhi_epi64(sumA, sumB));
  sum = _mm_srli_epi16(_mm_add_epi16(sum, _mm_set1_epi16(128)), 8);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(sum, sum));
}
#else
// Two channels per 32-bit word, 16 bits apart, so one multiply weighs both.
inline uint32_t blend(const uint32_t* p, std::ptrdiff_t stride, const CornerWeights& w) {
  const uint32_t corners[4] = {p[0], p[1], p[stride], p[stride + 1]};
  const uint32_t weights[4] = {w.top[0], w.top[4], w.bottom[0], w.bottom[4]};
  uint32_t redBlue = 0x00800080;
  uint32_t alphaGreen = 0x00800080;
  for (int i = 0; i < 4; ++i) {
    redBlue += (corners[i] & 0x00ff00ff) * weights[i];
    alphaGreen += ((corners[i] >> 8) & 0x00ff00ff) * weights[i];
  }
  return ((redBlue >> 8) & 0x00ff00ff) | (alphaGreen & 0xff00ff00);
}
#endif

// Where each sample of one view row lies, and its weights; steps every column down a row.
// Plain integer arithmetic over arrays, written for the vectoriser.
__attribute__((optimize("tree-vectorize"))) void locateSamples(
    int32_t* __restrict position, const int32_t* __restrict step, const int32_t* __restrict column,
    const uint8_t* __restrict columnWeight, int32_t stride, int count, int32_t* __restrict offset,
    uint8_t* __restrict weight) {
  for (int i = 0; i < count; ++i) {
    const int32_t row = position[i];
    position[i] = row + step[i];
    offset[i] = ((row >> kFractionBits) + 1) * stride + column[i];
    weight[i] =
        static_cast<uint8_t>(columnWeight[i] | ((row >> (kFractionBits - kSubBits)) & (kSubSteps - 1)));
  }
}

}  // namespace

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
    columnWeight_[x] = static_cast<uint8_t>((sample & (kSubSteps - 1)) << kSubBits);

    // Keep every read inside the padded image whatever the caller asked for.
    int64_t step = std::min<int64_t>(rowStep_[x], (highest - lowest) / std::max(rows - 1, 1));
    const double firstRow = view.centreRow - 0.5 + (0.5 - rows / 2.0) * step / kOne;
    int64_t start = std::llround(firstRow * kOne);
    start = std::clamp(start, lowest, highest - step * (rows - 1));
    rowPosition_[x] = static_cast<int32_t>(start);
    frameStep_[x] = static_cast<int32_t>(step);
  }
}

void PanoramaRenderer::renderSpan(const PanoramaImage& image, int first, int last, uint32_t* out) {
  const int32_t stride = static_cast<int32_t>(image.stride());
  locateSamples(rowPosition_.data() + first, frameStep_.data() + first, sourceColumn_.data() + first,
                columnWeight_.data() + first, stride, last - first, offset_.data(), weight_.data());
  const uint32_t* pixels = image.paddedRows();
  const int32_t* offset = offset_.data();
  const uint8_t* weight = weight_.data();
  const int count = last - first;
  uint32_t* row = out + first;
  int i = 0;
  for (; i + 1 < count; i += 2)
    blendPair(pixels + offset[i], pixels + offset[i + 1], stride, kWeights[weight[i]],
              kWeights[weight[i + 1]], row + i);
  if (i < count) row[i] = blend(pixels + offset[i], stride, kWeights[weight[i]]);
}

void PanoramaRenderer::render(const PanoramaImage& image, const PanoramaGeometry& geometry,
                              const PanoramaView& view, QImage& target) {
  const double ratio = target.devicePixelRatio();
  const TableKey key{target.width(), target.height(), focalLength(geometry, view.zoom) * ratio,
                     geometry.radius, geometry.verticalRadius};
  if (key.width <= 0 || key.height <= 0 || image.width() <= 0 || image.height() <= 0) return;
  if (!(key == key_)) buildTables(key);
  prepareFrame(image, view);
  // Narrow strips from top to bottom: each view row of a strip reads a short run of a few
  // image rows, so few pages and lines are in use at once; whole rows would sweep a curved
  // band of hundreds of image rows and miss the TLB on nearly every read.
  uchar* bits = target.bits();
  const std::ptrdiff_t pitch = target.bytesPerLine();
  for (int first = 0; first < key.width; first += kStripWidth) {
    const int last = std::min(first + kStripWidth, key.width);
    for (int y = 0; y < key.height; ++y)
      renderSpan(image, first, last, reinterpret_cast<uint32_t*>(bits + y * pitch));
  }
}

}  // namespace platform
