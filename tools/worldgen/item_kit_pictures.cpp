// SPDX-License-Identifier: GPL-2.0-or-later
// The small kit as still lifes; where two items differ only in measure (glasses, scent
// bottles, call tubes) the difference is a row of numbers, so each reads as its own size.
#include "tools/worldgen/item_kit_pictures.h"

#include <QPainterPath>

namespace worldgen {

void outlined(QPainter& p, QColor fill, const QRectF& r) {
  p.setBrush(fill);
  p.setPen(QPen(fill.darker(170), std::max(1.0, r.width() / 80)));
}

namespace {

bool has(const QString& name, const char* word) {
  return name.contains(QLatin1String(word));
}

// Glasses grow with their power; the better ones wear armour or gold and the rangefinder a window.
struct Glass {
  const char* word;
  double width, height;
  QRgb body, ring;
  bool openBridge, rangeWindow;
};

constexpr Glass kGlasses[] = {
    {"Pocket", 0.5, 0.42, 0x55585e, 0x6a90c0, false, false},
    {"Field", 0.7, 0.6, 0x2a2c30, 0x6a90c0, false, false},
    {"Hunter", 0.8, 0.72, 0x4a5a32, 0x5a80b0, false, false},
    {"Premium", 0.96, 0.88, 0x1a1c20, 0xc9a04a, true, false},
    {"Rangefinding", 0.9, 0.74, 0x6a5a3a, 0x6a90c0, false, true},
};

const Glass& glassFor(const QString& name) {
  for (const Glass& g : kGlasses)
    if (has(name, g.word)) return g;
  return kGlasses[1];
}

void laserRangefinder(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0x2a2c30), r);
  p.drawRoundedRect(QRectF(at(r, 0.15, 0.3), at(r, 0.85, 0.75)), r.width() * 0.06, r.width() * 0.06);
  p.setBrush(QColor(0x6a90c0));
  p.drawEllipse(at(r, 0.3, 0.52), r.height() * 0.14, r.height() * 0.14);
  p.setBrush(QColor(0xc02020));
  p.drawEllipse(at(r, 0.72, 0.4), r.width() * 0.04, r.width() * 0.04);
}

}  // namespace

void drawGlass(QPainter& p, const QRectF& r, const QString& name) {
  if (has(name, "Laser")) return laserRangefinder(p, r);
  const Glass& g = glassFor(name);
  const QRectF box(at(r, 0.5 - g.width / 2, 0.95 - g.height),
                   QSizeF(r.width() * g.width, r.height() * g.height));
  const double tube = box.width() * 0.4;
  outlined(p, QColor(g.body), r);
  // An open bridge holds the barrels at both ends and leaves a gap for the hand.
  for (const double bridgeY : {g.openBridge ? 0.2 : 0.3, g.openBridge ? 0.62 : 0.3})
    p.drawRect(QRectF(box.left() + tube * 0.9, box.top() + box.height() * bridgeY, box.width() - tube * 1.8,
                      box.height() * 0.16));
  for (const double left : {box.left(), box.right() - tube}) {
    p.setBrush(QColor(g.body));
    p.drawRoundedRect(QRectF(left, box.top(), tube, box.height()), tube * 0.25, tube * 0.25);
    p.setBrush(QColor(g.ring));
    p.drawEllipse(QRectF(left + tube * 0.12, box.bottom() - tube * 0.35, tube * 0.76, tube * 0.28));
  }
  if (!g.rangeWindow) return;
  p.setBrush(QColor(0xd02020));
  p.drawEllipse(QPointF(box.center().x(), box.top() + box.height() * 0.38), tube * 0.22, tube * 0.22);
  p.drawRect(QRectF(box.right() - tube * 0.7, box.top() - tube * 0.25, tube * 0.4, tube * 0.25));
}

namespace {

// A call blown through a tube into a bell: the grunt tube's hose is ribbed, the bugle long
// and thin, the distress call short on a lanyard, the birch-bark horn one long cone.
struct Horn {
  const char* word;
  QRgb body;
  double mouth, bellStart, tube, bell;
  bool ribbed, lanyard;
};

constexpr Horn kHorns[] = {
    {"Grunt", 0x2a2a2a, 0.05, 0.6, 0.14, 0.3, true, false},
    {"Bugle", 0xc8a060, 0.02, 0.7, 0.07, 0.44, false, false},
    {"Distress", 0x1a1a1a, 0.3, 0.62, 0.18, 0.18, false, true},
    {"Birch", 0xe8e0d0, 0.08, 0.12, 0.08, 0.7, false, false},
};

void antlers(QPainter& p, const QRectF& r) {
  p.setPen(QPen(QColor(0xe6d6b0), r.width() * 0.06, Qt::SolidLine, Qt::RoundCap));
  for (const double side : {-1.0, 1.0}) {
    p.drawLine(at(r, 0.5 + side * 0.05, 0.9), at(r, 0.5 + side * 0.35, 0.15));
    p.drawLine(at(r, 0.5 + side * 0.2, 0.55), at(r, 0.5 + side * 0.1, 0.3));
  }
}

void boxCall(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0x6a4222), r);
  p.drawRect(QRectF(at(r, 0.15, 0.35), at(r, 0.85, 0.7)));
  p.drawRect(QRectF(at(r, 0.1, 0.28), at(r, 0.9, 0.36)));
}

