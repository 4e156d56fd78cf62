// SPDX-License-Identifier: GPL-2.0-or-later
// Each weapon in profile, built from a stock, an action, a barrel and a scope, or a bow's limbs.
#include "tools/worldgen/weapon_pictures.h"

#include "tools/worldgen/materials.h"

#include <QPainterPath>

namespace worldgen {

namespace {

QBrush walnutAlong(double top, double bottom) {
  QLinearGradient g(0, top, 0, bottom);
  g.setColorAt(0, QColor(0x9a6a3a));
  g.setColorAt(0.5, QColor(0x6a4222));
  g.setColorAt(1, QColor(0x4a2a14));
  return g;
}

QBrush bluedAlong(double top, double bottom) {
  QLinearGradient g(0, top, 0, bottom);
  g.setColorAt(0, QColor(0x6a707c));
  g.setColorAt(0.4, QColor(0x2a2e36));
  g.setColorAt(1, QColor(0x121418));
  return g;
}

// A rifle stock from the butt to the fore-end, with a pistol grip.
void stock(QPainter& p, double foreEnd) {
  QPainterPath s;
  s.moveTo(14, 44);
  s.lineTo(90, 50);
  s.cubicTo(100, 50, 104, 52, 110, 52);
  s.lineTo(foreEnd, 52);
  s.lineTo(foreEnd, 60);
  s.lineTo(122, 62);
  s.cubicTo(112, 64, 108, 74, 100, 76);  // the grip
  s.cubicTo(92, 66, 60, 70, 18, 78);
  s.closeSubpath();
  p.setBrush(walnutAlong(44, 78));
  p.setPen(QPen(QColor(0x2a180a), 1));
  p.drawPath(s);
  p.setBrush(QColor(0x1a1a1a));
  p.drawRect(QRectF(12, 43, 5, 36));  // butt pad
}

void action(QPainter& p, double barrelEnd, double barrelWidth, bool bolt) {
  p.setBrush(bluedAlong(46, 56));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRoundedRect(QRectF(104, 46, 50, 9), 2, 2);
  p.drawRect(QRectF(150, 50 - barrelWidth / 2, barrelEnd - 150, barrelWidth));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x1a1a1a), 2));
  p.drawArc(QRectF(112, 56, 16, 12), 180 * 16, 180 * 16);  // trigger guard
  if (!bolt) return;
  p.setPen(QPen(QColor(0x2a2e36), 2.5, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(116, 50), QPointF(112, 60));
  p.setBrush(QColor(0x2a2e36));
  p.drawEllipse(QPointF(112, 61), 3, 3);
}

void scope(QPainter& p) {
  p.setBrush(bluedAlong(30, 42));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRect(QRectF(118, 33, 60, 7));
  p.drawPolygon(QPolygonF({QPointF(108, 30), QPointF(120, 33), QPointF(120, 40), QPointF(108, 43)}));
  p.drawPolygon(QPolygonF({QPointF(176, 33), QPointF(192, 29), QPointF(192, 44), QPointF(176, 40)}));
  p.drawRect(QRectF(144, 27, 8, 6));  // turret
  p.drawRect(QRectF(128, 40, 4, 6));  // rings
  p.drawRect(QRectF(166, 40, 4, 6));
}

void handgun(QPainter& p) {
  p.setBrush(bluedAlong(36, 52));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRect(QRectF(110, 40, 120, 10));             // barrel
  p.drawRoundedRect(QRectF(92, 36, 34, 20), 4, 4);  // frame and cylinder
  QPainterPath grip;
  grip.moveTo(96, 54);
  grip.cubicTo(88, 66, 84, 80, 90, 88);
  grip.lineTo(108, 86);
  grip.cubicTo(104, 74, 108, 62, 112, 56);
  grip.closeSubpath();
  p.setBrush(walnutAlong(54, 88));
  p.drawPath(grip);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x1a1a1a), 2));
  p.drawArc(QRectF(108, 52, 14, 12), 180 * 16, 180 * 16);
}

void compoundBow(QPainter& p) {
  p.setPen(QPen(QColor(0x2a2e36), 6, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(150, 14), QPointF(150, 86));  // riser
  p.setPen(QPen(QColor(0x3a3e46), 4, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(150, 16), QPointF(132, 4));
  p.drawLine(QPointF(150, 84), QPointF(132, 96));
  p.setBrush(QColor(0x8a8e96));
  p.setPen(QPen(QColor(0x1a1a1a), 1));
  p.drawEllipse(QPointF(130, 5), 5, 4);
  p.drawEllipse(QPointF(130, 95), 5, 4);
  p.setPen(QPen(QColor(0xd8d0c0), 1));
  p.drawLine(QPointF(126, 5), QPointF(126, 95));
  p.setPen(QPen(QColor(0x6a4222), 2));
  p.drawLine(QPointF(60, 50), QPointF(250, 50));  // an arrow on the rest
  p.setBrush(QColor(0xc02020));
  p.drawPolygon(QPolygonF({QPointF(252, 50), QPointF(238, 44), QPointF(234, 50), QPointF(238, 56)}));
}

void recurveBow(QPainter& p) {
  QPainterPath limbs;
  limbs.moveTo(140, 6);
  limbs.cubicTo(160, 20, 166, 40, 166, 50);
  limbs.cubicTo(166, 60, 160, 80, 140, 94);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x6a4222), 6, Qt::SolidLine, Qt::RoundCap));
  p.drawPath(limbs);
  p.setPen(QPen(QColor(0xd8d0c0), 1));
  p.drawLine(QPointF(140, 6), QPointF(140, 94));
  p.setPen(QPen(QColor(0x6a4222), 2));
  p.drawLine(QPointF(60, 50), QPointF(240, 50));
  p.setBrush(QColor(0x2a6a2a));
  p.drawPolygon(QPolygonF({QPointF(252, 50), QPointF(238, 44), QPointF(234, 50), QPointF(238, 56)}));
}

}  // namespace

QImage weaponPicture(int n, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  StableRandom rnd(uint64_t(n) + 300);
  paintCloth(p, image.rect(), QColor(0x2f4a32), rnd);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size.width() / 300.0, size.height() / 100.0);
  if (n == 8) {
    compoundBow(p);
  } else if (n == 9) {
    recurveBow(p);
  } else if (n == 5) {
    handgun(p);
  } else {
    const bool longGun = n >= 6;  // the shotgun and the muzzle-loader carry long barrels
    stock(p, longGun ? 230 : 200);
    action(p, longGun ? 292 : 282, n == 6 ? 6 : 4, n <= 4);
    if (n <= 4) scope(p);
    if (n == 7) {  // ramrod under the barrel
      p.setPen(QPen(QColor(0x8a6a3a), 1.5));
      p.drawLine(QPointF(200, 56), QPointF(290, 56));
    }
  }
  return image;
}

}  // namespace worldgen
