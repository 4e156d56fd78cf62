// SPDX-License-Identifier: GPL-2.0-or-later
// Trees, shrubs and rocks of the outdoor scenes.
#include "tools/worldgen/trees.h"

#include "tools/worldgen/colour_mix.h"

#include <QPainterPath>
#include <QPolygonF>

#include <cmath>

namespace worldgen {

namespace {

const QColor kSnow(242, 246, 252);

QPointF along(QPointF from, double angle, double length) {
  return from + QPointF(std::sin(angle) * length, -std::cos(angle) * length);
}

struct Limb {
  double spread;  // how far limbs lean out from their parent
  double shrink;  // length of a limb against its parent
  int depth;
};

// A limb and the limbs it forks into; ends may carry the brown leaves oaks keep into winter.
void paintLimb(QPainter& p, QPointF from, double angle, double length, double width, int depth, const Limb& l,
               const QColor& bark, double leaves, StableRandom& rnd) {
  const QPointF to = along(from, angle, length);
  p.setPen(QPen(bark, std::max(0.5, width), Qt::SolidLine, Qt::RoundCap));
  p.drawLine(from, to);
  if (depth == 0) {
    if (rnd.unit() < leaves) {
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(0x8a5326).darker(int(rnd.between(90, 135))));
      p.drawEllipse(to, length * 0.9, length * 0.6);
    }
    return;
  }
  const int forks = 2 + (rnd.unit() < 0.35);
  for (int k = 0; k < forks; ++k) {
    const double turn = l.spread * (k - (forks - 1) / 2.0) + rnd.between(-0.25, 0.25);
    paintLimb(p, to, angle + turn, length * l.shrink * rnd.between(0.85, 1.1), width * 0.58, depth - 1, l,
              bark, leaves, rnd);
  }
}

// Bare hardwoods: a haze of fine twigs behind the limbs, as winter woods look from afar.
void paintBroadleaf(QPainter& p, QPointF foot, double h, const Limb& limb, QColor bark, double leaves,
                    StableRandom& rnd) {
  const double crownWidth = h * limb.spread * 0.9;
  QRadialGradient twigs(foot - QPointF(0, h * 0.68), crownWidth);
  twigs.setColorAt(0, withAlpha(bark.lighter(115), 90));
  twigs.setColorAt(1, withAlpha(bark.lighter(115), 0));
  p.setPen(Qt::NoPen);
  p.setBrush(twigs);
  p.drawEllipse(foot - QPointF(0, h * 0.68), crownWidth, h * 0.36);
  const int depth = h < 25 ? 2 : h < 80 ? 3 : h < 160 ? limb.depth : limb.depth + 1;
  const QPointF fork = foot - QPointF(0, h * rnd.between(0.3, 0.42));
  QLinearGradient trunk(foot.x() - h * 0.03, 0, foot.x() + h * 0.03, 0);
  trunk.setColorAt(0, bark.lighter(125));
  trunk.setColorAt(1, bark.darker(130));
  p.setBrush(trunk);
  p.drawPolygon(QPolygonF({foot + QPointF(-h * 0.028, 0), foot + QPointF(h * 0.028, 0),
                           fork + QPointF(h * 0.014, 0), fork - QPointF(h * 0.014, 0)}));
  const double length = (h - (foot.y() - fork.y())) * 0.45;
  const int limbs = 2 + rnd.below(2);
  for (int k = 0; k < limbs; ++k)
    paintLimb(p, fork, (k - (limbs - 1) / 2.0) * limb.spread * 0.8 + rnd.between(-0.15, 0.15), length,
              h * 0.022, depth, limb, bark, leaves, rnd);
  p.setPen(Qt::NoPen);
}

// Spruce and fir: ragged drooping boughs that narrow to a spire, snow lying on their tops.
void paintSpire(QPainter& p, QPointF foot, double h, double slim, QColor needles, double snow,
                StableRandom& rnd) {
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x3a2c22));
  p.drawRect(QRectF(foot.x() - h * 0.02, foot.y() - h * 0.1, h * 0.04, h * 0.1));
  const int boughs = h < 20 ? 6 : h < 80 ? 14 : 24;
  for (int b = 0; b < boughs; ++b) {
    const double f = double(b) / boughs;  // 0 at the bottom
    const double y = foot.y() - h * (0.06 + 0.9 * f);
    for (const int side : {-1, 1}) {
      const double reach = (h * slim * (1 - f) + h * 0.025) * rnd.between(0.7, 1.2);
      const double droop = h * rnd.between(0.03, 0.07);
      const QPointF tip(foot.x() + side * reach, y + droop);
      const QColor shade =
          side < 0 ? needles.lighter(int(rnd.between(105, 135))) : needles.darker(int(rnd.between(115, 150)));
      p.setBrush(shade);
      p.drawPolygon(QPolygonF({QPointF(foot.x(), y - h * 0.05), tip,
                               QPointF(foot.x() + side * reach * 0.4, y + droop * 1.4),
                               QPointF(foot.x(), y + h * 0.03)}));
      if (snow > 0.25 && rnd.unit() < snow + 0.2) {
        p.setBrush(withAlpha(kSnow, 230));
        p.drawPolygon(QPolygonF({QPointF(foot.x(), y - h * 0.04), tip - QPointF(0, h * 0.008),
                                 QPointF(foot.x() + side * reach * 0.5, y + droop * 0.2)}));
      }
    }
  }
  p.setBrush(needles.darker(120));
  p.drawPolygon(
      QPolygonF({QPointF(foot.x(), foot.y() - h * 1.02), QPointF(foot.x() + h * 0.02, foot.y() - h * 0.9),
                 QPointF(foot.x() - h * 0.02, foot.y() - h * 0.9)}));
}

