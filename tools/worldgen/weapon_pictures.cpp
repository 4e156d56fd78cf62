// SPDX-License-Identifier: GPL-2.0-or-later
// Each weapon in profile, built from a stock, an action, a barrel and a scope, or a bow's limbs.
#include "tools/worldgen/weapon_pictures.h"

#include "tools/worldgen/materials.h"

#include <QPainterPath>

namespace worldgen {

namespace {

QBrush bluedAlong(double top, double bottom) {
  QLinearGradient g(0, top, 0, bottom);
  g.setColorAt(0, QColor(0x6a707c));
  g.setColorAt(0.4, QColor(0x2a2e36));
  g.setColorAt(1, QColor(0x121418));
  return g;
}

QBrush stockAlong(QRgb light, QRgb dark, double top, double bottom) {
  QLinearGradient g(0, top, 0, bottom);
  g.setColorAt(0, QColor(light));
  g.setColorAt(1, QColor(dark));
  return g;
}

enum class Action { Bolt, Pump, SideHammer, Lever, FallingBlock };

// What tells one long gun from another on the rack: its stock's wood or plastic, how far
// the fore-end reaches, the barrel's length and weight, the action, and the glass on top.
struct LongGun {
  QRgb stockLight, stockDark;
  double foreEnd, muzzle, barrel;
  Action action;
  double scopeLength, objective;  // no scope when the length is 0
  bool laminated, brake, sling;
};

constexpr LongGun kLongGuns[] = {
    {0xb07a44, 0x6a4222, 196, 262, 3, Action::Bolt, 48, 11, false, false, false},    // light .257
    {0x8a5a30, 0x3a2210, 204, 276, 4, Action::Bolt, 60, 14, false, false, false},    // walnut .280
    {0x3a3c40, 0x121416, 208, 290, 4.5, Action::Bolt, 70, 18, false, false, false},  // synthetic magnum
    {0x8a8070, 0x4a3a2a, 208, 290, 5, Action::Bolt, 66, 20, true, true, false},      // laminated .338
    {},
    {0x9a6a3a, 0x4a2a14, 236, 292, 6, Action::Pump, 0, 0, false, false, false},        // the pump gun
    {0x7a4a22, 0x3a2210, 284, 292, 5, Action::SideHammer, 0, 0, false, false, false},  // full stock
};

// The special-permit rack: its own bolt rifles, the lever gun and the falling-block Sharps.
constexpr LongGun kPermitLongGuns[] = {
    {0xd0a870, 0x8a6a40, 190, 256, 3, Action::Bolt, 40, 10, false, false, false},  // blonde .243
    {0x7a4a26, 0x3a2210, 200, 266, 4, Action::Bolt, 52, 12, false, false, true},   // .308 on a sling
    {0x5a6a4a, 0x2a3222, 210, 298, 4, Action::Bolt, 76, 16, false, false, false},  // olive 7mm
    {0x6a7a6a, 0x3a4a3a, 208, 290, 5.5, Action::Bolt, 62, 22, true, true, false},  // laminated 8mm
    {},
    {0xa06a36, 0x5a3418, 196, 252, 4, Action::Lever, 0, 0, false, false, false},
    {0x8a5a2a, 0x4a2a14, 190, 298, 7, Action::FallingBlock, 0, 0, false, false, false},
};

// A rifle stock from the butt to the fore-end, with a pistol grip.
void stock(QPainter& p, const LongGun& g) {
  QPainterPath s;
  s.moveTo(14, 44);
  s.lineTo(90, 50);
  s.cubicTo(100, 50, 104, 52, 110, 52);
  s.lineTo(g.foreEnd, 52);
  s.lineTo(g.foreEnd, 58);
  s.lineTo(122, 62);
  s.cubicTo(112, 64, 108, 74, 100, 76);  // the grip
  s.cubicTo(92, 66, 60, 70, 18, 78);
  s.closeSubpath();
  p.setBrush(stockAlong(g.stockLight, g.stockDark, 44, 78));
  p.setPen(QPen(QColor(0x2a180a), 1));
  p.drawPath(s);
  if (g.laminated) {  // the glued layers show along the stock
    p.setPen(QPen(QColor(0x2a2018), 0.6));
    for (double y = 56; y < 76; y += 3) p.drawLine(QPointF(24, y + 2), QPointF(96, y - 4));
  }
  p.setBrush(QColor(0x1a1a1a));
  p.setPen(Qt::NoPen);
  p.drawRect(QRectF(12, 43, 5, 36));  // butt pad
  if (!g.sling) return;
  QPainterPath strap;
  strap.moveTo(40, 72);
  strap.quadTo(120, 96, g.foreEnd - 10, 58);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x3a2a1a), 2.5));
  p.drawPath(strap);
}

