// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge, the camp, a fire and the night sky, painted from simple shapes.
#include "tools/worldgen/lodge_outside.h"

#include "tools/worldgen/stable_random.h"

#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>

namespace worldgen {

namespace {

void glow(QPainter& p, QPointF at, double radius, QColor colour) {
  QRadialGradient g(at, radius);
  g.setColorAt(0, colour);
  colour.setAlpha(0);
  g.setColorAt(1, colour);
  p.fillRect(QRectF(at - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), g);
}

void logWall(QPainter& p, const QRectF& wall) {
  const double log = wall.height() / 9;
  for (int i = 0; i < 9; ++i) {
    const QRectF r(wall.left() - log * 0.3, wall.top() + i * log, wall.width() + log * 0.6, log);
    QLinearGradient round(r.topLeft(), r.bottomLeft());
    round.setColorAt(0, QColor(0x8a5a32));
    round.setColorAt(0.5, QColor(0x6a4222));
    round.setColorAt(1, QColor(0x3a2412));
    p.setBrush(round);
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(r, log / 2, log / 2);
  }
}

void windowPane(QPainter& p, const QRectF& r, bool lit) {
  if (lit) glow(p, r.center(), r.width() * 1.6, QColor(255, 190, 90, 110));
  p.setBrush(lit ? QColor(0xffcf78) : QColor(0x2a3040));
  p.setPen(QPen(QColor(0x2a1a0a), 3));
  p.drawRect(r);
  p.drawLine(QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
  p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
}

}  // namespace

void drawFire(QPainter& p, QPointF base, double scale) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(0x3a2410), 5, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(base + QPointF(-24, 6) * scale, base + QPointF(24, -4) * scale);
  p.drawLine(base + QPointF(-22, -4) * scale, base + QPointF(22, 6) * scale);
  p.setPen(Qt::NoPen);
  for (const auto& [dx, height, colour] :
       {std::tuple{0.0, 46.0, QColor(0xff7a1a)}, std::tuple{-8.0, 30.0, QColor(0xffb43a)},
        std::tuple{7.0, 26.0, QColor(0xffe07a)}}) {
    QPainterPath flame;
    const QPointF at = base + QPointF(dx, 0) * scale;
    const auto pt = [&](double x, double y) { return at + QPointF(x, y) * scale; };
    flame.moveTo(pt(-12, 0));
    flame.cubicTo(pt(-14, -height * 0.5), pt(-2, -height * 0.6), pt(0, -height));
    flame.cubicTo(pt(4, -height * 0.6), pt(14, -height * 0.5), pt(12, 0));
    p.setBrush(colour);
    p.drawPath(flame);
  }
  p.restore();
}

void drawLodgeOutside(QPainter& p, const QRectF& r, bool lit) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const double w = r.width();
  const double h = r.height();
  const QRectF wall(r.left() + w * 0.08, r.top() + h * 0.42, w * 0.84, h * 0.5);
  // Chimney and its smoke.
  p.setBrush(QColor(0x6a6058));
  p.setPen(Qt::NoPen);
  p.drawRect(QRectF(r.left() + w * 0.7, r.top() + h * 0.08, w * 0.07, h * 0.3));
  for (int i = 0; i < 6; ++i)
    glow(p, QPointF(r.left() + w * (0.74 + 0.03 * i), r.top() + h * (0.04 - 0.08 * i)),
         w * (0.04 + 0.015 * i), QColor(220, 220, 230, 70 - 8 * i));
  logWall(p, wall);
  // Roof under snow.
  QPolygonF roof({QPointF(r.left(), wall.top() + 4), QPointF(r.center().x(), r.top() + h * 0.12),
                  QPointF(r.right(), wall.top() + 4)});
  p.setBrush(QColor(0x3a2a1e));
  p.drawPolygon(roof);
  QPolygonF snow({QPointF(r.left() - 4, wall.top() - 2), QPointF(r.center().x(), r.top() + h * 0.1),
                  QPointF(r.right() + 4, wall.top() - 2), QPointF(r.right() - w * 0.05, wall.top() + 8),
                  QPointF(r.center().x(), r.top() + h * 0.2), QPointF(r.left() + w * 0.05, wall.top() + 8)});
  p.setBrush(QColor(0xf4f6fa));
  p.drawPolygon(snow);
  // Door, windows, porch light.
  const QRectF door(r.center().x() - w * 0.06, wall.bottom() - h * 0.3, w * 0.12, h * 0.3);
  p.setBrush(QColor(0x3a2010));
  p.setPen(QPen(QColor(0x1a0e04), 2));
  p.drawRect(door);
  windowPane(p, QRectF(wall.left() + w * 0.08, wall.top() + h * 0.14, w * 0.16, h * 0.16), lit);
  windowPane(p, QRectF(wall.right() - w * 0.24, wall.top() + h * 0.14, w * 0.16, h * 0.16), lit);
  if (lit) glow(p, QPointF(door.center().x(), door.top() - 8), w * 0.1, QColor(255, 210, 120, 150));
  // Snow heaped along the foot of the wall.
  p.setBrush(QColor(0xe8ecf4));
  p.setPen(Qt::NoPen);
  QPainterPath drift;
  drift.moveTo(r.left() - 10, r.bottom());
  drift.cubicTo(r.left() + w * 0.2, wall.bottom() - h * 0.06, r.right() - w * 0.2, wall.bottom() - h * 0.02,
                r.right() + 10, r.bottom());
  p.drawPath(drift);
  p.restore();
}

