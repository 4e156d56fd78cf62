// SPDX-License-Identifier: GPL-2.0-or-later
// The hunter's small kit drawn item by item: glasses, calls, decoys, scents and safety gear.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace worldgen {

// The point at fractions (x, y) of `r`, so every drawing scales with its card.
inline QPointF at(const QRectF& r, double x, double y) {
  return {r.left() + r.width() * x, r.top() + r.height() * y};
}

// A fill with its own darker outline, sized to the card.
void outlined(QPainter& p, QColor fill, const QRectF& r);

void drawGlass(QPainter& p, const QRectF& r, const QString& name);
void drawCall(QPainter& p, const QRectF& r, const QString& name);
void drawDecoy(QPainter& p, const QRectF& r, const QString& name);
void drawScent(QPainter& p, const QRectF& r, const QString& name);
void drawSafetyKit(QPainter& p, const QRectF& r, const QString& name);

}  // namespace worldgen
