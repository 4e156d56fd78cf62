// SPDX-License-Identifier: GPL-2.0-or-later
// A panorama's pixels laid out for the renderer: one column of wrap-around on the right and
// a copy of the first and last rows above and below, so bilinear reads never need a bounds test.
#pragma once

#include <QImage>
#include <QImageReader>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace platform {

class PanoramaImage {
 public:
  explicit PanoramaImage(const QImage& image);
  // Decodes straight into the padded rows where the reader's format allows, which saves a
  // copy of the whole picture; `isNull()` when the file cannot be read.
  explicit PanoramaImage(QImageReader& reader);

  bool isNull() const { return !pixels_; }

  int width() const { return width_; }
  int height() const { return height_; }
  // Pixels per stored row: the image width plus the wrap-around column, rounded up to whole
  // cache lines and to an odd number of them.
  std::ptrdiff_t stride() const { return stride_; }
  // Row -1 of the image (the copy of row 0); rows run to `height` (the copy of the last row).
  const uint32_t* paddedRows() const { return pixels_.get(); }
  // 0xffRRGGBB of image pixel (x, y), for callers outside the hot path.
  uint32_t pixel(int x, int y) const { return pixels_[static_cast<size_t>(y + 1) * stride() + x]; }

 private:
  int width_ = 0;
  int height_ = 0;
  std::ptrdiff_t stride_ = 0;
  struct Release {
    void operator()(uint32_t* p) const;
  };
  std::unique_ptr<uint32_t[], Release> pixels_;

  void allocate(int width, int height);
  void copyRows(const QImage& image);
  void padEdges();
};

}  // namespace platform
