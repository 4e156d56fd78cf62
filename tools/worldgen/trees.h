// SPDX-License-Identifier: GPL-2.0-or-later
// Trees, shrubs and rocks of the outdoor scenes, each drawn from its foot so that the painter
// can stand it on the ground at any depth.
#pragma once

#include "tools/worldgen/stable_random.h"

#include <QColor>
#include <QPainter>
#include <QPointF>

namespace worldgen {

enum class TreeKind { Hardwood, Oak, Cedar, Pine, Spruce, Aspen, Cottonwood };
enum class ShrubKind { Sage, Twigs, Willow, Evergreen, Grass };

// `snow` is the share of the scene under snow; boughs and rocks carry some of it.
void paintTree(QPainter& p, TreeKind kind, QPointF foot, double height, double snow, StableRandom& rnd);
void paintShrub(QPainter& p, ShrubKind kind, QPointF foot, double width, double snow, StableRandom& rnd);
void paintRocks(QPainter& p, QPointF foot, double width, QColor stone, double snow, StableRandom& rnd);

}  // namespace worldgen