void barrel(QPainter& p, const LongGun& g) {
  p.setBrush(bluedAlong(46, 56));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRoundedRect(QRectF(104, 46, 50, 9), 2, 2);
  p.drawRect(QRectF(150, 50 - g.barrel / 2, g.muzzle - 150, g.barrel));
  if (g.brake) p.drawRect(QRectF(g.muzzle - 2, 50 - g.barrel, 10, g.barrel * 2));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x1a1a1a), 2));
  p.drawArc(QRectF(112, 56, 16, 12), 180 * 16, 180 * 16);  // trigger guard
}

void bolt(QPainter& p) {
  p.setPen(QPen(QColor(0x2a2e36), 2.5, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(116, 50), QPointF(112, 60));
  p.setBrush(QColor(0x2a2e36));
  p.drawEllipse(QPointF(112, 61), 3, 3);
}

// The ribbed slide under the barrel, the magazine tube, the rib on top and the bead at the muzzle.
void pump(QPainter& p, const LongGun& g) {
  p.setBrush(bluedAlong(53, 58));
  p.setPen(QPen(QColor(0x0a0a0a), 0.6));
  p.drawRect(QRectF(150, 53, g.muzzle - 156, 4));
  p.setBrush(stockAlong(g.stockLight, g.stockDark, 52, 62));
  p.drawRoundedRect(QRectF(170, 52, 44, 10), 3, 3);
  p.setPen(QPen(QColor(0x2a180a), 1));
  for (double x = 174; x < 212; x += 4) p.drawLine(QPointF(x, 53), QPointF(x, 61));
  p.setPen(QPen(QColor(0x1a1a1a), 1));
  p.drawLine(QPointF(150, 46), QPointF(g.muzzle, 46));
  p.setBrush(QColor(0xe8e0c0));
  p.drawEllipse(QPointF(g.muzzle - 2, 45), 1.8, 1.8);
}

// The hammer on the lock plate, brass at the nose and the ramrod in its pipes.
void sideHammer(QPainter& p, const LongGun& g) {
  p.setBrush(QColor(0x8a8e96));
  p.setPen(QPen(QColor(0x1a1a1a), 0.8));
  p.drawRect(QRectF(108, 52, 22, 6));
  p.drawPolygon(QPolygonF({QPointF(110, 52), QPointF(104, 40), QPointF(100, 42), QPointF(106, 52)}));
  p.setPen(QPen(QColor(0xb08a3a), 2));
  p.drawLine(QPointF(g.foreEnd - 4, 53), QPointF(g.foreEnd - 4, 58));
  p.setPen(QPen(QColor(0xc8a468), 1.6));
  p.drawLine(QPointF(150, 60), QPointF(g.muzzle, 60));
}

// The lever's loop round the trigger, the hammer behind the receiver and the tube magazine.
void lever(QPainter& p, const LongGun& g) {
  p.setBrush(bluedAlong(52, 57));
  p.setPen(QPen(QColor(0x0a0a0a), 0.6));
  p.drawRect(QRectF(150, 53, g.muzzle - 154, 4));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x2a2e36), 2.2));
  p.drawRoundedRect(QRectF(110, 56, 34, 14), 6, 6);
  p.setBrush(QColor(0x2a2e36));
  p.drawPolygon(QPolygonF({QPointF(106, 47), QPointF(100, 38), QPointF(97, 40), QPointF(103, 49)}));
  p.drawRect(QRectF(g.muzzle - 6, 42, 2, 4));  // the front blade
}

// A tall ladder sight, the breech block's side hammer and the straight lever under the block;
// the barrel's flats catch the light along its length.
void fallingBlock(QPainter& p, const LongGun& g) {
  p.setPen(QPen(QColor(0x8a8e96), 0.8));
  p.drawLine(QPointF(150, 48.5), QPointF(g.muzzle, 48.5));
  p.drawLine(QPointF(150, 51.5), QPointF(g.muzzle, 51.5));
  p.setBrush(QColor(0x8a8e96));
  p.setPen(QPen(QColor(0x1a1a1a), 0.8));
  p.drawRect(QRectF(106, 44, 30, 14));
  p.drawPolygon(QPolygonF({QPointF(112, 46), QPointF(104, 34), QPointF(100, 36), QPointF(108, 48)}));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(160, 30, 5, 16));
  for (double y = 33; y < 46; y += 3) p.drawLine(QPointF(160, y), QPointF(165, y));
  p.setPen(QPen(QColor(0x2a2e36), 2.2, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(134, 58), QPointF(108, 68));
}

