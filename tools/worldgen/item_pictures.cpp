// SPDX-License-Identifier: GPL-2.0-or-later
// Each kind of catalogue item as a small still life of a few shapes.
#include "tools/worldgen/item_pictures.h"

#include "tools/worldgen/item_kit_pictures.h"

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
  outlined(p, colour, shape.boundingRect());
  p.drawPath(shape);
  pattern(p, shape, name);
}

bool has(const QString& name, const char* word) {
  return name.contains(QLatin1String(word));
}

void hat(QPainter& p, const QRectF& r, const QString& name) {
  QPainterPath crown;
  crown.moveTo(at(r, 0.2, 0.75));
  crown.cubicTo(at(r, 0.2, 0.1), at(r, 0.8, 0.1), at(r, 0.8, 0.75));
  crown.closeSubpath();
  const QColor colour = colourFor(name, has(name, "Trapper") ? QColor(0x6a4a2a) : QColor(0x3a4a6a));
  fillShape(p, crown, colour, name);
  outlined(p, has(name, "Trapper") ? QColor(0xd8c8a8) : colour.darker(120), r);
  if (has(name, "Ball"))
    p.drawRoundedRect(QRectF(at(r, 0.5, 0.68), at(r, 0.95, 0.8)), r.width() * 0.03, r.width() * 0.03);
  else
    p.drawRoundedRect(QRectF(at(r, 0.15, 0.66), at(r, 0.85, 0.82)), r.width() * 0.04, r.width() * 0.04);
  if (has(name, "Trapper"))  // the fur-lined ear flaps
    for (const double x : {0.14, 0.72}) p.drawRoundedRect(QRectF(at(r, x, 0.7), at(r, x + 0.14, 0.98)), 3, 3);
}

// What sets one coat or pair of trousers apart from its neighbours on the rail.
struct Garment {
  const char* word;
  QRgb colour;
  double hem;
  bool hood, quilted, collar, bib;
};

constexpr Garment kGarments[] = {
    {"Quilted", 0x4a5a3a, 0.84, false, true, false, false},
    {"Waxed", 0x6a5a32, 0.94, false, false, true, false},
    {"Insulated Parka", 0x2a3a5a, 1.0, true, false, false, false},
    {"Parka Cover", 0xf06a10, 0.8, true, false, false, false},
    {"Canvas", 0xb09a6a, 0.9, false, false, false, false},
    {"Bibs", 0x3a4a3a, 0.9, false, false, false, true},
    {"Coveralls", 0x7a5a2a, 0.9, true, false, false, false},
};

Garment garmentFor(const QString& name) {
  for (const Garment& g : kGarments)
    if (has(name, g.word)) return g;
  return {"", 0x5a4a2a, 0.9, false, false, false, false};
}

QPolygonF coatOutline(const QRectF& r, bool vest, double hem) {
  return QPolygonF({at(r, 0.38, 0.08), at(r, 0.62, 0.08), at(r, vest ? 0.7 : 0.9, vest ? 0.15 : 0.3),
                    at(r, vest ? 0.72 : 0.95, vest ? 0.2 : 0.7), at(r, vest ? 0.72 : 0.82, 0.72),
                    at(r, 0.72, hem), at(r, 0.28, hem), at(r, vest ? 0.28 : 0.18, 0.72),
                    at(r, vest ? 0.28 : 0.05, vest ? 0.2 : 0.7), at(r, vest ? 0.3 : 0.1, vest ? 0.15 : 0.3)});
}

QPolygonF legsOutline(const QRectF& r, double top) {
  return QPolygonF({at(r, 0.3, top), at(r, 0.7, top), at(r, 0.75, 0.98), at(r, 0.55, 0.98), at(r, 0.5, 0.6),
                    at(r, 0.45, 0.98), at(r, 0.25, 0.98)});
}

// Quilting, a corduroy collar or a hood, drawn over the garment's cloth.
void garmentDetails(QPainter& p, const QRectF& r, const Garment& g) {
  p.setPen(QPen(QColor(0, 0, 0, 90), r.width() / 70));
  if (g.quilted)
    for (double y = 0.2; y < 0.9; y += 0.12) p.drawLine(at(r, 0.2, y), at(r, 0.8, y + 0.06));
  p.setBrush(QColor(g.colour).darker(160));
  if (g.collar) p.drawPolygon(QPolygonF({at(r, 0.34, 0.06), at(r, 0.66, 0.06), at(r, 0.5, 0.26)}));
  p.setBrush(QColor(g.colour).darker(115));
  if (g.hood) p.drawChord(QRectF(at(r, 0.34, -0.04), at(r, 0.66, 0.2)), 0, 180 * 16);
}

