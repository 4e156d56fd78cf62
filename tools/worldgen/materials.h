// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge's materials for the screens' pictures: planked wood, old paper, leather, felt and
// brass, with the pine and holly of the season, so every screen looks of one house.
#pragma once

#include "tools/worldgen/stable_random.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace worldgen {

// The wood of the lodge's walls and furniture.
inline const QColor kPine(0x9a6a3c);
inline const QColor kWalnut(0x5e3b22);
inline const QColor kInk(0x2b1d0e);

// Planks running across (or down) the rectangle, each its own shade, with grain and knots.
void paintWood(QPainter& p, const QRectF& r, QColor tone, StableRandom& rnd, bool upright = false);
// A sheet of old paper with fibres, a few spots and browned edges.
void paintPaper(QPainter& p, const QRectF& r, StableRandom& rnd, QColor base = QColor(0xf1e6c8));
// Mottled leather with a stitched seam inside its edge.
void paintLeather(QPainter& p, const QRectF& r, QColor tone, StableRandom& rnd, double corner = 10);
// Felt or canvas: a fine weave of the tone.
void paintCloth(QPainter& p, const QRectF& r, QColor tone, StableRandom& rnd);
// A bevelled frame of `width` around the inside of `r`.
void drawFrame(QPainter& p, const QRectF& r, double width, QColor tone);
// An engraved brass plate with four screws.
void drawBrassPlate(QPainter& p, const QRectF& r, const QString& text);
// The text pressed into paper in ink, centred in `r`.
void drawInkTitle(QPainter& p, const QRectF& r, const QString& text, double pixelSize, bool serif = true);
// A pine garland with holly berries hanging from `left` to `right`.
void drawGarland(QPainter& p, QPointF left, QPointF right, double sag, StableRandom& rnd);
// A soft shadow under a rectangle lying on something.
void dropShadow(QPainter& p, const QRectF& r, double depth);
// Darkens the picture towards its edges, as lamplight falls off.
void vignette(QImage& image, double strength);
// Fine grain over the whole picture so flat fills read as material.
void addGrain(QImage& image, int amount, uint64_t seed);

}  // namespace worldgen