// Rings, the tube and the two bells; bigger magnums carry longer glass and a wider objective.
void scope(QPainter& p, const LongGun& g) {
  const double end = 120 + g.scopeLength, half = g.objective / 2;
  p.setBrush(bluedAlong(30, 42));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRect(QRectF(118, 33, g.scopeLength, 7));
  p.drawPolygon(QPolygonF({QPointF(108, 30), QPointF(120, 33), QPointF(120, 40), QPointF(108, 43)}));
  p.drawPolygon(QPolygonF({QPointF(end - 4, 33), QPointF(end + 12, 36.5 - half),
                           QPointF(end + 12, 36.5 + half), QPointF(end - 4, 40)}));
  p.drawRect(QRectF(118 + g.scopeLength * 0.45, 33 - g.objective * 0.4, 8, g.objective * 0.4));  // turret
  p.drawRect(QRectF(128, 40, 4, 6));                                                             // rings
  p.drawRect(QRectF(end - 12, 40, 4, 6));
}

void longGun(QPainter& p, const LongGun& g) {
  stock(p, g);
  barrel(p, g);
  if (g.action == Action::Bolt) bolt(p);
  if (g.action == Action::Pump) pump(p, g);
  if (g.action == Action::SideHammer) sideHammer(p, g);
  if (g.action == Action::Lever) lever(p, g);
  if (g.action == Action::FallingBlock) fallingBlock(p, g);
  if (g.scopeLength > 0) scope(p, g);
}

// The grip, the trigger guard and a long-eye-relief scope set forward on the barrel.
void pistolGripAndScope(QPainter& p) {
  QPainterPath grip;
  grip.moveTo(96, 54);
  grip.cubicTo(88, 66, 84, 80, 90, 88);
  grip.lineTo(108, 86);
  grip.cubicTo(104, 74, 108, 62, 112, 56);
  grip.closeSubpath();
  p.setBrush(stockAlong(0x9a6a3a, 0x4a2a14, 54, 88));
  p.drawPath(grip);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x1a1a1a), 2));
  p.drawArc(QRectF(108, 52, 14, 12), 180 * 16, 180 * 16);
  p.setBrush(bluedAlong(24, 34));  // the long-eye-relief scope, set forward on the barrel
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRect(QRectF(140, 27, 70, 6));
  p.drawRect(QRectF(150, 33, 4, 7));
  p.drawRect(QRectF(196, 33, 4, 7));
}

void revolver(QPainter& p) {
  p.setBrush(bluedAlong(36, 52));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRect(QRectF(110, 40, 120, 10));             // barrel
  p.drawRoundedRect(QRectF(92, 36, 34, 20), 4, 4);  // frame and cylinder
  pistolGripAndScope(p);
  for (double x = 98; x < 124; x += 6) p.drawLine(QPointF(x, 38), QPointF(x, 54));  // the cylinder's flutes
}

// A single-shot bolt pistol: a rifle's receiver and bolt over a pistol grip, in a plastic stock.
void boltPistol(QPainter& p) {
  p.setBrush(stockAlong(0x4a4c50, 0x1a1c20, 48, 60));
  p.setPen(QPen(QColor(0x0a0a0a), 0.8));
  p.drawRoundedRect(QRectF(70, 48, 140, 10), 4, 4);
  p.setBrush(bluedAlong(40, 52));
  p.drawRect(QRectF(76, 41, 60, 9));
  p.drawRect(QRectF(136, 43, 110, 6));
  pistolGripAndScope(p);
  p.setPen(QPen(QColor(0x2a2e36), 2.5, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(82, 46), QPointF(76, 56));
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

QImage weaponPicture(int n, QSize size, bool permit) {
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
    permit ? boltPistol(p) : revolver(p);
  } else {
    longGun(p, (permit ? kPermitLongGuns : kLongGuns)[n - 1]);
  }
  return image;
}

}  // namespace worldgen
