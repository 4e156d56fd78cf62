// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/place_features.h"

#include "tools/worldgen/stable_random.h"

#include <QPainterPath>

#include <cmath>

namespace worldgen {

namespace {

bool says(const QString& description, const char* words) {
  return description.contains(QLatin1String(words), Qt::CaseInsensitive);
}

enum class Structure { None, BoxBlind, LadderStand, ClimbingStand, GroundBlind, HayBales, SnowBlind };

Structure structureIn(const QString& d) {
  if (says(d, "box blind")) return Structure::BoxBlind;
  if (says(d, "ladder stand")) return Structure::LadderStand;
  if (says(d, "climbing stand") || says(d, "tree stand")) return Structure::ClimbingStand;
  if (says(d, "ground blind") || says(d, "pit blind")) return Structure::GroundBlind;
  if (says(d, "hay-bale")) return Structure::HayBales;
  if (says(d, "snow blind")) return Structure::SnowBlind;
  return Structure::None;
}

// The structure stands a little to the side of the view's start, near enough to read at once.
QRectF structureArea(Structure s, int width, int height) {
  const double h = height;
  const double tall = s == Structure::LadderStand || s == Structure::ClimbingStand ? 0.62
                      : s == Structure::BoxBlind                                   ? 0.42
                                                                                   : 0.2;
  const double wide = s == Structure::LadderStand || s == Structure::ClimbingStand ? 0.08 : 0.2;
  return QRectF(width * 0.06, h * (0.86 - tall), h * wide * 1.6, h * tall);
}

// Rows of old tobacco or wheat stubble running off toward the horizon over a wide sector.
void paintFieldRows(QPainter& p, int width, int height, double horizonY, const QColor& earth,
                    const QColor& stubble) {
  const double from = width * 0.25, to = width * 0.75, centre = (from + to) / 2;
  QPainterPath field;
  field.moveTo(from + width * 0.05, horizonY + height * 0.03);
  field.lineTo(to - width * 0.05, horizonY + height * 0.03);
  field.lineTo(to + width * 0.08, height);
  field.lineTo(from - width * 0.08, height);
  field.closeSubpath();
  p.setBrush(earth);
  p.drawPath(field);
  p.setPen(QPen(stubble, std::max(1.0, height / 300.0)));
  for (int row = -14; row <= 14; ++row) {
    const double spread = row / 14.0;
    p.drawLine(QPointF(centre + spread * (to - from) * 0.4, horizonY + height * 0.03),
               QPointF(centre + spread * (to - from) * 0.66, height));
  }
  p.setPen(Qt::NoPen);
}

// A dirt road coming from behind the viewer and bending off toward the ridge, with its ruts.
void paintRoad(QPainter& p, int width, int height, double horizonY) {
  const double foot = width * 0.5, far = width * 0.56, top = horizonY + height * 0.015;
  QPainterPath road;
  road.moveTo(foot - width * 0.06, height);
  road.cubicTo(foot - width * 0.03, height * 0.8, far - width * 0.02, top + height * 0.06,
               far - width * 0.004, top);
  road.lineTo(far + width * 0.004, top);
  road.cubicTo(far + width * 0.02, top + height * 0.06, foot + width * 0.03, height * 0.8,
               foot + width * 0.06, height);
  road.closeSubpath();
  p.setBrush(QColor(0x8c7458));
  p.drawPath(road);
  p.setPen(QPen(QColor(0x6a5640), std::max(1.0, height / 200.0)));
  for (const double side : {-0.025, 0.025})
    p.drawLine(QPointF(foot + width * side, height), QPointF(far + width * side * 0.1, top + height * 0.01));
  p.setPen(Qt::NoPen);
}

// The hollow: wooded slopes rising at both ends of the view, crowned with oak and hickory.
void paintHollow(QPainter& p, int width, int height, double horizonY, const Flora& flora) {
  for (const bool left : {true, false}) {
    QPainterPath slope;
    const double edge = left ? 0 : width, inner = left ? width * 0.24 : width * 0.76;
    slope.moveTo(edge, horizonY + height * 0.12);
    slope.lineTo(edge, horizonY - height * 0.3);
    slope.cubicTo(edge + (inner - edge) * 0.4, horizonY - height * 0.28, inner - (inner - edge) * 0.2,
                  horizonY - height * 0.05, inner, horizonY + height * 0.04);
    slope.closeSubpath();
    p.setBrush(flora.ground.darker(135));
    p.drawPath(slope);
    StableRandom rnd(left ? 17 : 29);
    for (int k = 0; k < 160; ++k) {  // bare crowns scattered over the slope
      const double t = rnd.unit(), x = edge + (inner - edge) * t;
      const double crest = horizonY - height * 0.28 * (1 - t * t);
      const double y = crest + rnd.unit() * (horizonY + height * 0.06 - crest);
      p.setBrush(QColor(0x7a6a5e).darker(int(rnd.between(95, 135))));
      p.drawEllipse(QPointF(x, y), height * rnd.between(0.015, 0.035), height * rnd.between(0.012, 0.025));
    }
  }
}

void paintBoxBlind(QPainter& p, const QRectF& a) {
  const double legs = a.height() * 0.45, box = a.height() - legs;
  p.setBrush(QColor(0x4a3a28));
  for (const double x : {0.12, 0.82})
    p.drawRect(QRectF(a.left() + a.width() * x, a.top() + box, a.width() * 0.06, legs));
  p.setBrush(QColor(0x5a6a3a));  // painted plywood walls
  p.drawRect(QRectF(a.left(), a.top() + box * 0.15, a.width(), box * 0.85));
  p.setBrush(QColor(0x3a3226));  // the roof
  p.drawPolygon(QPolygonF({QPointF(a.left() - a.width() * 0.06, a.top() + box * 0.18),
                           QPointF(a.right() + a.width() * 0.06, a.top() + box * 0.18),
                           QPointF(a.right(), a.top()), QPointF(a.left(), a.top())}));
  p.setBrush(QColor(0x141410));  // the shooting window
  p.drawRect(QRectF(a.left() + a.width() * 0.15, a.top() + box * 0.35, a.width() * 0.7, box * 0.22));
  p.setBrush(QColor(0x6a5a40));  // the ladder up
  p.drawRect(QRectF(a.left() + a.width() * 0.4, a.top() + box, a.width() * 0.2, a.height() * 0.02));
}

void paintTreeStand(QPainter& p, const QRectF& a, bool ladder) {
  p.setBrush(QColor(0x5a4a3c));  // the trunk it is strapped to
  p.drawRect(QRectF(a.center().x() - a.width() * 0.14, a.top() - a.height() * 0.1, a.width() * 0.28,
                    a.height() * 1.1));
  p.setBrush(QColor(0x2a2a2a));
  const double seat = a.top() + a.height() * 0.18;
  p.drawRect(QRectF(a.left(), seat, a.width(), a.height() * 0.03));
  p.drawRect(QRectF(a.left(), seat - a.height() * 0.09, a.width() * 0.06, a.height() * 0.09));
  if (!ladder) return;
  p.setPen(QPen(QColor(0x2a2a2a), std::max(1.0, a.width() * 0.06)));
  for (const double x : {0.1, 0.4})
    p.drawLine(QPointF(a.left() + a.width() * x, seat), QPointF(a.left() + a.width() * x, a.bottom()));
  for (double y = seat + a.height() * 0.08; y < a.bottom(); y += a.height() * 0.08)
    p.drawLine(QPointF(a.left() + a.width() * 0.1, y), QPointF(a.left() + a.width() * 0.4, y));
  p.setPen(Qt::NoPen);
}

void paintGroundBlind(QPainter& p, const QRectF& a, const QColor& cloth) {
  QPainterPath hub;
  hub.moveTo(a.bottomLeft());
  hub.cubicTo(a.topLeft(), a.topRight(), a.bottomRight());
  hub.closeSubpath();
  p.setBrush(cloth);
  p.drawPath(hub);
  p.setBrush(cloth.darker(150));  // blotches of camouflage
  for (int k = 0; k < 5; ++k)
    p.drawEllipse(
        QPointF(a.left() + a.width() * (0.2 + 0.15 * k), a.top() + a.height() * (0.45 + 0.1 * (k % 2))),
        a.width() * 0.07, a.height() * 0.1);
  p.setBrush(QColor(0x101010));
  p.drawRect(
      QRectF(a.left() + a.width() * 0.35, a.top() + a.height() * 0.4, a.width() * 0.3, a.height() * 0.14));
}

void paintBales(QPainter& p, const QRectF& a) {
  for (int k = 0; k < 3; ++k) {
    const QRectF bale(a.left() + a.width() * 0.32 * k, a.top() + a.height() * 0.2, a.width() * 0.36,
                      a.height() * 0.8);
    p.setBrush(QColor(0xc8a860).darker(100 + 10 * k));
    p.drawRoundedRect(bale, bale.width() * 0.2, bale.width() * 0.2);
    p.setBrush(QColor(0xa88840));
    p.drawEllipse(bale.center(), bale.width() * 0.3, bale.height() * 0.3);
  }
}

void paintSnowWall(QPainter& p, const QRectF& a) {
  p.setBrush(QColor(150, 168, 200, 120));  // its blue shadow on the snow
  p.drawEllipse(QRectF(a.left(), a.bottom() - a.height() * 0.12, a.width() * 1.1, a.height() * 0.2));
  p.setPen(QPen(QColor(120, 140, 178), std::max(1.0, a.height() * 0.03)));
  for (int row = 0; row < 3; ++row)
    for (int k = 0; k < 4; ++k) {
      if (row == 2 && (k == 1 || k == 2)) continue;  // the gap to look and shoot through
      p.setBrush(QColor(214, 224, 240).darker(100 + 8 * ((k + row) % 2)));
      p.drawRect(QRectF(a.left() + a.width() * (k / 4.0 + (row % 2) * 0.06),
                        a.bottom() - a.height() * (row + 1) / 3.0, a.width() * 0.24, a.height() * 0.31));
    }
  p.setPen(Qt::NoPen);
}

}  // namespace

void paintPlaceGround(QPainter& p, const QString& description, int width, int height, double horizonY,
                      const Flora& flora) {
  p.save();
  p.setPen(Qt::NoPen);
  if (says(description, "tobacco field"))  // turned red earth with the old stalk rows
    paintFieldRows(p, width, height, horizonY, QColor(0x9a7a52), QColor(0xd8c090));
  if (says(description, "stubble"))  // pale cut wheat with darker drill rows
    paintFieldRows(p, width, height, horizonY, QColor(0xd4bc84), QColor(0xa08a58));
  if (says(description, "logging road") || says(description, "two-track"))
    paintRoad(p, width, height, horizonY);
  if (says(description, "hollow")) paintHollow(p, width, height, horizonY, flora);
  p.restore();
}

void paintPlaceStructure(QPainter& p, const QString& description, int width, int height) {
  const Structure s = structureIn(description);
  const QRectF a = structureArea(s, width, height);
  p.save();
  p.setPen(Qt::NoPen);
  switch (s) {
    case Structure::BoxBlind: paintBoxBlind(p, a); break;
    case Structure::LadderStand: paintTreeStand(p, a, true); break;
    case Structure::ClimbingStand: paintTreeStand(p, a, false); break;
    case Structure::GroundBlind:
      paintGroundBlind(p, a, says(description, "pit") ? QColor(0x9a8a5a) : QColor(0x4a5a34));
      break;
    case Structure::HayBales: paintBales(p, a); break;
    case Structure::SnowBlind: paintSnowWall(p, a); break;
    case Structure::None: break;
  }
  p.restore();
}

QList<QRectF> promisedStructures(const QString& description, int width, int height) {
  const Structure s = structureIn(description);
  if (s == Structure::None) return {};
  return {structureArea(s, width, height)};
}

}  // namespace worldgen
