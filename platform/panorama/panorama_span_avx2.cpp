// SPDX-License-Identifier: GPL-2.0-or-later
// The span loops for processors with AVX2, eight view pixels a step. The arithmetic is the
// portable loops' to the bit: each weighs the left and right pixels by sixteenths, then the
// top and bottom rows by sixteenths, and rounds the 256ths once.
#include "platform/panorama/panorama_span.h"

#if defined(__x86_64__)

#include <immintrin.h>

#include <cstdint>

#define HUNT_AVX2 __attribute__((target("avx2")))

namespace platform::span {
namespace {

constexpr int kPrefetchRows = 4;

struct Located {
  __m256i offset;  // padded-image index of each sample's top-left pixel
  __m256i rowSub;  // sixteenths of a row below it
};

HUNT_AVX2 inline __m256i load8(const void* p) {
  return _mm256_loadu_si256(static_cast<const __m256i*>(p));
}

// Where eight samples lie; steps their positions down a row.
HUNT_AVX2 inline Located locate(const Job& job, int i) {
  const __m256i row = load8(job.position + i);
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(job.position + i),
                      _mm256_add_epi32(row, load8(job.step + i)));
  const __m256i line = _mm256_add_epi32(_mm256_srai_epi32(row, kFractionBits), _mm256_set1_epi32(1));
  return {
      _mm256_add_epi32(_mm256_mullo_epi32(line, _mm256_set1_epi32(job.stride)), load8(job.column + i)),
      _mm256_and_si256(_mm256_srli_epi32(row, kFractionBits - kSubBits), _mm256_set1_epi32(kSubSteps - 1))};
}

// Asks for the image a few view rows further down, where this column's samples go next: the
// hardware does not follow a walk that jumps to a new row, and a new page, at every step.
inline void prefetchAhead(const Job& job, int32_t offset) {
  const auto address = reinterpret_cast<uintptr_t>(job.pixels) +
                       (static_cast<intptr_t>(offset) + intptr_t{kPrefetchRows} * job.stride) * 4;
  _mm_prefetch(reinterpret_cast<const char*>(address), _MM_HINT_T0);
}

// The left and right pixel of a pair in one row, channel by channel, weighed across into
// 16-bit sums of sixteenths. `pairs` holds four pairs, `across` their weights.
HUNT_AVX2 inline __m256i weighAcross(__m256i pairs, __m256i across) {
  const __m256i byChannel = _mm256_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15,  //
                                             0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15);
  return _mm256_maddubs_epi16(_mm256_shuffle_epi8(pairs, byChannel), across);
}

// The top and bottom sums weighed down and rounded: four pixels' channels in 16 bits.
HUNT_AVX2 inline __m256i weighDown(__m256i top, __m256i bottom, __m256i down) {
  const __m256i up = _mm256_sub_epi16(_mm256_set1_epi16(kSubSteps), down);
  const __m256i sum = _mm256_add_epi16(_mm256_mullo_epi16(top, up), _mm256_mullo_epi16(bottom, down));
  return _mm256_srli_epi16(_mm256_add_epi16(sum, _mm256_set1_epi16(128)), 8);
}

// Each pixel's row weight in its four channels' 16-bit lanes, for pixels 0, 1, 4, 5 (`first`)
// and 2, 3, 6, 7, the order the gathers below deliver them in.
template <bool first>
HUNT_AVX2 inline __m256i rowWeights(__m256i rowSub) {
  constexpr char a = first ? 0 : 8;
  constexpr char b = first ? 4 : 12;
  constexpr char z = -128;                                                                 // a zero byte
  const __m256i spread = _mm256_setr_epi8(a, z, a, z, a, z, a, z, b, z, b, z, b, z, b, z,  //
                                          a, z, a, z, a, z, a, z, b, z, b, z, b, z, b, z);
  return _mm256_shuffle_epi8(rowSub, spread);
}

HUNT_AVX2 void bilinearEight(const Job& job, int i) {
  const Located at = locate(job, i);
  // Indices of pixels 0, 1, 4, 5 then 2, 3, 6, 7: after the 128-bit-lane packs at the end the
  // eight pixels come out in order.
  const __m256i spread = _mm256_permute4x64_epi64(at.offset, _MM_SHUFFLE(3, 1, 2, 0));
  const __m128i first = _mm256_castsi256_si128(spread);
  const __m128i second = _mm256_extracti128_si256(spread, 1);
  const __m128i below = _mm_set1_epi32(job.stride);
  prefetchAhead(job, _mm_cvtsi128_si32(first));
  const auto* pixels = reinterpret_cast<const long long*>(job.pixels);
  const __m256i acrossPairs = load8(job.acrossPairs + i);
  const __m256i acrossFirst = _mm256_unpacklo_epi32(acrossPairs, acrossPairs);
  const __m256i acrossSecond = _mm256_unpackhi_epi32(acrossPairs, acrossPairs);
  const __m256i topFirst = weighAcross(_mm256_i32gather_epi64(pixels, first, 4), acrossFirst);
  const __m256i topSecond = weighAcross(_mm256_i32gather_epi64(pixels, second, 4), acrossSecond);
  const __m256i bottomFirst =
      weighAcross(_mm256_i32gather_epi64(pixels, _mm_add_epi32(first, below), 4), acrossFirst);
  const __m256i bottomSecond =
      weighAcross(_mm256_i32gather_epi64(pixels, _mm_add_epi32(second, below), 4), acrossSecond);
  const __m256i low = weighDown(topFirst, bottomFirst, rowWeights<true>(at.rowSub));
  const __m256i high = weighDown(topSecond, bottomSecond, rowWeights<false>(at.rowSub));
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(job.out + i), _mm256_packus_epi16(low, high));
}

HUNT_AVX2 void nearestEight(const Job& job, int i) {
  const Located at = locate(job, i);
  // Nearest reads one pixel where bilinear reads four, so it waits on memory all the more.
  prefetchAhead(job, _mm256_cvtsi256_si32(at.offset));
  const __m256i half = _mm256_set1_epi32(kSubSteps / 2);
  const __m256i across =
      _mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(job.columnWeight + i)));
  const __m256i right =
      _mm256_srli_epi32(_mm256_add_epi32(_mm256_srli_epi32(across, kSubBits), half), kSubBits);
  const __m256i below = _mm256_srli_epi32(_mm256_add_epi32(at.rowSub, half), kSubBits);
  const __m256i index = _mm256_add_epi32(_mm256_add_epi32(at.offset, right),
                                         _mm256_mullo_epi32(below, _mm256_set1_epi32(job.stride)));
  const __m256i pixels = _mm256_i32gather_epi32(reinterpret_cast<const int*>(job.pixels), index, 4);
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(job.out + i), pixels);
}

// Runs `eight` over whole groups and the portable loop over the few columns left.
template <void (*eight)(const Job&, int)>
void eightsThen(const Job& job, Kernel rest) {
  const int whole = job.count & ~7;
  for (int i = 0; i < whole; i += 8) eight(job, i);
  if (whole == job.count) return;
  Job tail = job;
  tail.position += whole;
  tail.step += whole;
  tail.column += whole;
  tail.columnWeight += whole;
  tail.acrossPairs += whole;
  tail.count -= whole;
  tail.out += whole;
  rest(tail);
}

}  // namespace

void bilinearAvx2(const Job& job) {
  eightsThen<bilinearEight>(job, bilinearPortable);
}

void nearestAvx2(const Job& job) {
  eightsThen<nearestEight>(job, nearestPortable);
}

}  // namespace platform::span

#endif