void drawCamp(QPainter& p, const QRectF& r) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const double w = r.width();
  const double h = r.height();
  const QPointF fire(r.left() + w * 0.78, r.bottom() - h * 0.1);
  glow(p, fire, w * 0.45, QColor(255, 140, 40, 120));
  QPolygonF tent({QPointF(r.left(), r.bottom()), QPointF(r.left() + w * 0.12, r.top() + h * 0.35),
                  QPointF(r.left() + w * 0.3, r.top()), QPointF(r.left() + w * 0.48, r.top() + h * 0.35),
                  QPointF(r.left() + w * 0.6, r.bottom())});
  QLinearGradient canvas(r.topLeft(), r.bottomRight());
  canvas.setColorAt(0, QColor(0xd8c8a0));
  canvas.setColorAt(1, QColor(0x8a6a40));
  p.setBrush(canvas);
  p.setPen(QPen(QColor(0x3a2a14), 2));
  p.drawPolygon(tent);
  p.setBrush(QColor(0xffb050));
  p.drawPolygon(
      QPolygonF({QPointF(r.left() + w * 0.22, r.bottom()), QPointF(r.left() + w * 0.3, r.top() + h * 0.4),
                 QPointF(r.left() + w * 0.38, r.bottom())}));
  drawFire(p, fire, 1);
  p.restore();
}

void makeNight(QImage& image, double horizon, uint64_t seed) {
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setCompositionMode(QPainter::CompositionMode_Multiply);
  p.fillRect(image.rect(), QColor(70, 85, 140));
  p.setCompositionMode(QPainter::CompositionMode_SourceOver);
  QLinearGradient sky(0, 0, 0, image.height() * horizon);
  sky.setColorAt(0, QColor(6, 10, 30, 235));
  sky.setColorAt(1, QColor(20, 30, 70, 120));
  p.fillRect(QRectF(0, 0, image.width(), image.height() * horizon), sky);
  StableRandom rnd(seed);
  const int stars = image.width() * image.height() / 2500;
  for (int i = 0; i < stars; ++i) {
    const QPointF at(rnd.between(0, image.width()), rnd.between(0, image.height() * horizon * 0.85));
    p.setPen(QPen(QColor(255, 255, 235, int(rnd.between(90, 255))), rnd.between(0.8, 2.2), Qt::SolidLine,
                  Qt::RoundCap));
    p.drawPoint(at);
  }
  const QPointF moon(image.width() * 0.8, image.height() * horizon * 0.25);
  glow(p, moon, image.width() * 0.09, QColor(220, 230, 255, 90));
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xf4f0dc));
  p.drawEllipse(moon, image.width() * 0.025, image.width() * 0.025);
}

}  // namespace worldgen
