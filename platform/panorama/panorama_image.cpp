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

PanoramaImage::PanoramaImage(const QImage& image) {
  allocate(image.width(), image.height());
  copyRows(image.convertToFormat(QImage::Format_RGB32));
  padEdges();
}

PanoramaImage::PanoramaImage(QImageReader& reader) {
  const QSize size = reader.size();
  if (size.isEmpty()) {
    // A format that cannot tell its size first is read whole, then copied.
    if (const QImage image = reader.read(); !image.isNull()) *this = PanoramaImage(image);
    return;
  }
  allocate(size.width(), size.height());
  uint32_t* first = pixels_.get() + stride();
  QImage rows(reinterpret_cast<uchar*>(first), width_, height_, stride() * 4, QImage::Format_RGB32);
  if (!reader.read(&rows)) {
    pixels_.reset();
    width_ = height_ = 0;
    return;
  }
  // A reader may hand back an image of its own (another format, or a picture of another size).
  if (rows.constBits() != reinterpret_cast<const uchar*>(first) || rows.size() != QSize(width_, height_)) {
    const QImage own = rows;
    allocate(own.width(), own.height());
    copyRows(own.convertToFormat(QImage::Format_RGB32));
  }
  padEdges();
}

void PanoramaImage::allocate(int width, int height) {
  width_ = width;
  height_ = height;
  stride_ = paddedStride(width);
  pixels_.reset(allocatePixels(static_cast<size_t>(height + 2) * stride()));
}

void PanoramaImage::copyRows(const QImage& image) {
  for (int y = 0; y < height_; ++y)
    std::copy_n(reinterpret_cast<const uint32_t*>(image.constScanLine(y)), width_,
                pixels_.get() + static_cast<size_t>(y + 1) * stride());
}

// The row above, the row below and the wrap-around column.
void PanoramaImage::padEdges() {
  if (height_ <= 0) return;
  uint32_t* rows = pixels_.get();
  std::copy_n(rows + stride(), width_, rows);
  std::copy_n(rows + static_cast<size_t>(height_) * stride(), width_,
              rows + static_cast<size_t>(height_ + 1) * stride());
  for (int y = 0; y < height_ + 2; ++y)
    rows[static_cast<size_t>(y) * stride() + width_] = rows[static_cast<size_t>(y) * stride()];
}

}  // namespace platform
