// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/compositor.h"

#include <algorithm>
#include <cstring>

namespace platform {
namespace {

// One surface row from one picture row: each source pixel covers `scale` surface pixels.
template <bool Keyed>
void paintRow(const QRgb* source, int firstSourceX, int phase, int scale, QRgb* out, int count) {
  int sx = firstSourceX;
  int left = scale - phase;  // surface pixels still to come from source pixel sx
  for (int i = 0; i < count; ++i) {
    const QRgb pixel = source[sx];
    if (!Keyed || qAlpha(pixel) != 0) out[i] = pixel | 0xff000000u;
    if (--left == 0) {
      ++sx;
      left = scale;
    }
  }
}

}  // namespace

void paintLayer(QImage& surface, const Layer& layer) {
  const QImage& image = *layer.image;
  const int scale = std::max(layer.scale, 1);
  const QRect picture(layer.target.topLeft(), image.size() * scale);
  const QRect area = picture.intersected(layer.target).intersected(surface.rect());
  if (area.isEmpty()) return;
  const bool keyed = image.hasAlphaChannel();
  const int dx = area.left() - picture.left();
  const int width = area.width();
  int lastSourceY = -1;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    const int sourceY = (y - picture.top()) / scale;
    auto* out = reinterpret_cast<QRgb*>(surface.scanLine(y)) + area.left();
    if (!keyed && sourceY == lastSourceY) {
      // An opaque row repeats the row above it.
      std::memcpy(out, reinterpret_cast<const QRgb*>(surface.constScanLine(y - 1)) + area.left(),
                  size_t(width) * sizeof(QRgb));
      continue;
    }
    const auto* source = reinterpret_cast<const QRgb*>(image.constScanLine(sourceY));
    if (keyed)
      paintRow<true>(source, dx / scale, dx % scale, scale, out, width);
    else
      paintRow<false>(source, dx / scale, dx % scale, scale, out, width);
    lastSourceY = sourceY;
  }
}

void composite(QImage& surface, QRgb background, std::vector<Layer> layers) {
  surface.fill(background);
  std::stable_sort(layers.begin(), layers.end(), [](const Layer& a, const Layer& b) { return a.z < b.z; });
  for (const Layer& layer : layers)
    if (layer.image && !layer.image->isNull()) paintLayer(surface, layer);
}

}  // namespace platform