// Lodgepole and ponderosa: a long bare trunk and a narrow ragged crown of needle tufts.
void paintPine(QPainter& p, QPointF foot, double h, QColor needles, double snow, StableRandom& rnd) {
  p.setPen(Qt::NoPen);
  QLinearGradient trunk(foot.x() - h * 0.02, 0, foot.x() + h * 0.02, 0);
  trunk.setColorAt(0, QColor(0x9a7a5a));
  trunk.setColorAt(1, QColor(0x4a3626));
  p.setBrush(trunk);
  p.drawPolygon(QPolygonF({foot + QPointF(-h * 0.02, 0), foot + QPointF(h * 0.02, 0),
                           foot + QPointF(h * 0.005, -h), foot + QPointF(-h * 0.005, -h)}));
  const int clumps = h < 40 ? 16 : 70;
  for (int k = 0; k < clumps; ++k) {
    const double f = 0.5 + 0.52 * std::sqrt(rnd.unit());
    const double side = rnd.between(-1, 1) * h * 0.24 * (1.1 - f);
    const QPointF c(foot.x() + side, foot.y() - h * f);
    const double r = h * rnd.between(0.014, 0.028);
    if (h > 60) {  // the limb carrying the tuft
      p.setPen(QPen(QColor(0x4a3626), std::max(0.6, h * 0.004)));
      p.drawLine(QPointF(foot.x(), c.y() + r), c);
      p.setPen(Qt::NoPen);
    }
    p.setBrush(side < 0 ? needles.lighter(int(rnd.between(100, 130)))
                        : needles.darker(int(rnd.between(100, 140))));
    p.drawEllipse(c, r * 1.6, r * 0.9);
    if (snow > 0.3 && rnd.unit() < 0.25) {
      p.setBrush(withAlpha(kSnow, 190));
      p.drawEllipse(c - QPointF(0, r * 0.5), r * 0.9, r * 0.25);
    }
  }
}

void paintAspen(QPainter& p, QPointF foot, double h, StableRandom& rnd) {
  const QColor bark(0xd8d8cc);
  const Limb limb{0.35, 0.7, 4};
  paintBroadleaf(p, foot, h, limb, QColor(0x8a8078), 0.0, rnd);
  // The white trunk over the grey crown, with its black knots.
  QLinearGradient trunk(foot.x() - h * 0.02, 0, foot.x() + h * 0.02, 0);
  trunk.setColorAt(0, bark.lighter(110));
  trunk.setColorAt(1, bark.darker(135));
  p.setBrush(trunk);
  p.drawRect(QRectF(foot.x() - h * 0.018, foot.y() - h * 0.75, h * 0.036, h * 0.75));
  p.setBrush(QColor(0x2a2622));
  for (int k = 0; k < 5; ++k)
    p.drawEllipse(QPointF(foot.x() + rnd.between(-0.008, 0.008) * h, foot.y() - h * rnd.between(0.05, 0.7)),
                  h * 0.012, h * 0.006);
}

}  // namespace

