// SPDX-License-Identifier: GPL-2.0-or-later
// The camp of each world: wall tents with stovepipes (a log cabin in the far north), the fire
// ring with its smoke, gear, horses on the picket line in the mountains, and the truck that
// takes the hunter back to the lodge.
#include "tools/worldgen/colour_mix.h"
#include "tools/worldgen/panorama_scenes.h"

#include <QPainterPath>

namespace worldgen {

namespace {

void paintTent(QPainter& p, QPointF foot, double h, bool snowy) {
  const double w = h * 1.5;
  const QColor canvas(0xe4d8b8);
  p.setBrush(QColor(0, 0, 0, 50));
  p.drawEllipse(foot + QPointF(w * 0.1, 0), w * 0.65, h * 0.08);
  // Front gable and the side wall running back.
  p.setBrush(canvas.darker(120));
  p.drawPolygon(QPolygonF({foot + QPointF(0, 0), foot + QPointF(w * 0.55, -h * 0.1),
                           foot + QPointF(w * 0.55, -h * 0.75), foot + QPointF(0, -h * 0.6)}));
  p.setBrush(canvas);
  p.drawPolygon(QPolygonF({foot + QPointF(-w * 0.45, 0), foot + QPointF(0, 0), foot + QPointF(0, -h * 0.6),
                           foot + QPointF(-w * 0.225, -h), foot + QPointF(-w * 0.45, -h * 0.6)}));
  p.setBrush(canvas.lighter(108));
  p.drawPolygon(QPolygonF({foot + QPointF(-w * 0.225, -h), foot + QPointF(w * 0.33, -h * 1.1),
                           foot + QPointF(w * 0.55, -h * 0.75), foot + QPointF(0, -h * 0.6)}));
  p.setBrush(QColor(0x6a5a40));  // door flap
  p.drawPolygon(QPolygonF(
      {foot + QPointF(-w * 0.3, 0), foot + QPointF(-w * 0.15, 0), foot + QPointF(-w * 0.225, -h * 0.7)}));
  p.setBrush(QColor(0x3a3a3a));  // stovepipe and its smoke
  const QPointF pipe = foot + QPointF(w * 0.25, -h * 0.98);
  p.drawRect(QRectF(pipe.x() - h * 0.025, pipe.y() - h * 0.35, h * 0.05, h * 0.35));
  for (int k = 0; k < 5; ++k) {
    p.setBrush(QColor(220, 220, 225, 90 - k * 15));
    p.drawEllipse(pipe + QPointF(k * h * 0.12, -h * (0.45 + k * 0.18)), h * (0.08 + k * 0.04),
                  h * (0.06 + k * 0.03));
  }
  if (snowy) {
    p.setBrush(QColor(245, 248, 252));
    p.drawPolygon(QPolygonF({foot + QPointF(-w * 0.225, -h), foot + QPointF(w * 0.33, -h * 1.1),
                             foot + QPointF(w * 0.4, -h * 1.0), foot + QPointF(-w * 0.15, -h * 0.9)}));
  }
}

void paintCabin(QPainter& p, QPointF foot, double h) {
  const double w = h * 1.8;
  for (double y = 0; y < h * 0.6; y += h * 0.08) {
    p.setBrush(QColor(0x6a4a30).lighter(int(100 + (int(y / (h * 0.08)) % 2) * 12)));
    p.drawRoundedRect(QRectF(foot.x() - w / 2, foot.y() - y - h * 0.08, w, h * 0.08), h * 0.04, h * 0.04);
  }
  p.setBrush(QColor(0xf0e0a0));  // a lit window
  p.drawRect(QRectF(foot.x() - w * 0.3, foot.y() - h * 0.45, w * 0.16, h * 0.18));
  p.setBrush(QColor(0x4a3020));
  p.drawRect(QRectF(foot.x() + w * 0.1, foot.y() - h * 0.5, w * 0.14, h * 0.5));
  p.setBrush(QColor(245, 248, 252));
  p.drawPolygon(
      QPolygonF({QPointF(foot.x() - w * 0.6, foot.y() - h * 0.55), QPointF(foot.x(), foot.y() - h * 1.05),
                 QPointF(foot.x() + w * 0.6, foot.y() - h * 0.55)}));
  p.setBrush(QColor(250, 252, 255));  // snow banked to the windows
  p.drawEllipse(QPointF(foot.x(), foot.y()), w * 0.7, h * 0.22);
}

void paintFire(QPainter& p, QPointF foot, double s) {
  p.setBrush(QColor(0x5a5450));
  for (int k = 0; k < 8; ++k)
    p.drawEllipse(foot + QPointF((k - 3.5) * s * 0.14, (k % 2) * s * 0.03), s * 0.09, s * 0.06);
  const QColor flames[] = {QColor(0xd03a0a), QColor(0xf08010), QColor(0xffd040)};
  for (int k = 0; k < 3; ++k) {
    p.setBrush(flames[k]);
    const double fh = s * (0.6 - k * 0.15), fw = s * (0.25 - k * 0.06);
    QPainterPath flame;
    flame.moveTo(foot + QPointF(-fw, 0));
    flame.cubicTo(foot + QPointF(-fw, -fh * 0.6), foot + QPointF(fw * 0.3, -fh * 0.7),
                  foot + QPointF(0, -fh));
    flame.cubicTo(foot + QPointF(fw * 0.3, -fh * 0.5), foot + QPointF(fw, -fh * 0.4), foot + QPointF(fw, 0));
    flame.closeSubpath();
    p.drawPath(flame);
  }
  for (int k = 0; k < 7; ++k) {
    p.setBrush(QColor(200, 200, 205, 80 - k * 10));
    p.drawEllipse(foot + QPointF(-k * s * 0.1, -s * (0.8 + k * 0.35)), s * (0.12 + k * 0.06),
                  s * (0.1 + k * 0.05));
  }
}

void paintTruck(QPainter& p, const QRectF& a, bool snowy) {
  const double h = a.height(), w = a.width();
  const QColor paint(0x7a2a22);
  p.setBrush(QColor(0, 0, 0, 60));
  p.drawEllipse(QPointF(a.center().x(), a.bottom() - h * 0.05), w * 0.55, h * 0.08);
  QLinearGradient body(0, a.top(), 0, a.bottom());
  body.setColorAt(0, paint.lighter(130));
  body.setColorAt(1, paint.darker(140));
  p.setBrush(body);
  p.drawRoundedRect(QRectF(a.left(), a.top() + h * 0.4, w, h * 0.38), h * 0.06, h * 0.06);  // bed and hood
  p.drawRoundedRect(QRectF(a.left() + w * 0.42, a.top() + h * 0.08, w * 0.3, h * 0.4), h * 0.06,
                    h * 0.06);  // cab
  p.setBrush(QColor(0x9ab0c8));
  p.drawRect(QRectF(a.left() + w * 0.46, a.top() + h * 0.14, w * 0.22, h * 0.22));
  p.setBrush(QColor(0xd0d0d0));
  p.drawRect(QRectF(a.left(), a.top() + h * 0.62, w, h * 0.04));
  p.setBrush(QColor(0x1a1a1a));
  for (const double x : {0.2, 0.8}) {
    p.drawEllipse(QPointF(a.left() + w * x, a.bottom() - h * 0.2), h * 0.17, h * 0.17);
    p.setBrush(QColor(0x9a9a9a));
    p.drawEllipse(QPointF(a.left() + w * x, a.bottom() - h * 0.2), h * 0.07, h * 0.07);
    p.setBrush(QColor(0x1a1a1a));
  }
  p.setBrush(QColor(0xfff0b0));
  p.drawEllipse(QPointF(a.right() - w * 0.02, a.top() + h * 0.5), h * 0.04, h * 0.04);
  if (snowy) {
    p.setBrush(QColor(245, 248, 252));
    p.drawRoundedRect(QRectF(a.left() + w * 0.42, a.top() + h * 0.05, w * 0.3, h * 0.06), h * 0.03, h * 0.03);
  }
}

void paintHorse(QPainter& p, QPointF foot, double h, QColor coat) {
  p.setBrush(coat);
  for (const double x : {-0.35, -0.22, 0.25, 0.38})
    p.drawRect(QRectF(foot.x() + x * h, foot.y() - h * 0.5, h * 0.07, h * 0.5));
  p.drawEllipse(QRectF(foot.x() - h * 0.45, foot.y() - h * 0.85, h * 0.95, h * 0.42));
  QPainterPath neck;
  neck.moveTo(foot + QPointF(h * 0.3, -h * 0.75));
  neck.lineTo(foot + QPointF(h * 0.55, -h * 1.1));
  neck.lineTo(foot + QPointF(h * 0.7, -h * 1.0));
  neck.lineTo(foot + QPointF(h * 0.45, -h * 0.6));
  neck.closeSubpath();
  p.drawPath(neck);
  p.drawEllipse(QRectF(foot.x() + h * 0.5, foot.y() - h * 1.12, h * 0.32, h * 0.16));
  p.setBrush(coat.darker(160));
  p.drawRect(QRectF(foot.x() - h * 0.5, foot.y() - h * 0.78, h * 0.06, h * 0.4));  // tail
  p.setBrush(QColor(0x3a5a8a));                                                    // saddle blanket
  p.drawRect(QRectF(foot.x() - h * 0.12, foot.y() - h * 0.86, h * 0.3, h * 0.22));
}

// Split wood stacked three high on the ground beside the fire: a shadow it sits on, the bark of
// the stack, then the pale cut ends facing the viewer.
void paintWoodpile(QPainter& p, QPointF foot, double h) {
  const double r = h * 0.016, w = 6.4 * r, tall = 5.4 * r;
  p.setBrush(QColor(0, 0, 0, 60));
  p.drawEllipse(QPointF(foot.x() + w / 2, foot.y()), w * 0.7, r * 0.8);
  p.setBrush(QColor(0x4a3422));
  p.drawRect(QRectF(foot.x() - r * 0.2, foot.y() - tall, w, tall));
  for (int k = 0; k < 9; ++k) {
    const QPointF end(foot.x() + r + (k % 3) * 2.1 * r + (k / 3 == 1 ? r * 0.4 : 0),
                      foot.y() - r - (k / 3) * 1.8 * r);
    p.setBrush(QColor(0x6a4a2a));
    p.drawEllipse(end, r * 1.05, r * 0.95);
    p.setBrush(QColor(0xd8b483).darker(100 + (k % 3) * 12));
    p.drawEllipse(end, r * 0.8, r * 0.72);
  }
}

}  // namespace

void paintCamp(QPainter& p, QChar world, int width, int height, const QList<Spot>& spots) {
  p.save();
  p.setPen(Qt::NoPen);
  const bool snowy = world == u'Y' || world == u'T' || world == u'B';
  const double h = height;
  if (world == u'Y') {
    paintCabin(p, QPointF(width * 0.47, h * 0.64), h * 0.22);
  } else {
    paintTent(p, QPointF(width * 0.44, h * 0.63), h * 0.16, snowy);
    paintTent(p, QPointF(width * 0.53, h * 0.6), h * 0.12, snowy);
  }
  paintFire(p, QPointF(width * 0.5, h * 0.8), h * 0.12);
  p.setBrush(QColor(0x6a4a2a));  // a log to sit on and a stack of split wood
  p.drawRoundedRect(QRectF(width * 0.455, h * 0.82, h * 0.22, h * 0.035), h * 0.015, h * 0.015);
  paintWoodpile(p, QPointF(width * 0.6, h * 0.68), h);
  if (world == u'B' || world == u'T') {  // horses on the picket line
    p.setBrush(QColor(0x4a3a2a));
    p.drawRect(QRectF(width * 0.64, h * 0.5, width * 0.09, h * 0.006));
    const QColor coats[] = {QColor(0x6a3a1a), QColor(0x2a2018), QColor(0x9a7a5a)};
    for (int k = 0; k < 3; ++k)
      paintHorse(p, QPointF(width * (0.655 + k * 0.03), h * 0.6), h * 0.085, coats[k]);
  }
  for (const Spot& s : spots)
    if (s.name == u"^3lodge") paintTruck(p, s.area, snowy);
  p.restore();
}

}  // namespace worldgen
