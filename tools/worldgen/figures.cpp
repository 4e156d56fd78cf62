// SPDX-License-Identifier: GPL-2.0-or-later
// The people of the lodge: one body shape dressed in each person's clothes, lit from the left
// by the windows and warmed by the fire.
#include "tools/worldgen/figures.h"

#include <QLinearGradient>
#include <QPainterPath>

namespace worldgen {

namespace {

struct Outfit {
  QColor coat, trousers, boots, skin, hair;
  bool plaid, vest, beard, badge, binoculars;
};

Outfit outfitOf(Person who) {
  switch (who) {
    case Person::Guide:
      return {QColor(0x8a6a3e),
              QColor(0x4e4a3a),
              QColor(0x3a2a1c),
              QColor(0xd9a882),
              QColor(0x5a3a22),
              false,
              true,
              false,
              false,
              true};
    case Person::Warden:
      return {QColor(0x8c8456),
              QColor(0x3e4a36),
              QColor(0x1e1a16),
              QColor(0xc89070),
              QColor(0x2a2018),
              false,
              false,
              false,
              true,
              false};
    default:
      return {QColor(0xa82a22),
              QColor(0x3a4a6a),
              QColor(0x4a3020),
              QColor(0xe0b090),
              QColor(0x9a9690),
              true,
              false,
              true,
              false,
              false};
  }
}

// Light from the left, shadow on the right, for every piece of cloth and skin.
QLinearGradient sideLight(const QRectF& r, const QColor& c) {
  QLinearGradient g(r.left(), 0, r.right(), 0);
  g.setColorAt(0, c.lighter(135));
  g.setColorAt(0.45, c);
  g.setColorAt(1, c.darker(165));
  return g;
}

class Figure {
 public:
  Figure(QPainter& p, const QRectF& area)
      : p_(p), cx_(area.center().x()), foot_(area.bottom()), h_(area.height()) {}

  QPointF at(double dx, double up) const { return {cx_ + dx * h_, foot_ - up * h_}; }
  QRectF box(double dx0, double up0, double dx1, double up1) const {
    return QRectF(at(dx0, up1), at(dx1, up0)).normalized();
  }
  void fill(const QPainterPath& shape, const QColor& c) {
    p_.setBrush(sideLight(shape.boundingRect(), c));
    p_.drawPath(shape);
  }
  QPainterPath poly(std::initializer_list<QPointF> points) const {
    QPainterPath path;
    path.addPolygon(QPolygonF(points));
    path.closeSubpath();
    return path;
  }
  double h() const { return h_; }
  QPainter& painter() { return p_; }

 private:
  QPainter& p_;
  double cx_, foot_, h_;
};

void paintLegs(Figure& f, const Outfit& o) {
  for (const int side : {-1, 1}) {
    f.fill(f.poly({f.at(side * 0.012, 0.48), f.at(side * 0.095, 0.48), f.at(side * 0.075, 0.05),
                   f.at(side * 0.02, 0.05)}),
           o.trousers);
    QPainterPath boot;
    boot.addRoundedRect(
        f.box(side * 0.015 - (side > 0 ? 0 : 0.07), 0, side * 0.015 + (side > 0 ? 0.07 : 0), 0.07),
        f.h() * 0.015, f.h() * 0.015);
    f.fill(boot, o.boots);
  }
}

void paintCoat(Figure& f, const Outfit& o) {
  QPainterPath coat;
  coat.moveTo(f.at(-0.1, 0.43));
  coat.lineTo(f.at(-0.125, 0.74));
  coat.quadTo(f.at(-0.12, 0.81), f.at(-0.05, 0.815));
  coat.lineTo(f.at(0.05, 0.815));
  coat.quadTo(f.at(0.12, 0.81), f.at(0.125, 0.74));
  coat.lineTo(f.at(0.1, 0.43));
  coat.closeSubpath();
  f.fill(coat, o.coat);
  QPainter& p = f.painter();
  if (o.plaid) {  // the check of a wool shirt, dark bands both ways
    p.save();
    p.setClipPath(coat);
    p.setBrush(QColor(20, 10, 10, 120));
    for (double u = 0.43; u < 0.82; u += 0.05) p.drawRect(f.box(-0.15, u, 0.15, u + 0.018));
    for (double x = -0.14; x < 0.15; x += 0.05) p.drawRect(f.box(x, 0.43, x + 0.018, 0.82));
    p.restore();
    p.setBrush(QColor(0x2a2a2a));  // suspenders
    for (const int side : {-1, 1}) p.drawRect(f.box(side * 0.055 - 0.009, 0.45, side * 0.055 + 0.009, 0.81));
  }
  if (o.vest) {  // blaze orange over the canvas coat
    f.fill(f.poly({f.at(-0.105, 0.5), f.at(-0.115, 0.77), f.at(-0.03, 0.8), f.at(-0.012, 0.55)}),
           QColor(0xff6a10));
    f.fill(f.poly({f.at(0.105, 0.5), f.at(0.115, 0.77), f.at(0.03, 0.8), f.at(0.012, 0.55)}),
           QColor(0xff6a10));
  }
  if (o.badge) {
    p.setBrush(QColor(0xe8c040));
    p.drawEllipse(f.at(-0.055, 0.72), f.h() * 0.016, f.h() * 0.018);
    p.setBrush(QColor(0x3e5a3a));  // shoulder patch
    p.drawEllipse(f.at(0.108, 0.75), f.h() * 0.014, f.h() * 0.02);
    p.setBrush(QColor(0x2a2018));  // duty belt
    p.drawRect(f.box(-0.1, 0.45, 0.1, 0.485));
    p.setBrush(QColor(0xc0a040));
    p.drawRect(f.box(-0.015, 0.452, 0.015, 0.482));
  }
  p.setPen(QPen(o.coat.darker(170), std::max(1.0, f.h() * 0.004)));
  p.drawLine(f.at(0, 0.46), f.at(0, 0.8));
  p.setPen(Qt::NoPen);
}

void paintArms(Figure& f, const Outfit& o) {
  for (const int side : {-1, 1}) {
    f.fill(f.poly({f.at(side * 0.1, 0.8), f.at(side * 0.15, 0.76), f.at(side * 0.155, 0.5),
                   f.at(side * 0.115, 0.5), f.at(side * 0.105, 0.7)}),
           o.coat.darker(108));
    QPainterPath hand;
    hand.addEllipse(QRectF(f.at(side * 0.135 - 0.022, 0.5), f.at(side * 0.135 + 0.022, 0.45)).normalized());
    f.fill(hand, o.skin);
  }
  if (o.binoculars) {
    QPainter& p = f.painter();
    p.setPen(QPen(QColor(0x2a2a2a), std::max(1.0, f.h() * 0.005)));
    p.drawLine(f.at(-0.04, 0.8), f.at(-0.025, 0.68));
    p.drawLine(f.at(0.04, 0.8), f.at(0.025, 0.68));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x222222));
    p.drawRoundedRect(f.box(-0.045, 0.62, 0.045, 0.68), f.h() * 0.008, f.h() * 0.008);
  }
}

