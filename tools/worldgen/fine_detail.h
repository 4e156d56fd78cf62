// SPDX-License-Identifier: GPL-2.0-or-later
// The grain finer than any of the scene painters' strokes: leaves in the foliage, fibres in the
// bark, blades in the grass and crust in the snow, put in pixel by pixel at the size shown.
#pragma once

#include <QImage>

#include <cstdint>

namespace worldgen {

// What a painted pixel shows, judged by its colour and how far down the picture it lies.
enum class Surface { Sky, Foliage, Bark, Grass, Snow, Stone };

Surface surfaceOf(QRgb pixel, double depthShare);

// Works the grain into an outdoor picture (Format_RGB32) that is seen at one image pixel to
// one screen pixel; the same seed gives the same picture. Sky and water stay smooth.
void paintFineDetail(QImage& picture, uint64_t seed);

}  // namespace worldgen