void garment(QPainter& p, const QRectF& r, const QString& name, int kind) {
  const Garment g = garmentFor(name);
  QPainterPath shape;
  if (kind == 3) {
    shape.addPolygon(legsOutline(r, g.bib ? 0.3 : 0.1));
    if (g.bib) shape.addRect(QRectF(at(r, 0.36, 0.08), at(r, 0.64, 0.32)));
  } else {
    shape.addPolygon(coatOutline(r, has(name, "Vest"), kind == 5 ? 0.66 : g.hem));
    if (kind == 5) shape.addPolygon(legsOutline(r, 0.6));  // a suit: the coat runs into its legs
  }
  shape.closeSubpath();
  fillShape(p, shape.simplified(), colourFor(name, QColor(g.colour)), name);
  garmentDetails(p, r, g);
  p.setPen(QPen(QColor(0, 0, 0, 90), r.width() / 70));
  if (kind != 3) p.drawLine(at(r, 0.5, 0.12), at(r, 0.5, kind == 5 ? 0.6 : 0.9));
  if (g.bib)
    for (const double x : {0.38, 0.62}) p.drawLine(at(r, x, 0.08), at(r, x + (x - 0.5) * 0.6, 0.0));
}

// Knee boots of green rubber, laced leather uplands, and pacs with a rubber foot and a felt cuff.
struct Boot {
  const char* word;
  QRgb upper, foot;
  double top;
  bool laces, cuff;
};

constexpr Boot kBoots[] = {
    {"Rubber", 0x2a3a22, 0x2a3a22, 0.02, false, false},
    {"Leather", 0x8a5a2a, 0x5a3a1a, 0.35, true, false},
    {"Pac", 0x7a4a22, 0x1e1e1e, 0.15, true, true},
};

void boot(QPainter& p, const QRectF& r, const QString& name) {
  Boot b = kBoots[1];
  for (const Boot& candidate : kBoots)
    if (has(name, candidate.word)) b = candidate;
  QPainterPath shape;
  shape.addPolygon(QPolygonF({at(r, 0.3, b.top), at(r, 0.58, b.top), at(r, 0.6, 0.6), at(r, 0.92, 0.72),
                              at(r, 0.92, 0.92), at(r, 0.25, 0.92)}));
  shape.closeSubpath();
  fillShape(p, shape, QColor(b.upper), name);
  outlined(p, QColor(b.foot), r);
  p.drawPolygon(QPolygonF(
      {at(r, 0.25, 0.65), at(r, 0.6, 0.65), at(r, 0.92, 0.74), at(r, 0.92, 0.95), at(r, 0.24, 0.95)}));
  p.setPen(QPen(QColor(0xe8d8b0), r.width() / 50));
  if (b.laces)
    for (double y = b.top + 0.06; y < 0.6; y += 0.08) p.drawLine(at(r, 0.5, y), at(r, 0.6, y + 0.03));
  outlined(p, QColor(0xe8e0d0), r);
  if (b.cuff) p.drawRect(QRectF(at(r, 0.28, b.top - 0.1), at(r, 0.6, b.top + 0.02)));
}

// The skinning knife's fixed drop-point blade, the folder's black scales and bolsters, the saw.
void knife(QPainter& p, const QRectF& r, const QString& name) {
  const bool folder = has(name, "Folding");
  const double tip = folder ? 0.8 : 0.95;
  outlined(p, QColor(0xc8ccd4), r);
  QPainterPath blade;
  blade.moveTo(at(r, 0.45, 0.35));
  blade.lineTo(at(r, tip - 0.15, 0.35));
  blade.quadTo(at(r, tip, 0.38), at(r, tip, 0.45));
  blade.quadTo(at(r, tip - 0.1, 0.58), at(r, 0.45, 0.55));
  p.drawPath(blade);
  outlined(p, folder ? QColor(0x1e1e1e) : QColor(0x6a4222), r);
  p.drawRoundedRect(QRectF(at(r, 0.08, 0.35), at(r, 0.45, 0.57)), r.width() * 0.04, r.width() * 0.04);
  outlined(p, QColor(0xb8bcc4), r);
  if (folder)
    for (const double x : {0.08, 0.4}) p.drawRect(QRectF(at(r, x, 0.35), at(r, x + 0.06, 0.57)));
  if (!has(name, "Saw")) return;
  p.setBrush(Qt::NoBrush);  // the saw's steel bow over its blade
  p.setPen(QPen(QColor(0x8a8e96), r.width() / 25));
  p.drawPolyline(QPolygonF({at(r, 0.45, 0.38), at(r, 0.45, 0.12), at(r, 0.9, 0.12), at(r, 0.9, 0.42)}));
  p.setPen(QPen(QColor(0x5a5a60), r.width() / 100));
  for (double x = 0.5; x < 0.9; x += 0.04) p.drawLine(at(r, x, 0.55), at(r, x + 0.02, 0.6));
}