void paintHead(Figure& f, const Outfit& o, Person who) {
  QPainter& p = f.painter();
  QPainterPath neck;
  neck.addRect(f.box(-0.025, 0.8, 0.025, 0.84));
  f.fill(neck, o.skin.darker(115));
  QPainterPath head;
  head.addEllipse(f.box(-0.052, 0.825, 0.052, 0.94));
  f.fill(head, o.skin);
  if (o.beard) {
    QPainterPath beard;
    beard.moveTo(f.at(-0.052, 0.88));
    beard.quadTo(f.at(-0.05, 0.815), f.at(0, 0.81));
    beard.quadTo(f.at(0.05, 0.815), f.at(0.052, 0.88));
    beard.quadTo(f.at(0, 0.855), f.at(-0.052, 0.88));
    f.fill(beard, o.hair);
  }
  p.setBrush(QColor(0x2a1a14));
  for (const int side : {-1, 1}) p.drawEllipse(f.at(side * 0.02, 0.895), f.h() * 0.006, f.h() * 0.005);
  p.setBrush(o.skin.darker(125));
  p.drawEllipse(f.at(0.004, 0.872), f.h() * 0.006, f.h() * 0.01);
  p.setBrush(QColor(0x8a4a40));
  p.drawRect(f.box(-0.014, 0.85, 0.014, 0.854));
  switch (who) {
    case Person::Host: {  // a brown felt hat with a band
      QPainterPath brim;
      brim.addEllipse(f.box(-0.1, 0.915, 0.1, 0.945));
      f.fill(brim, QColor(0x6a4a2a));
      QPainterPath crown;
      crown.addRoundedRect(f.box(-0.055, 0.93, 0.055, 1.0), f.h() * 0.02, f.h() * 0.02);
      f.fill(crown, QColor(0x6a4a2a));
      p.setBrush(QColor(0x2a1a10));
      p.drawRect(f.box(-0.055, 0.93, 0.055, 0.945));
      break;
    }
    case Person::Guide: {  // a blaze orange cap with its bill
      QPainterPath cap;
      cap.addEllipse(f.box(-0.056, 0.91, 0.056, 1.0));
      f.fill(cap, QColor(0xff6a10));
      QPainterPath bill;
      bill.addEllipse(f.box(-0.05, 0.9, 0.07, 0.93));
      f.fill(bill, QColor(0xe05a08));
      break;
    }
    case Person::Warden: {  // a flat brim and a pinched crown
      QPainterPath brim;
      brim.addEllipse(f.box(-0.11, 0.925, 0.11, 0.95));
      f.fill(brim, QColor(0x9a8a5a));
      QPainterPath crown;
      crown.moveTo(f.at(-0.05, 0.94));
      crown.lineTo(f.at(-0.035, 1.0));
      crown.lineTo(f.at(0, 0.985));
      crown.lineTo(f.at(0.035, 1.0));
      crown.lineTo(f.at(0.05, 0.94));
      crown.closeSubpath();
      f.fill(crown, QColor(0x9a8a5a));
      p.setBrush(QColor(0x4a3a20));
      p.drawRect(f.box(-0.05, 0.94, 0.05, 0.952));
      break;
    }
  }
}

}  // namespace

void paintPerson(QPainter& p, Person who, const QRectF& area) {
  p.save();
  p.setPen(Qt::NoPen);
  // A soft shadow on the floor grounds the figure.
  p.setBrush(QColor(0, 0, 0, 70));
  p.drawEllipse(QPointF(area.center().x() + area.height() * 0.03, area.bottom()), area.height() * 0.14,
                area.height() * 0.025);
  const Outfit o = outfitOf(who);
  Figure f(p, area);
  paintLegs(f, o);
  paintCoat(f, o);
  paintArms(f, o);
  paintHead(f, o, who);
  p.restore();
}

}  // namespace worldgen