void horn(QPainter& p, const QRectF& r, const Horn& h) {
  const double y = 0.55;
  QPainterPath shape;
  shape.moveTo(at(r, h.mouth, y - h.tube / 2));
  shape.lineTo(at(r, h.bellStart, y - h.tube / 2));
  shape.lineTo(at(r, 0.92, y - h.bell / 2));
  shape.lineTo(at(r, 0.92, y + h.bell / 2));
  shape.lineTo(at(r, h.bellStart, y + h.tube / 2));
  shape.lineTo(at(r, h.mouth, y + h.tube / 2));
  shape.closeSubpath();
  outlined(p, QColor(h.body), r);
  p.drawPath(shape);
  p.setPen(QPen(QColor(h.body).lighter(h.ribbed ? 250 : 60), r.width() / 60));
  if (h.ribbed)
    for (double x = h.mouth + 0.15; x < h.bellStart; x += 0.05)
      p.drawLine(at(r, x, y - h.tube / 2), at(r, x, y + h.tube / 2));
  if (QColor(h.body).lightness() > 200)  // the bark's dark flecks
    for (double x = 0.25; x < 0.9; x += 0.12) p.drawLine(at(r, x, y - 0.02), at(r, x + 0.05, y - 0.02));
  if (!h.lanyard) return;
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0xd02a20), r.width() / 40));
  p.drawEllipse(QRectF(at(r, 0.05, 0.1), at(r, 0.45, 0.6)));
}

}  // namespace

void drawCall(QPainter& p, const QRectF& r, const QString& name) {
  if (has(name, "Antlers")) return antlers(p, r);
  if (has(name, "Box")) return boxCall(p, r);
  for (const Horn& h : kHorns)
    if (has(name, h.word)) return horn(p, r, h);
  horn(p, r, kHorns[0]);
}

namespace {

void flagging(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xf4f0e6), r);
  p.drawPolygon(QPolygonF({at(r, 0.3, 0.2), at(r, 0.85, 0.35), at(r, 0.3, 0.5)}));
  p.setPen(QPen(QColor(0x5a3a1e), r.width() / 30));
  p.drawLine(at(r, 0.3, 0.15), at(r, 0.3, 0.95));
}

// A doe standing broadside: body, neck and head raised, ears, four legs and a white tail.
void doe(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0x9a7046), r);
  for (const double x : {0.27, 0.35, 0.6, 0.68}) p.drawRect(QRectF(at(r, x, 0.5), at(r, x + 0.04, 0.95)));
  p.drawEllipse(QRectF(at(r, 0.18, 0.32), at(r, 0.76, 0.6)));
  p.drawPolygon(QPolygonF({at(r, 0.62, 0.4), at(r, 0.74, 0.14), at(r, 0.82, 0.18), at(r, 0.74, 0.45)}));
  p.drawEllipse(QRectF(at(r, 0.72, 0.1), at(r, 0.94, 0.24)));
  p.drawEllipse(QRectF(at(r, 0.7, 0.02), at(r, 0.76, 0.14)));
  p.setBrush(Qt::white);
  p.drawEllipse(QRectF(at(r, 0.14, 0.34), at(r, 0.22, 0.46)));
}

