// SPDX-License-Identifier: GPL-2.0-or-later
// What a place's own words promise beyond its trees and water: the field, the road or the
// hollow it lies in, and the stand or blind the hunter sits in, painted where a player sees them.
#pragma once

#include "tools/worldgen/landscape.h"

#include <QList>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace worldgen {

// Worked ground under the trees: field rows, a logging road or two-track, the slopes of a hollow.
void paintPlaceGround(QPainter& p, const QString& description, int width, int height, double horizonY,
                      const Flora& flora);
// The blind or stand a description names, standing in the near ground.
void paintPlaceStructure(QPainter& p, const QString& description, int width, int height);
// Where that structure stands in a picture of the given size; empty when the words name none.
QList<QRectF> promisedStructures(const QString& description, int width, int height);

}  // namespace worldgen
