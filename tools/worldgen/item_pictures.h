// SPDX-License-Identifier: GPL-2.0-or-later
// The catalogue's goods drawn one by one: binoculars, hats, coats, boots, calls, decoys,
// scents, knives, tents, bags, packs and safety kit, coloured as their names say.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace worldgen {

// Draws the item of sub-category `kind` (1..16, as the catalogue numbers them) named `name`
// inside `r`.
void drawItem(QPainter& p, const QRectF& r, int kind, const QString& name);

}  // namespace worldgen
