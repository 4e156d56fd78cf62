// SPDX-License-Identifier: GPL-2.0-or-later
// Each kind of catalogue item as a small still life of a few shapes.
#include "tools/worldgen/item_pictures.h"

#include <QPainterPath>

namespace worldgen {

namespace {

// The colour an item's name asks for, else its kind's own.
QColor colourFor(const QString& name, QColor fallback) {
  if (name.contains(QStringLiteral("Blaze")) || name.contains(QStringLiteral("Orange")))
    return QColor(0xf06a10);
  if (name.contains(QStringLiteral("White"))) return QColor(0xeef0f4);
  if (name.contains(QStringLiteral("Camouflage")) || name.contains(QStringLiteral("Leafy")))
    return QColor(0x6a6a3a);
  if (name.contains(QStringLiteral("Wool")) || name.contains(QStringLiteral("Mackinaw")))
    return QColor(0xa82a22);
  return fallback;
}

void outlined(QPainter& p, QColor fill) {
  p.setBrush(fill);
  p.setPen(QPen(fill.darker(170), 1.5));
}

// Blotches over a filled shape, for camouflage and plaid alike.
void pattern(QPainter& p, const QPainterPath& shape, const QString& name) {
  p.save();
  p.setClipPath(shape);
  p.setPen(Qt::NoPen);
  const QRectF r = shape.boundingRect();
  if (name.contains(QStringLiteral("Camouflage")) || name.contains(QStringLiteral("Leafy"))) {
    const QColor spots[] = {QColor(0x3a4a22), QColor(0x8a7a4a), QColor(0x2a2a1a)};
    for (int i = 0; i < 24; ++i) {
      p.setBrush(name.contains(QStringLiteral("White")) ? QColor(0xb8c0c8) : spots[i % 3]);
      p.drawEllipse(QPointF(r.left() + r.width() * ((i * 37) % 100) / 100.0,
                            r.top() + r.height() * ((i * 61) % 100) / 100.0),
                    r.width() * 0.08, r.height() * 0.05);
    }
  } else if (name.contains(QStringLiteral("Wool")) || name.contains(QStringLiteral("Mackinaw"))) {
    p.setBrush(QColor(0, 0, 0, 90));
    for (double x = r.left(); x < r.right(); x += r.width() / 5)
      p.drawRect(QRectF(x, r.top(), r.width() / 10, r.height()));
    for (double y = r.top(); y < r.bottom(); y += r.height() / 5)
      p.drawRect(QRectF(r.left(), y, r.width(), r.height() / 10));
  }
  p.restore();
}

void fillShape(QPainter& p, const QPainterPath& shape, QColor colour, const QString& name) {
  outlined(p, colour);
  p.drawPath(shape);
  pattern(p, shape, name);
}

QPointF at(const QRectF& r, double x, double y) {
  return {r.left() + r.width() * x, r.top() + r.height() * y};
}

void binoculars(QPainter& p, const QRectF& r, const QString& name) {
  outlined(p, QColor(0x2a2c30));
  const bool laser = name.contains(QStringLiteral("Laser"));
  if (laser) {
    p.drawRoundedRect(QRectF(at(r, 0.15, 0.25), at(r, 0.85, 0.75)), 8, 8);
    p.setBrush(QColor(0x6a90c0));
    p.drawEllipse(at(r, 0.3, 0.5), r.height() * 0.14, r.height() * 0.14);
    p.setBrush(QColor(0xc02020));
    p.drawEllipse(at(r, 0.72, 0.35), 3, 3);
    return;
  }
  for (const double x : {0.3, 0.7}) {
    p.drawRoundedRect(QRectF(at(r, x - 0.16, 0.2), at(r, x + 0.16, 0.85)), 6, 6);
    p.setBrush(QColor(0x6a90c0));
    p.drawEllipse(at(r, x, 0.78), r.width() * 0.1, r.height() * 0.07);
    p.setBrush(QColor(0x2a2c30));
  }
  p.drawRect(QRectF(at(r, 0.44, 0.35), at(r, 0.56, 0.55)));
}

void hat(QPainter& p, const QRectF& r, const QString& name) {
  QPainterPath crown;
  crown.moveTo(at(r, 0.2, 0.75));
  crown.cubicTo(at(r, 0.2, 0.1), at(r, 0.8, 0.1), at(r, 0.8, 0.75));
  crown.closeSubpath();
  const QColor colour =
      colourFor(name, name.contains(QStringLiteral("Trapper")) ? QColor(0x6a4a2a) : QColor(0x3a4a6a));
  fillShape(p, crown, colour, name);
  outlined(p, name.contains(QStringLiteral("Trapper")) ? QColor(0xd8c8a8) : colour.darker(120));
  if (name.contains(QStringLiteral("Ball")))
    p.drawRoundedRect(QRectF(at(r, 0.5, 0.68), at(r, 0.95, 0.8)), 4, 4);
  else
    p.drawRoundedRect(QRectF(at(r, 0.15, 0.66), at(r, 0.85, 0.82)), 5, 5);
}

void garment(QPainter& p, const QRectF& r, const QString& name, int kind) {
  QPainterPath shape;
  if (kind == 3) {  // trousers
    shape.addPolygon(QPolygonF({at(r, 0.3, 0.1), at(r, 0.7, 0.1), at(r, 0.75, 0.95), at(r, 0.55, 0.95),
                                at(r, 0.5, 0.4), at(r, 0.45, 0.95), at(r, 0.25, 0.95)}));
  } else {  // coats, vests and coveralls: a body with sleeves (none for a vest)
    const bool vest = name.contains(QStringLiteral("Vest"));
    const double hem = kind == 5 ? 0.98 : 0.9;
    shape.addPolygon(
        QPolygonF({at(r, 0.38, 0.08), at(r, 0.62, 0.08), at(r, vest ? 0.7 : 0.9, vest ? 0.15 : 0.3),
                   at(r, vest ? 0.72 : 0.95, vest ? 0.2 : 0.7), at(r, vest ? 0.72 : 0.82, 0.72),
                   at(r, 0.72, hem), at(r, 0.28, hem), at(r, vest ? 0.28 : 0.18, 0.72),
                   at(r, vest ? 0.28 : 0.05, vest ? 0.2 : 0.7), at(r, vest ? 0.3 : 0.1, vest ? 0.15 : 0.3)}));
  }
  shape.closeSubpath();
  fillShape(p, shape, colourFor(name, QColor(0x5a4a2a)), name);
  p.setPen(QPen(QColor(0, 0, 0, 90), 1.5));
  if (kind != 3) p.drawLine(at(r, 0.5, 0.12), at(r, 0.5, kind == 5 ? 0.55 : 0.9));
}

void boot(QPainter& p, const QRectF& r, const QString& name) {
  QPainterPath shape;
  shape.addPolygon(QPolygonF({at(r, 0.3, 0.05), at(r, 0.58, 0.05), at(r, 0.6, 0.6), at(r, 0.92, 0.72),
                              at(r, 0.92, 0.92), at(r, 0.25, 0.92)}));
  shape.closeSubpath();
  fillShape(p, shape, name.contains(QStringLiteral("Rubber")) ? QColor(0x2a3a22) : QColor(0x7a4a22), name);
  p.setBrush(QColor(0x2a2018));
  p.drawRect(QRectF(at(r, 0.24, 0.86), at(r, 0.93, 0.95)));
}

void call(QPainter& p, const QRectF& r, const QString& name) {
  if (name.contains(QStringLiteral("Antlers"))) {
    p.setPen(QPen(QColor(0xe6d6b0), 6, Qt::SolidLine, Qt::RoundCap));
    for (const double side : {-1.0, 1.0}) {
      p.drawLine(at(r, 0.5 + side * 0.05, 0.9), at(r, 0.5 + side * 0.35, 0.15));
      p.drawLine(at(r, 0.5 + side * 0.2, 0.55), at(r, 0.5 + side * 0.1, 0.3));
    }
    return;
  }
  outlined(p, name.contains(QStringLiteral("Birch")) ? QColor(0xe8e0d0) : QColor(0x6a4222));
  if (name.contains(QStringLiteral("Box"))) {
    p.drawRect(QRectF(at(r, 0.15, 0.35), at(r, 0.85, 0.7)));
    p.drawRect(QRectF(at(r, 0.1, 0.28), at(r, 0.9, 0.36)));
    return;
  }
  QPainterPath horn;  // a tube widening to a bell
  horn.moveTo(at(r, 0.1, 0.45));
  horn.lineTo(at(r, 0.6, 0.45));
  horn.lineTo(at(r, 0.9, 0.25));
  horn.lineTo(at(r, 0.9, 0.85));
  horn.lineTo(at(r, 0.6, 0.62));
  horn.lineTo(at(r, 0.1, 0.62));
  horn.closeSubpath();
  p.drawPath(horn);
}

void decoy(QPainter& p, const QRectF& r, const QString& name) {
  outlined(p, name.contains(QStringLiteral("Flagging")) ? QColor(0xf4f0e6) : QColor(0x8a6a42));
  if (name.contains(QStringLiteral("Flagging"))) {
    p.drawPolygon(QPolygonF({at(r, 0.3, 0.2), at(r, 0.85, 0.35), at(r, 0.3, 0.5)}));
    p.setPen(QPen(QColor(0x5a3a1e), 3));
    p.drawLine(at(r, 0.3, 0.15), at(r, 0.3, 0.95));
    return;
  }
  p.drawEllipse(QRectF(at(r, 0.2, 0.35), at(r, 0.8, 0.7)));
  p.drawEllipse(QRectF(at(r, 0.7, 0.15), at(r, 0.9, 0.4)));
  p.drawLine(at(r, 0.35, 0.7), at(r, 0.35, 0.95));
  p.drawLine(at(r, 0.65, 0.7), at(r, 0.65, 0.95));
}

void bottle(QPainter& p, const QRectF& r, const QString& name) {
  outlined(p, name.contains(QStringLiteral("Pine")) ? QColor(0x3a6a3a) : QColor(0x8a5a2a));
  p.drawRoundedRect(QRectF(at(r, 0.32, 0.3), at(r, 0.68, 0.95)), 6, 6);
  p.setBrush(QColor(0x202020));
  p.drawRect(QRectF(at(r, 0.42, 0.12), at(r, 0.58, 0.3)));
  p.setBrush(QColor(0xf4ead0));
  p.drawRect(QRectF(at(r, 0.36, 0.5), at(r, 0.64, 0.75)));
}

void knife(QPainter& p, const QRectF& r, const QString& name) {
  outlined(p, QColor(0xc8ccd4));
  p.drawPolygon(QPolygonF({at(r, 0.45, 0.35), at(r, 0.95, 0.35), at(r, 0.82, 0.55), at(r, 0.45, 0.55)}));
  outlined(p, QColor(0x6a4222));
  p.drawRoundedRect(QRectF(at(r, 0.08, 0.35), at(r, 0.45, 0.57)), 5, 5);
  if (!name.contains(QStringLiteral("Saw"))) return;
  p.setPen(QPen(QColor(0x5a5a60), 1));
  for (double x = 0.5; x < 0.9; x += 0.04) p.drawLine(at(r, x, 0.55), at(r, x + 0.02, 0.6));
}

void tent(QPainter& p, const QRectF& r, const QString& name) {
  const bool dome = name.contains(QStringLiteral("Dome")) || name.contains(QStringLiteral("Bivy"));
  outlined(p, name.contains(QStringLiteral("Canvas")) ? QColor(0xd8c8a0) : QColor(0x4a6a3a));
  if (dome) {
    p.drawChord(QRectF(at(r, 0.1, 0.25), at(r, 0.9, 1.6)), 0, 180 * 16);
  } else {
    p.drawPolygon(QPolygonF(
        {at(r, 0.1, 0.95), at(r, 0.15, 0.45), at(r, 0.5, 0.1), at(r, 0.85, 0.45), at(r, 0.9, 0.95)}));
    p.setBrush(QColor(0x5a5a5a));
    p.drawRect(QRectF(at(r, 0.7, 0.02), at(r, 0.75, 0.3)));  // the stove's pipe
  }
  p.setBrush(QColor(0x2a2018));
  p.drawPolygon(QPolygonF({at(r, 0.42, 0.95), at(r, 0.5, 0.55), at(r, 0.58, 0.95)}));
}

void sleepingBag(QPainter& p, const QRectF& r, const QString& name) {
  outlined(p, name.contains(QStringLiteral("Expedition")) ? QColor(0xb02a20) : QColor(0x3a5a8a));
  p.drawRoundedRect(QRectF(at(r, 0.1, 0.3), at(r, 0.9, 0.75)), 20, 20);
  p.setPen(QPen(QColor(0, 0, 0, 70), 1.5));
  for (double x = 0.25; x < 0.9; x += 0.13) p.drawLine(at(r, x, 0.32), at(r, x, 0.73));
}

void pack(QPainter& p, const QRectF& r, const QString& name) {
  if (name.contains(QStringLiteral("Cart"))) {
    outlined(p, QColor(0x505458));
    p.drawRect(QRectF(at(r, 0.15, 0.35), at(r, 0.85, 0.6)));
    p.setBrush(QColor(0x202020));
    p.drawEllipse(at(r, 0.5, 0.72), r.height() * 0.18, r.height() * 0.18);
    return;
  }
  outlined(p, QColor(0x6a6a42));
  p.drawRoundedRect(QRectF(at(r, 0.25, 0.12), at(r, 0.75, 0.92)), 10, 10);
  p.drawRoundedRect(QRectF(at(r, 0.32, 0.55), at(r, 0.68, 0.85)), 6, 6);
  if (name.contains(QStringLiteral("Frame"))) {
    p.setPen(QPen(QColor(0x909498), 3));
    p.drawLine(at(r, 0.22, 0.05), at(r, 0.22, 0.98));
    p.drawLine(at(r, 0.78, 0.05), at(r, 0.78, 0.98));
  }
}

void safety(QPainter& p, const QRectF& r, const QString& name) {
  if (name.contains(QStringLiteral("First Aid"))) {
    outlined(p, QColor(0xb02a20));
    p.drawRoundedRect(QRectF(at(r, 0.2, 0.25), at(r, 0.8, 0.85)), 6, 6);
    p.setBrush(Qt::white);
    p.setPen(Qt::NoPen);
    p.drawRect(QRectF(at(r, 0.45, 0.35), at(r, 0.55, 0.75)));
    p.drawRect(QRectF(at(r, 0.35, 0.5), at(r, 0.65, 0.6)));
    return;
  }
  if (name.contains(QStringLiteral("Compass"))) {
    outlined(p, QColor(0xc9a04a));
    p.drawEllipse(at(r, 0.5, 0.55), r.height() * 0.35, r.height() * 0.35);
    outlined(p, QColor(0xc02020));
    p.drawPolygon(QPolygonF({at(r, 0.5, 0.25), at(r, 0.54, 0.55), at(r, 0.46, 0.55)}));
    return;
  }
  // Radios, GPS, lamps, sprays and the rest: a handheld device with a lit face.
  outlined(p, name.contains(QStringLiteral("Bear")) ? QColor(0xd02a20) : QColor(0x3a3c40));
  p.drawRoundedRect(QRectF(at(r, 0.35, 0.12), at(r, 0.65, 0.95)), 8, 8);
  p.setBrush(name.contains(QStringLiteral("Headlamp")) ? QColor(0xfff0a0) : QColor(0x9ac0a0));
  p.drawRoundedRect(QRectF(at(r, 0.4, 0.22), at(r, 0.6, 0.45)), 3, 3);
}

}  // namespace

void drawItem(QPainter& p, const QRectF& r, int kind, const QString& name) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  switch (kind) {
    case 7: binoculars(p, r, name); break;
    case 1: hat(p, r, name); break;
    case 2:
    case 3:
    case 4:
    case 5: garment(p, r, name, kind); break;
    case 6: boot(p, r, name); break;
    case 8: call(p, r, name); break;
    case 9: decoy(p, r, name); break;
    case 10:
    case 11: bottle(p, r, name); break;
    case 12: knife(p, r, name); break;
    case 13: tent(p, r, name); break;
    case 14: sleepingBag(p, r, name); break;
    case 15: pack(p, r, name); break;
    default: safety(p, r, name); break;
  }
  p.restore();
}

}  // namespace worldgen
