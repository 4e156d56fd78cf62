// SPDX-License-Identifier: GPL-2.0-or-later
// The renderer's inner loops: one view row's run of columns, sampled bilinear or nearest,
// in a portable form and, where the processor has them, with AVX2 instructions.
#pragma once

#include <cstdint>

namespace platform::span {

constexpr int kFractionBits = 16;  // image rows are tracked in 16.16 fixed point
// Four bits of sub-pixel position each way: the four corner weights then sum to 256.
constexpr int kSubBits = 4;
constexpr int kSubSteps = 1 << kSubBits;

// One view row's columns [0, count). Positions step down one view row as the span is drawn.
struct Job {
  const uint32_t* pixels;       // the padded image's row -1
  int32_t stride;               // pixels per padded row
  int32_t* position;            // each column's image row, 16.16, advanced by `step`
  const int32_t* step;          // image rows per view row, 16.16
  const int32_t* column;        // image column left of each sample
  const uint8_t* columnWeight;  // horizontal sixteenths, pre-shifted into the high nibble
  // The same as byte pairs (16 - u, u), twice in each 32-bit word, for multiply-add.
  const uint32_t* acrossPairs;
  int count;
  uint32_t* out;
  // Room for `count` sample offsets and weights, for the loops that stage them.
  int32_t* offsetScratch;
  uint8_t* weightScratch;
};

using Kernel = void (*)(const Job&);

void bilinearPortable(const Job& job);
void nearestPortable(const Job& job);
// Defined only on x86-64; call only where the processor supports AVX2.
void bilinearAvx2(const Job& job);
void nearestAvx2(const Job& job);

}  // namespace platform::span