void paintTree(QPainter& p, TreeKind kind, QPointF foot, double h, double snow, StableRandom& rnd) {
  p.save();
  switch (kind) {
    case TreeKind::Hardwood:
      paintBroadleaf(p, foot, h, {0.42, 0.72, 5}, QColor(0x5a4c44).lighter(int(rnd.between(90, 130))), 0.0,
                     rnd);
      break;
    case TreeKind::Oak: paintBroadleaf(p, foot, h, {0.5, 0.7, 5}, QColor(0x4c3e34), 0.22, rnd); break;
    case TreeKind::Cottonwood: paintBroadleaf(p, foot, h, {0.62, 0.74, 5}, QColor(0x6a625a), 0.0, rnd); break;
    case TreeKind::Cedar: paintSpire(p, foot, h, 0.2, QColor(0x3c4a2a), snow, rnd); break;
    case TreeKind::Spruce:
      paintSpire(p, foot, h, 0.17, QColor(0x1f3528).lighter(int(rnd.between(90, 120))), snow, rnd);
      break;
    case TreeKind::Pine: paintPine(p, foot, h, QColor(0x2c4430), snow, rnd); break;
    case TreeKind::Aspen: paintAspen(p, foot, h, rnd); break;
  }
  p.restore();
}

void paintShrub(QPainter& p, ShrubKind kind, QPointF foot, double w, double snow, StableRandom& rnd) {
  p.save();
  p.setPen(Qt::NoPen);
  if (kind == ShrubKind::Twigs || kind == ShrubKind::Willow) {
    const QColor stem = kind == ShrubKind::Willow ? QColor(0x9a4a2a) : QColor(0x5a3a30);
    for (int k = 0; k < 22; ++k) {
      const double a = rnd.between(-0.9, 0.9);
      const QPointF from = foot + QPointF(rnd.between(-0.3, 0.3) * w, 0);
      p.setPen(QPen(stem.lighter(int(rnd.between(80, 140))), std::max(0.6, w * 0.015)));
      p.drawLine(from, along(from, a, w * rnd.between(0.3, 0.6)));
    }
  } else if (kind == ShrubKind::Grass) {
    for (int k = 0; k < 26; ++k) {
      const QPointF from = foot + QPointF(rnd.between(-0.4, 0.4) * w, 0);
      p.setPen(QPen(QColor(0xc8a868).darker(int(rnd.between(90, 140))), std::max(0.6, w * 0.012)));
      p.drawLine(from, along(from, rnd.between(-0.5, 0.5), w * rnd.between(0.25, 0.5)));
    }
  } else {
    const QColor leaf = kind == ShrubKind::Sage ? QColor(0x8a9478) : QColor(0x34482e);
    for (int k = 0; k < 9; ++k) {
      const QPointF c = foot + QPointF(rnd.between(-0.35, 0.35) * w, -rnd.between(0.1, 0.35) * w);
      p.setBrush(leaf.lighter(int(rnd.between(80, 125))));
      p.drawEllipse(c, w * rnd.between(0.12, 0.2), w * rnd.between(0.08, 0.14));
    }
  }
  if (snow > 0.4) {
    p.setPen(Qt::NoPen);
    p.setBrush(withAlpha(kSnow, 220));
    p.drawEllipse(foot - QPointF(0, w * 0.05), w * 0.45, w * 0.08);
  }
  p.restore();
}

void paintRocks(QPainter& p, QPointF foot, double w, QColor stone, double snow, StableRandom& rnd) {
  p.save();
  p.setPen(Qt::NoPen);
  const int count = 2 + rnd.below(3);
  for (int k = 0; k < count; ++k) {
    const double rw = w * rnd.between(0.3, 0.6), rh = rw * rnd.between(0.45, 0.8);
    const QPointF base = foot + QPointF(rnd.between(-0.3, 0.3) * w, rnd.between(-0.05, 0.05) * w);
    QPolygonF rock;
    for (int v = 0; v <= 6; ++v) {
      const double a = 3.14159 * v / 6;
      rock << base + QPointF(-std::cos(a) * rw / 2, -std::sin(a) * rh * rnd.between(0.8, 1.15));
    }
    QLinearGradient shade(base.x() - rw / 2, base.y() - rh, base.x() + rw / 2, base.y());
    shade.setColorAt(0, stone.lighter(135));
    shade.setColorAt(1, stone.darker(150));
    p.setBrush(shade);
    p.drawPolygon(rock);
    if (snow > 0.3) {
      p.setBrush(withAlpha(kSnow, 235));
      p.drawEllipse(base - QPointF(rw * 0.05, rh * 0.85), rw * 0.38, rh * 0.2);
    }
  }
  p.restore();
}

}  // namespace worldgen
