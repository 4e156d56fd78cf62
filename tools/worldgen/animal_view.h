// SPDX-License-Identifier: GPL-2.0-or-later
// An animal as the world's pictures show it: its photograph where there is a true one, its
// drawing otherwise, standing on its shadow in the haze of its range.
#pragma once

#include "tools/worldgen/animal_figure.h"

#include <QPainter>
#include <QSizeF>

namespace worldgen {

void drawAnimal(QPainter& p, int animal, const Pose& pose);
// The animal's width and height in metres, as drawn or photographed, for sizing it in a picture.
QSizeF animalExtent(int animal);
// The zones of exactly what drawAnimal draws, most telling first.
HitRecord hitZonesOf(int animal, const Pose& pose);

}  // namespace worldgen
