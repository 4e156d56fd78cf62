// SPDX-License-Identifier: GPL-2.0-or-later
// Draws a flat view of a cylindrical panorama, bilinear and seamless across the 0/360 seam.
// Tables that depend only on the view's size and zoom are built once; turning the view only
// moves a column offset, so a panorama turning every frame costs no more than a still one.
#pragma once

#include "platform/panorama/panorama_image.h"
#include "platform/panorama/panorama_projection.h"

#include <QImage>

#include <cstdint>
#include <vector>

namespace platform {

class PanoramaRenderer {
 public:
  // Fills `target` (Format_RGB32; its size in device pixels is the view's size times its
  // device-pixel ratio) with `view` of `image`. Nothing is allocated unless the target's size,
  // the zoom or the image's geometry changed since the last call.
  void render(const PanoramaImage& image, const PanoramaGeometry& geometry, const PanoramaView& view,
              QImage& target);

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
  // Columns [first, last) of the next view row.
  void renderSpan(const PanoramaImage& image, int first, int last, uint32_t* out);

  TableKey key_;
  std::vector<double> columnOffset_;  // image columns from the view's centre column
  std::vector<int32_t> rowStep_;      // image rows per view row, 16.16 fixed point
  // Per frame and per row, sized once with the tables.
  std::vector<int32_t> sourceColumn_;
  std::vector<uint8_t> columnWeight_;  // horizontal sixteenths, pre-shifted into the high nibble
  std::vector<int32_t> rowPosition_;   // running image row of each view column, 16.16
  std::vector<int32_t> frameStep_;     // rowStep_, held inside the image
  std::vector<int32_t> offset_;
  std::vector<uint8_t> weight_;
};

}  // namespace platform
