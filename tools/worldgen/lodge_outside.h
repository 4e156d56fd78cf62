// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge and the camp seen from outside: a log building under snow, a tent with its fire,
// and the night sky over them, for the pictures shown between the days of a hunt.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>

namespace worldgen {

// A log lodge with a snowy roof and a smoking chimney filling `r`; `lit` lights its windows.
void drawLodgeOutside(QPainter& p, const QRectF& r, bool lit);
// A wall tent with a fire glowing before it, filling `r`.
void drawCamp(QPainter& p, const QRectF& r);
// Logs and flames standing on `base`; `scale` 1 is a camp fire seen from a few steps.
void drawFire(QPainter& p, QPointF base, double scale);
// Turns a daylight picture into night: dark blue, with stars and a moon above `horizon`.
void makeNight(QImage& image, double horizon, uint64_t seed);

}  // namespace worldgen
