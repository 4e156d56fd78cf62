// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_image.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace platform {
namespace {

constexpr size_t kHugePage = size_t{2} << 20;

// The renderer reads a curved band across many image rows; on 4 KiB pages nearly every read
// would need its own TLB entry, so ask for huge pages where the system grants them.
uint32_t* allocatePixels(size_t count) {
  const size_t bytes = (count * sizeof(uint32_t) + kHugePage - 1) / kHugePage * kHugePage;
  void* memory = std::aligned_alloc(kHugePage, bytes);
  if (!memory) throw std::bad_alloc();
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  madvise(memory, bytes, MADV_HUGEPAGE);
#endif
  return static_cast<uint32_t*>(memory);
}

// Rows a power of two bytes apart share cache sets, so the few rows the renderer reads at
// once would evict one another; an odd number of lines apart they spread over all sets.
std::ptrdiff_t paddedStride(int width) {
  constexpr std::ptrdiff_t kLine = 64 / sizeof(uint32_t);
  const std::ptrdiff_t lines = (width + 1 + kLine - 1) / kLine;
  return (lines | 1) * kLine;
}

}  // namespace

void PanoramaImage::Release::operator()(uint32_t* p) const {
  std::free(p);
}

PanoramaImage::PanoramaImage(const QImage& image)
    : width_(image.width()), height_(image.height()), stride_(paddedStride(width_)) {
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  pixels_.reset(allocatePixels(static_cast<size_t>(height_ + 2) * stride()));
  for (int y = -1; y <= height_; ++y) {
    const auto* source = reinterpret_cast<const uint32_t*>(rgb.constScanLine(std::clamp(y, 0, height_ - 1)));
    uint32_t* row = pixels_.get() + static_cast<size_t>(y + 1) * stride();
    std::copy_n(source, width_, row);
    row[width_] = source[0];
  }
}

}  // namespace platform
