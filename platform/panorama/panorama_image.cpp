// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_image.h"

#include <algorithm>

namespace platform {

PanoramaImage::PanoramaImage(const QImage& image) : width_(image.width()), height_(image.height()) {
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  pixels_.resize(static_cast<size_t>(height_ + 2) * stride());
  for (int y = -1; y <= height_; ++y) {
    const auto* source = reinterpret_cast<const uint32_t*>(rgb.constScanLine(std::clamp(y, 0, height_ - 1)));
    uint32_t* row = pixels_.data() + static_cast<size_t>(y + 1) * stride();
    std::copy_n(source, width_, row);
    row[width_] = source[0];
  }
}

}  // namespace platform
