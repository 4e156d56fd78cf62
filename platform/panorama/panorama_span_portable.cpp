// SPDX-License-Identifier: GPL-2.0-or-later
// The span loops every x86-64 (SSE2) or other processor runs.
#include "platform/panorama/panorama_span.h"

#include <array>
#include <cstddef>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace platform::span {
namespace {

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

inline void blendPair(const uint32_t* a, const uint32_t* b, std::ptrdiff_t stride, const CornerWeights& wa,
                      const CornerWeights& wb, uint32_t* out) {
  out[0] = blend(a, stride, wa);
  out[1] = blend(b, stride, wb);
}
#endif

// Where each sample of the row lies, and its weights; steps every column down a row.
// Plain integer arithmetic over arrays, written for the vectoriser: the pointers are
// parameters because GCC trusts __restrict only there.
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

// The image pixel nearest each sample point: half a pixel or more to the right or below
// rounds to the next column or row, which the padding always holds.
__attribute__((optimize("tree-vectorize"))) void nearestSamples(
    int32_t* __restrict position, const int32_t* __restrict step, const int32_t* __restrict column,
    const uint8_t* __restrict columnWeight, const uint32_t* __restrict pixels, int32_t stride, int count,
    uint32_t* __restrict out) {
  constexpr int32_t kHalf = 1 << (kFractionBits - 1);
  constexpr uint8_t kHalfColumn = (kSubSteps / 2) << kSubBits;
  for (int i = 0; i < count; ++i) {
    const int32_t row = position[i];
    position[i] = row + step[i];
    const int32_t right = columnWeight[i] >= kHalfColumn ? 1 : 0;
    out[i] = pixels[(((row + kHalf) >> kFractionBits) + 1) * stride + column[i] + right];
  }
}

}  // namespace

void bilinearPortable(const Job& job) {
  locateSamples(job.position, job.step, job.column, job.columnWeight, job.stride, job.count,
                job.offsetScratch, job.weightScratch);
  // Copied out of the job: the stores below could otherwise alias its fields.
  const uint32_t* pixels = job.pixels;
  const int32_t* offset = job.offsetScratch;
  const uint8_t* weight = job.weightScratch;
  const std::ptrdiff_t stride = job.stride;
  const int count = job.count;
  uint32_t* out = job.out;
  int i = 0;
  for (; i + 1 < count; i += 2)
    blendPair(pixels + offset[i], pixels + offset[i + 1], stride, kWeights[weight[i]],
              kWeights[weight[i + 1]], out + i);
  if (i < count) out[i] = blend(pixels + offset[i], stride, kWeights[weight[i]]);
}

void nearestPortable(const Job& job) {
  nearestSamples(job.position, job.step, job.column, job.columnWeight, job.pixels, job.stride, job.count,
                 job.out);
}

}  // namespace platform::span
