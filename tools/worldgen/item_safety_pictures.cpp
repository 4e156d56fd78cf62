// SPDX-License-Identifier: GPL-2.0-or-later
// The safety kit drawn piece by piece, each by the part a hunter knows it from: the harness
// by its straps and buckles, the GPS by its aerial and map, the radios as a pair.
#include "tools/worldgen/item_kit_pictures.h"

#include <QPainterPath>

namespace worldgen {

namespace {

double line(const QRectF& r, double fraction) {
  return r.width() * fraction;
}

void firstAid(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xb02a20), r);
  p.drawRoundedRect(QRectF(at(r, 0.2, 0.25), at(r, 0.8, 0.85)), line(r, 0.05), line(r, 0.05));
  p.setBrush(Qt::white);
  p.setPen(Qt::NoPen);
  p.drawRect(QRectF(at(r, 0.45, 0.35), at(r, 0.55, 0.75)));
  p.drawRect(QRectF(at(r, 0.35, 0.5), at(r, 0.65, 0.6)));
}

void compass(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xd8d0a8), r);  // the map under it
  p.drawRect(QRectF(at(r, 0.05, 0.15), at(r, 0.95, 0.95)));
  p.setPen(QPen(QColor(0x8a6a3a), line(r, 0.012)));
  for (double y = 0.3; y < 0.9; y += 0.12) p.drawArc(QRectF(at(r, 0.1, y), at(r, 0.9, y + 0.2)), 0, 180 * 16);
  outlined(p, QColor(0xc9a04a), r);
  p.drawEllipse(at(r, 0.5, 0.55), r.height() * 0.28, r.height() * 0.28);
  outlined(p, QColor(0xc02020), r);
  p.drawPolygon(QPolygonF({at(r, 0.5, 0.32), at(r, 0.54, 0.55), at(r, 0.46, 0.55)}));
}

// Shoulder straps, a chest strap and leg loops in webbing, with steel buckles and the tether.
void harness(QPainter& p, const QRectF& r) {
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x2a2c30), line(r, 0.06), Qt::SolidLine, Qt::RoundCap));
  p.drawLine(at(r, 0.35, 0.05), at(r, 0.4, 0.6));
  p.drawLine(at(r, 0.65, 0.05), at(r, 0.6, 0.6));
  p.drawLine(at(r, 0.3, 0.6), at(r, 0.7, 0.6));
  p.setPen(QPen(QColor(0xf06a10), line(r, 0.05), Qt::SolidLine, Qt::RoundCap));
  p.drawLine(at(r, 0.36, 0.3), at(r, 0.64, 0.3));
  p.drawEllipse(QRectF(at(r, 0.22, 0.62), at(r, 0.46, 0.95)));
  p.drawEllipse(QRectF(at(r, 0.54, 0.62), at(r, 0.78, 0.95)));
  outlined(p, QColor(0xb8bcc4), r);
  for (const QPointF& buckle : {at(r, 0.5, 0.3), at(r, 0.5, 0.6), at(r, 0.3, 0.75), at(r, 0.7, 0.75)})
    p.drawRect(QRectF(buckle - QPointF(line(r, 0.05), line(r, 0.035)), QSizeF(line(r, 0.1), line(r, 0.07))));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0xe0c020), line(r, 0.025)));
  p.drawArc(QRectF(at(r, 0.5, -0.05), at(r, 0.95, 0.4)), 90 * 16, -200 * 16);
}

// A handheld receiver with a stub aerial, a map on its screen and the track walked.
void gps(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xd8b020), r);
  p.drawRect(QRectF(at(r, 0.58, 0.02), at(r, 0.64, 0.2)));
  p.drawRoundedRect(QRectF(at(r, 0.32, 0.15), at(r, 0.68, 0.95)), line(r, 0.06), line(r, 0.06));
  outlined(p, QColor(0xc8d8b0), r);
  p.drawRect(QRectF(at(r, 0.37, 0.22), at(r, 0.63, 0.55)));
  p.setPen(QPen(QColor(0xc02020), line(r, 0.02)));
  p.drawPolyline(QPolygonF({at(r, 0.39, 0.5), at(r, 0.45, 0.36), at(r, 0.52, 0.42), at(r, 0.6, 0.26)}));
  outlined(p, QColor(0x3a3c40), r);
  for (const double x : {0.42, 0.58}) p.drawEllipse(at(r, x, 0.72), line(r, 0.04), line(r, 0.04));
}

