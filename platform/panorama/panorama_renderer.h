// SPDX-License-Identifier: GPL-2.0-or-later
// Draws a flat view of a cylindrical panorama, bilinear (or nearest while it moves) and
// seamless across the 0/360 seam.
// Tables that depend only on the view's size and zoom are built once; turning the view only
// moves a column offset, so a panorama turning every frame costs no more than a still one.
#pragma once

#include "platform/panorama/panorama_image.h"
#include "platform/panorama/panorama_projection.h"
#include "platform/panorama/panorama_span.h"

#include <QImage>

#include <cstdint>
#include <vector>

namespace platform {

// Bilinear at rest; nearest is for frames that are replaced at once, as while dragging.
enum class Sampling { Bilinear, Nearest };

class PanoramaRenderer {
 public:
  // Which inner loops draw: the fastest this processor runs, or the portable ones, which
  // every processor runs and which the faster ones match to the bit.
  enum class Path { Fastest, Portable };

  explicit PanoramaRenderer(Path path = Path::Fastest);

  // Whether Path::Fastest draws with AVX2 on this processor.
  static bool hasAvx2();

  // Fills `target` (Format_RGB32; its size in device pixels is the view's size times its
  // device-pixel ratio) with `view` of `image`. Nothing is allocated unless the target's size,
  // the zoom or the image's geometry changed since the last call.
  void render(const PanoramaImage& image, const PanoramaGeometry& geometry, const PanoramaView& view,
              QImage& target, Sampling sampling = Sampling::Bilinear);

 private:
  struct TableKey {
    int width = 0;
    int height = 0;
    double focal = 0;
    double radius = 0;
    double verticalRadius = 0;
    bool operator==(const TableKey&) const = default;
  };

  void buildTables(const TableKey& key);
  void prepareFrame(const PanoramaImage& image, const PanoramaView& view);

  bool avx2_;
  TableKey key_;
  std::vector<double> columnOffset_;  // image columns from the view's centre column
  std::vector<int32_t> rowStep_;      // image rows per view row, 16.16 fixed point
  // Per frame and per row, sized once with the tables.
  std::vector<int32_t> sourceColumn_;
  std::vector<uint8_t> columnWeight_;  // horizontal sixteenths, pre-shifted into the high nibble
  std::vector<uint32_t> acrossPairs_;
  std::vector<int32_t> rowPosition_;  // running image row of each view column, 16.16
  std::vector<int32_t> frameStep_;    // rowStep_, held inside the image
  std::vector<int32_t> offset_;       // scratch for the portable loops
  std::vector<uint8_t> weight_;
};

}  // namespace platform