void tent(QPainter& p, const QRectF& r, const QString& name) {
  outlined(p, has(name, "Canvas") ? QColor(0xd8c8a0) : QColor(has(name, "Bivy") ? 0x8a7a3a : 0x4a6a3a), r);
  if (has(name, "Bivy")) {  // a low tunnel for one, hooped at the head
    p.drawChord(QRectF(at(r, 0.05, 0.6), at(r, 0.55, 1.3)), 0, 180 * 16);
    p.drawPolygon(QPolygonF({at(r, 0.3, 0.6), at(r, 0.95, 0.85), at(r, 0.95, 0.95), at(r, 0.3, 0.95)}));
    return;
  }
  if (has(name, "Dome")) {
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

// A summer bag is an open rectangle; the warmer ones are mummies, the expedition bag the fattest.
void sleepingBag(QPainter& p, const QRectF& r, const QString& name) {
  const bool summer = has(name, "Summer");
  const double half = has(name, "Expedition") ? 0.26 : 0.18;
  outlined(p, QColor(summer ? 0x4a8a5a : has(name, "Expedition") ? 0xb02a20 : 0x3a5a8a), r);
  if (summer) {
    p.drawRect(QRectF(at(r, 0.1, 0.32), at(r, 0.9, 0.72)));
    p.setBrush(QColor(0xe0c890));  // the flannel lining under the turned-back corner
    p.drawPolygon(QPolygonF({at(r, 0.6, 0.32), at(r, 0.9, 0.32), at(r, 0.9, 0.72)}));
    return;
  }
  p.drawPolygon(
      QPolygonF({at(r, 0.05, 0.52 - half * 0.5), at(r, 0.3, 0.52 - half), at(r, 0.95, 0.52 - half * 0.7),
                 at(r, 0.95, 0.52 + half * 0.7), at(r, 0.3, 0.52 + half), at(r, 0.05, 0.52 + half * 0.5)}));
  p.setBrush(QColor(0x2a2018));
  p.drawEllipse(at(r, 0.85, 0.52), r.width() * 0.05, r.height() * half * 0.4);  // the hood's face opening
  p.setPen(QPen(QColor(0, 0, 0, 70), r.width() / 70));
  for (double x = 0.25; x < 0.8; x += 0.1)
    p.drawLine(at(r, x, 0.52 - half * 0.9), at(r, x, 0.52 + half * 0.9));
}

void pack(QPainter& p, const QRectF& r, const QString& name) {
  if (has(name, "Cart")) {
    outlined(p, QColor(0x505458), r);
    p.drawRect(QRectF(at(r, 0.15, 0.35), at(r, 0.85, 0.6)));
    p.setBrush(QColor(0x202020));
    p.drawEllipse(at(r, 0.5, 0.72), r.height() * 0.18, r.height() * 0.18);
    return;
  }
  const bool frame = has(name, "Frame");
  const double top = frame ? 0.12 : 0.35;
  outlined(p, frame ? QColor(0x6a6a42) : QColor(0x3a5a7a), r);
  p.drawRoundedRect(QRectF(at(r, 0.28, top), at(r, 0.72, 0.92)), r.width() * 0.08, r.width() * 0.08);
  p.drawRoundedRect(QRectF(at(r, 0.34, 0.62), at(r, 0.66, 0.86)), r.width() * 0.05, r.width() * 0.05);
  if (!frame) return;
  p.setPen(QPen(QColor(0x909498), r.width() / 30));
  p.drawLine(at(r, 0.22, 0.05), at(r, 0.22, 0.98));
  p.drawLine(at(r, 0.78, 0.05), at(r, 0.78, 0.98));
}

}  // namespace

void drawItem(QPainter& p, const QRectF& r, int kind, const QString& name) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  switch (kind) {
    case 7: drawGlass(p, r, name); break;
    case 1: hat(p, r, name); break;
    case 2:
    case 3:
    case 4:
    case 5: garment(p, r, name, kind); break;
    case 6: boot(p, r, name); break;
    case 8: drawCall(p, r, name); break;
    case 9: drawDecoy(p, r, name); break;
    case 10:
    case 11: drawScent(p, r, name); break;
    case 12: knife(p, r, name); break;
    case 13: tent(p, r, name); break;
    case 14: sleepingBag(p, r, name); break;
    case 15: pack(p, r, name); break;
    default: drawSafetyKit(p, r, name); break;
  }
  p.restore();
}

}  // namespace worldgen