// A hen turkey on her stake: a round barred body, a fanned-down tail and a small bare head.
void henTurkey(QPainter& p, const QRectF& r) {
  QPainterPath body;
  body.addEllipse(QRectF(at(r, 0.22, 0.36), at(r, 0.74, 0.74)));
  body.addPolygon(QPolygonF({at(r, 0.3, 0.5), at(r, 0.06, 0.66), at(r, 0.14, 0.78), at(r, 0.34, 0.66)}));
  outlined(p, QColor(0x5a4030), r);
  p.drawPath(body.simplified());
  p.setPen(QPen(QColor(0xb09070), r.width() / 50));
  for (double x = 0.34; x < 0.7; x += 0.08) p.drawLine(at(r, x, 0.42), at(r, x - 0.04, 0.7));
  p.setPen(QPen(QColor(0x5a4030), r.width() / 20, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(at(r, 0.66, 0.45), at(r, 0.72, 0.18));
  p.drawLine(at(r, 0.48, 0.74), at(r, 0.48, 0.98));
  outlined(p, QColor(0x9ab0c8), r);
  p.drawEllipse(QRectF(at(r, 0.68, 0.08), at(r, 0.8, 0.2)));
}

}  // namespace

void drawDecoy(QPainter& p, const QRectF& r, const QString& name) {
  if (has(name, "Flagging")) return flagging(p, r);
  if (has(name, "Turkey")) return henTurkey(p, r);
  doe(p, r);
}

namespace {

enum class Tip { Cap, Dropper, Sprayer };

// Scent bottles by their maker's habit: a dropper for the estrus lure, a squat jar of earth,
// a pump spray of pine, a tall bottle of cow elk urine.
struct Scent {
  const char* word;
  QRgb glass, label;
  double width, height;
  Tip tip;
};

constexpr Scent kScents[] = {
    {"Estrus", 0x8a5a2a, 0xe88aa0, 0.26, 0.6, Tip::Dropper},
    {"Earth", 0x5a4a3a, 0xc8b080, 0.56, 0.42, Tip::Cap},
    {"Pine", 0x3a6a3a, 0xf4ead0, 0.34, 0.62, Tip::Sprayer},
    {"Elk", 0x8a5a2a, 0x3a2a1a, 0.36, 0.8, Tip::Cap},
};

void scentTip(QPainter& p, const QRectF& body, Tip tip) {
  const double w = body.width();
  p.setBrush(QColor(0x202020));
  if (tip == Tip::Dropper) {
    p.drawRect(QRectF(body.center().x() - w * 0.25, body.top() - w * 0.4, w * 0.5, w * 0.4));
    p.drawPolygon(QPolygonF({QPointF(body.center().x() - w * 0.12, body.top() - w * 0.4),
                             QPointF(body.center().x(), body.top() - w * 0.9),
                             QPointF(body.center().x() + w * 0.12, body.top() - w * 0.4)}));
    return;
  }
  p.drawRect(QRectF(body.center().x() - w * 0.3, body.top() - w * 0.3, w * 0.6, w * 0.3));
  if (tip == Tip::Sprayer) {
    p.drawRect(QRectF(body.center().x() - w * 0.1, body.top() - w * 0.6, w * 0.2, w * 0.3));
    p.drawRect(QRectF(body.center().x() - w * 0.4, body.top() - w * 0.6, w * 0.35, w * 0.12));
  }
}

void scentBottle(QPainter& p, const QRectF& r, const Scent& s) {
  const QRectF body(at(r, 0.5 - s.width / 2, 0.95 - s.height),
                    QSizeF(r.width() * s.width, r.height() * s.height));
  outlined(p, QColor(s.glass), r);
  p.drawRoundedRect(body, body.width() * 0.15, body.width() * 0.15);
  scentTip(p, body, s.tip);
  p.setBrush(QColor(s.label));
  p.drawRect(
      body.adjusted(body.width() * 0.12, body.height() * 0.3, -body.width() * 0.12, -body.height() * 0.25));
}

// Puffs of powder or floss drifting off to the right, the way the wind takes them.
void drift(QPainter& p, const QRectF& r, QColor colour) {
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
  for (int i = 0; i < 5; ++i)
    p.drawEllipse(at(r, 0.6 + i * 0.08, 0.3 - i * 0.05), r.width() * (0.03 + i * 0.012),
                  r.width() * (0.03 + i * 0.012));
}

// A soft white squeeze bottle with a cone nozzle, dusting grey powder.
void windPowder(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xf0f0ec), r);
  p.drawRoundedRect(QRectF(at(r, 0.2, 0.4), at(r, 0.5, 0.95)), r.width() * 0.08, r.width() * 0.08);
  outlined(p, QColor(0xf06a10), r);
  p.drawPolygon(QPolygonF({at(r, 0.27, 0.4), at(r, 0.35, 0.22), at(r, 0.43, 0.4)}));
  drift(p, r, QColor(150, 150, 150, 170));
}

// A clear tube stuffed with white milkweed floss, a tuft pulled out on the breeze.
void flossPuffer(QPainter& p, const QRectF& r) {
  outlined(p, QColor(0xa8c0c8), r);
  p.drawRoundedRect(QRectF(at(r, 0.2, 0.15), at(r, 0.42, 0.95)), r.width() * 0.06, r.width() * 0.06);
  p.setPen(Qt::NoPen);
  p.setBrush(Qt::white);
  for (double y = 0.25; y < 0.9; y += 0.12) p.drawEllipse(at(r, 0.31, y), r.width() * 0.08, r.width() * 0.06);
  p.setPen(QPen(Qt::white, r.width() / 60));
  for (int i = 0; i < 4; ++i)
    p.drawLine(at(r, 0.45 + i * 0.12, 0.2 + i * 0.04), at(r, 0.55 + i * 0.12, 0.12 + i * 0.04));
  drift(p, r, QColor(255, 255, 255, 220));
}

}  // namespace

void drawScent(QPainter& p, const QRectF& r, const QString& name) {
  if (has(name, "Powder")) return windPowder(p, r);
  if (has(name, "Floss")) return flossPuffer(p, r);
  for (const Scent& s : kScents)
    if (has(name, s.word)) return scentBottle(p, r, s);
  scentBottle(p, r, kScents[0]);
}

}  // namespace worldgen