void mirrorAndWhistle(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xd8e0e8), r);
  p.drawRect(QRectF(at(r, 0.08, 0.25), at(r, 0.55, 0.8)));
  p.setBrush(QColor(0x404448));
  p.drawEllipse(at(r, 0.315, 0.525), line(r, 0.04), line(r, 0.04));
  outlined(p, QColor(0xf06a10), r);
  p.drawRoundedRect(QRectF(at(r, 0.6, 0.45), at(r, 0.95, 0.62)), line(r, 0.04), line(r, 0.04));
  p.drawEllipse(QRectF(at(r, 0.78, 0.4), at(r, 0.95, 0.7)));
}

// A ferro rod with its striker and the flame it lights.
void fireStarter(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0x6a4222), r);
  p.drawRect(QRectF(at(r, 0.1, 0.6), at(r, 0.3, 0.75)));
  outlined(p, QColor(0x4a4c50), r);
  p.drawRect(QRectF(at(r, 0.3, 0.63), at(r, 0.7, 0.72)));
  QPainterPath flame;
  flame.moveTo(at(r, 0.8, 0.1));
  flame.cubicTo(at(r, 0.95, 0.4), at(r, 0.95, 0.55), at(r, 0.8, 0.58));
  flame.cubicTo(at(r, 0.65, 0.55), at(r, 0.65, 0.4), at(r, 0.8, 0.1));
  outlined(p, QColor(0xf09020), r);
  p.drawPath(flame);
}

void radios(QPainter& p, const QRectF& r) {
  for (const double x : {0.2, 0.55}) {
    outlined(p, QColor(0x2a2c30), r);
    p.drawRect(QRectF(at(r, x + 0.05, 0.05), at(r, x + 0.09, 0.3)));
    outlined(p, QColor(0xf06a10), r);
    p.drawRoundedRect(QRectF(at(r, x, 0.28), at(r, x + 0.25, 0.95)), line(r, 0.04), line(r, 0.04));
    p.setBrush(QColor(0x2a2c30));
    p.drawRect(QRectF(at(r, x + 0.04, 0.55), at(r, x + 0.21, 0.85)));
  }
}

// A red can with its black trigger cap and the white safety clip.
void bearSpray(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xd02a20), r);
  p.drawRoundedRect(QRectF(at(r, 0.35, 0.25), at(r, 0.65, 0.95)), line(r, 0.05), line(r, 0.05));
  outlined(p, QColor(0x1a1a1a), r);
  p.drawRect(QRectF(at(r, 0.38, 0.1), at(r, 0.62, 0.25)));
  p.drawRect(QRectF(at(r, 0.2, 0.12), at(r, 0.38, 0.18)));
  p.setBrush(Qt::white);
  p.drawRect(QRectF(at(r, 0.62, 0.14), at(r, 0.72, 0.22)));
}

// The elastic band round an imagined head, the lamp in front and its beam.
void headlamp(QPainter& p, const QRectF& r) {
  p.setBrush(QColor(255, 240, 160, 150));
  p.setPen(Qt::NoPen);
  p.drawPolygon(QPolygonF({at(r, 0.6, 0.5), at(r, 1.0, 0.2), at(r, 1.0, 0.85)}));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x2a5a8a), line(r, 0.06)));
  p.drawEllipse(QRectF(at(r, 0.08, 0.3), at(r, 0.6, 0.72)));
  outlined(p, QColor(0x3a3c40), r);
  p.drawRoundedRect(QRectF(at(r, 0.48, 0.38), at(r, 0.66, 0.64)), line(r, 0.03), line(r, 0.03));
  p.setBrush(QColor(0xfff0a0));
  p.drawEllipse(at(r, 0.62, 0.51), line(r, 0.05), line(r, 0.08));
}

struct Kit {
  const char* word;
  void (*draw)(QPainter&, const QRectF&);
};

constexpr Kit kKit[] = {
    {"First Aid", firstAid},      {"Compass", compass},  {"Harness", harness}, {"GPS", gps},
    {"Mirror", mirrorAndWhistle}, {"Fire", fireStarter}, {"Radio", radios},    {"Bear", bearSpray},
    {"Headlamp", headlamp},
};

}  // namespace

void drawSafetyKit(QPainter& p, const QRectF& r, const QString& name) {
  for (const Kit& kit : kKit)
    if (name.contains(QLatin1String(kit.word))) return kit.draw(p, r);
  firstAid(p, r);
}

}  // namespace worldgen
