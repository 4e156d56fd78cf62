// SPDX-License-Identifier: GPL-2.0-or-later
// An animal drawn alone on a clear clip-sized layer, so tests can read where it covers.
#pragma once

#include "tools/worldgen/animal_view.h"
#include "tools/worldgen/clip_writer.h"

#include <QImage>
#include <QPainter>

namespace worldgen {

inline QImage animalAlone(int animal, const Pose& pose) {
  QImage layer(kClipWidth, kClipHeight, QImage::Format_ARGB32);
  layer.fill(Qt::transparent);
  QPainter p(&layer);
  drawAnimal(p, animal, pose);
  return layer;
}

}  // namespace worldgen
