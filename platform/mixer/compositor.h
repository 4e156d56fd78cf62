// SPDX-License-Identifier: GPL-2.0-or-later
// Paints sprites' pictures onto the mixer's surface in z order, whole-number scaled, with
// see-through pixels skipped.
#pragma once

#include <QImage>
#include <QRect>

#include <optional>
#include <vector>

namespace platform {

struct Layer {
  const QImage* image = nullptr;  // RGB32 opaque, or ARGB32 where alpha 0 is see-through
  QRect target;                   // where it goes; the picture is clipped to it
  int scale = 1;
  int z = 0;
};

// Fills `surface` (RGB32) with `background` and paints `layers`, lower z first; layers of
// equal z keep their order.
void composite(QImage& surface, QRgb background, std::vector<Layer> layers);

// Paints one layer; exposed for the benchmark.
void paintLayer(QImage& surface, const Layer& layer);

}  // namespace platform
