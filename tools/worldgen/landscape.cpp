// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/landscape.h"

#include "tools/worldgen/stable_random.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace worldgen {

namespace {

constexpr double kTurn = 6.283185307179586;

enum class TreeKind { Bare, Conifer, Cottonwood };

struct Scenery {
  QColor skyTop, skyLow, farRidge, nearRidge, groundFar, groundNear;
  double ridgeHeight;  // fraction of the height the far ridges rise
  double snowLine;     // 0 no snow caps .. 1 white ridges
  double snowGround;   // share of the ground under snow
  TreeKind trees;
  int treeCount;  // per 1000 pixels of width
  bool pond;
};

Scenery sceneryOf(QChar world) {
  switch (world.unicode()) {
    case 'D':  // grass plains and ponds under a cold clear sky
      return {QColor(0x6f94c4),
              QColor(0xe6dcc8),
              QColor(0x9aa3ae),
              QColor(0xa89470),
              QColor(0xb8a07a),
              QColor(0x9c7e52),
              0.05,
              0.0,
              0.12,
              TreeKind::Cottonwood,
              6,
              true};
    case 'B':  // forested mountain valley
      return {QColor(0x5f83b4),
              QColor(0xd9dde2),
              QColor(0x7d8ea6),
              QColor(0x3e5142),
              QColor(0x8a8c70),
              QColor(0x6e6a4e),
              0.3,
              0.55,
              0.35,
              TreeKind::Conifer,
              28,
              false};
    case 'T':  // high peaks over a sage valley
      return {QColor(0x4f78b0),
              QColor(0xe2e4e6),
              QColor(0x8898b0),
              QColor(0x4a5a50),
              QColor(0x9a987c),
              QColor(0x807a5a),
              0.42,
              0.75,
              0.45,
              TreeKind::Conifer,
              18,
              false};
    case 'Y':  // snow and rock
      return {QColor(0x8aa2c0),
              QColor(0xeef0f2),
              QColor(0xb8c4d4),
              QColor(0x6a7480),
              QColor(0xe8ecf0),
              QColor(0xdfe5ec),
              0.34,
              0.9,
              0.9,
              TreeKind::Conifer,
              10,
              false};
    default:  // wooded hills after leaf fall
      return {QColor(0x8a9ab0),
              QColor(0xe0d8cc),
              QColor(0x8b93a0),
              QColor(0x6a6450),
              QColor(0x8c7454),
              QColor(0x6e5438),
              0.12,
              0.0,
              0.01,
              TreeKind::Bare,
              30,
              false};
  }
}

// A ridge line that repeats every `width` pixels: a few sines of whole turns.
double ridgeAt(double x, double width, const double (&phases)[4], double amplitude) {
  const double t = x / width * kTurn;
  return amplitude * (0.45 * std::sin(2 * t + phases[0]) + 0.3 * std::sin(5 * t + phases[1]) +
                      0.17 * std::sin(11 * t + phases[2]) + 0.08 * std::sin(23 * t + phases[3]));
}

// An ellipse on a strip that is a full turn: what runs off one end comes back at the other.
void drawWrapped(QPainter& p, const QRectF& r, int width) {
  p.drawEllipse(r);
  if (r.left() < 0) p.drawEllipse(r.translated(width, 0));
  if (r.right() > width) p.drawEllipse(r.translated(-width, 0));
}

void paintSky(QPainter& p, const Scenery& s, int w, double horizonY, StableRandom& rnd) {
  QLinearGradient sky(0, 0, 0, horizonY);
  sky.setColorAt(0, s.skyTop);
  sky.setColorAt(1, s.skyLow);
  p.fillRect(QRectF(0, 0, w, horizonY + 2), sky);
  p.setPen(Qt::NoPen);
  for (int i = 0; i < w / 90; ++i) {  // thin winter clouds
    const double x = rnd.between(0, w), y = rnd.between(0.08, 0.55) * horizonY, cw = rnd.between(60, 220);
    p.setBrush(QColor(255, 255, 255, int(rnd.between(30, 90))));
    for (int k = 0; k < 4; ++k)
      drawWrapped(p, QRectF(x + k * cw * 0.22 - cw / 2, y - k % 2 * 4, cw * 0.5, cw * 0.12), w);
  }
}

void paintRidge(QPainter& p, const LandscapeRequest& r, double base, double amplitude, QColor colour,
                double snow, StableRandom& rnd) {
  const double phases[4] = {rnd.between(0, kTurn), rnd.between(0, kTurn), rnd.between(0, kTurn),
                            rnd.between(0, kTurn)};
  QPainterPath land;
  land.moveTo(0, r.height);
  QPainterPath caps;
  const double capLine = base - amplitude * (1.0 - 0.7 * snow);
  for (int x = 0; x <= r.width; x += 4) {
    const double y = base - amplitude * 0.55 - ridgeAt(x, r.width, phases, amplitude);
    land.lineTo(x, y);
  }
  land.lineTo(r.width, r.height);
  land.closeSubpath();
  QLinearGradient shade(0, base - amplitude * 1.5, 0, base + 10);
  shade.setColorAt(0, colour.lighter(110));
  shade.setColorAt(1, colour.darker(110));
  p.setBrush(shade);
  p.drawPath(land);
  if (snow <= 0) return;
  // Snow thins out down the slopes instead of ending in a line.
  QLinearGradient cap(0, capLine - amplitude * 0.4, 0, capLine + amplitude * 0.35);
  cap.setColorAt(0, QColor(245, 248, 252, 240));
  cap.setColorAt(1, QColor(245, 248, 252, 0));
  p.setBrush(cap);
  p.drawPath(land);
}

void paintGround(QPainter& p, const Scenery& s, const LandscapeRequest& r, double horizonY,
                 StableRandom& rnd) {
  QLinearGradient ground(0, horizonY, 0, r.height);
  ground.setColorAt(0, s.groundFar);
  ground.setColorAt(1, s.groundNear);
  p.fillRect(QRectF(0, horizonY, r.width, r.height - horizonY), ground);
  const int tufts = r.width * (r.height - int(horizonY)) / 60;
  for (int i = 0; i < tufts; ++i) {  // grass, leaves and snow patches, smaller with distance
    const double y = rnd.between(horizonY, r.height);
    const double depth = (y - horizonY) / (r.height - horizonY);
    const bool snow = rnd.unit() < s.snowGround;
    QColor c = snow ? QColor(240, 244, 250) : s.groundNear.lighter(int(rnd.between(80, 130)));
    c.setAlpha(snow ? 150 : 140);
    p.setBrush(c);
    const double size = 1 + depth * (snow ? 12 : 5);
    drawWrapped(p, QRectF(rnd.between(0, r.width), y, size * (snow ? 4.5 : 2.2), size * (snow ? 0.45 : 0.6)),
                r.width);
  }
}

void paintPond(QPainter& p, const LandscapeRequest& r, double horizonY, StableRandom& rnd) {
  for (int i = 0; i < 2; ++i) {
    const double w = rnd.between(0.08, 0.16) * r.width,
                 y = horizonY + rnd.between(0.08, 0.25) * (r.height - horizonY);
    const QRectF pond(rnd.between(0, r.width - w), y, w, w * 0.08);
    QLinearGradient ice(pond.topLeft(), pond.bottomLeft());
    ice.setColorAt(0, QColor(0x9fb8d0));
    ice.setColorAt(1, QColor(0xc8d8e6));
    p.setBrush(ice);
    p.drawEllipse(pond);
    p.setBrush(QColor(0x8a7a50));
    for (int k = 0; k < 12; ++k)
      p.drawRect(QRectF(pond.left() + rnd.between(0, pond.width()), pond.top() - 6, 1.5, 8));
  }
}

void paintTree(QPainter& p, TreeKind kind, QPointF foot, double h, double snow, StableRandom& rnd) {
  const QColor bark(0x4a3c30);
  if (kind == TreeKind::Conifer) {
    p.setBrush(bark);
    p.drawRect(QRectF(foot.x() - h * 0.025, foot.y() - h * 0.15, h * 0.05, h * 0.15));
    const QColor needles = QColor(0x23372a).lighter(int(rnd.between(85, 120)));
    for (int tier = 0; tier < 4; ++tier) {
      const double top = foot.y() - h * (1.0 - tier * 0.2), bottom = foot.y() - h * (0.4 - tier * 0.08);
      const double half = h * (0.12 + tier * 0.045);
      const QPolygonF cone(
          {QPointF(foot.x(), top), QPointF(foot.x() + half, bottom), QPointF(foot.x() - half, bottom)});
      p.setBrush(needles);
      p.drawPolygon(cone);
      if (snow > 0.3) {
        p.setBrush(QColor(240, 245, 250, 210));
        p.drawPolygon(QPolygonF({QPointF(foot.x(), top), QPointF(foot.x() + half * 0.5, (top + bottom) / 2),
                                 QPointF(foot.x() - half * 0.6, (top * 0.4 + bottom * 0.6))}));
      }
    }
    return;
  }
  // Bare winter hardwoods and cottonwoods: a trunk and forking limbs.
  const double spread = kind == TreeKind::Cottonwood ? 0.55 : 0.35;
  p.setPen(
      QPen(bark.lighter(int(rnd.between(90, 140))), std::max(1.0, h * 0.04), Qt::SolidLine, Qt::RoundCap));
  p.drawLine(foot, foot - QPointF(0, h * 0.55));
  for (int b = 0; b < 7; ++b) {
    const QPointF from = foot - QPointF(0, h * rnd.between(0.3, 0.6));
    const QPointF to = from + QPointF(rnd.between(-spread, spread) * h, -rnd.between(0.25, 0.45) * h);
    p.setPen(QPen(p.pen().color(), std::max(0.6, h * 0.015), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
    p.drawLine(to, to + QPointF(rnd.between(-0.1, 0.1) * h, -0.08 * h));
  }
  p.setPen(Qt::NoPen);
  if (kind == TreeKind::Bare && rnd.unit() < 0.35) {  // a few oaks keep their brown leaves
    p.setBrush(QColor(0x8a5a2a).darker(int(rnd.between(100, 130))));
    p.drawEllipse(QRectF(foot.x() - h * 0.25, foot.y() - h * 0.95, h * 0.5, h * 0.35));
  }
}

void paintTrees(QPainter& p, const Scenery& s, const LandscapeRequest& r, double horizonY,
                StableRandom& rnd) {
  const int count = s.treeCount * r.width / 1000;
  QList<QPointF> feet;
  for (int i = 0; i < count; ++i)
    feet << QPointF(rnd.between(0, r.width),
                    horizonY + std::pow(rnd.unit(), 1.6) * (r.height - horizonY) * 0.8);
  std::sort(feet.begin(), feet.end(), [](QPointF a, QPointF b) { return a.y() < b.y(); });
  for (const QPointF foot : feet) {
    const double depth = (foot.y() - horizonY) / (r.height - horizonY);
    const double h = r.height * (0.08 + 0.7 * depth * depth) * rnd.between(0.8, 1.2);
    for (const double shift : {0.0, double(-r.width), double(r.width)}) {
      if (!r.seamless && shift != 0) continue;
      StableRandom same(uint64_t(foot.x() * 7919 + foot.y()));  // the copy across the seam is the same tree
      p.setPen(Qt::NoPen);
      paintTree(p, s.trees, foot + QPointF(shift, 0), h, s.snowGround, same);
    }
  }
}

}  // namespace

QImage paintLandscape(const LandscapeRequest& r) {
  const Scenery s = sceneryOf(r.world);
  StableRandom rnd(QString(r.world) + r.variant);
  QImage image(r.width, r.height, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  const double horizonY = r.height * r.horizon;
  paintSky(p, s, r.width, horizonY, rnd);
  paintRidge(p, r, horizonY, r.height * s.ridgeHeight + 8, s.farRidge, s.snowLine, rnd);
  paintRidge(p, r, horizonY + 4, r.height * s.ridgeHeight * 0.45 + 6, s.nearRidge, s.snowLine * 0.5, rnd);
  paintGround(p, s, r, horizonY, rnd);
  if (s.pond) paintPond(p, r, horizonY, rnd);
  paintTrees(p, s, r, horizonY, rnd);
  return image;
}

}  // namespace worldgen
