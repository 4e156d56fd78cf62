// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/tracking_film.h"

#include "tools/worldgen/colour_mix.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/stable_random.h"

#include <QPainter>

#include <cmath>

namespace worldgen {

namespace {

constexpr double kHorizon = 92;
constexpr double kStep = 0.45;    // metres between prints
constexpr double kWalk = 0.07;    // metres the hunter moves per picture
constexpr double kFarthest = 14;  // metres of trail in view

// Where a point `ahead` metres up the trail and `aside` metres off its middle falls on screen,
// and how large a metre is there.
struct Spot {
  QPointF at;
  double scale;
};
Spot spotOf(double along, double ahead, double aside) {
  const double s = 1 / (1 + 0.45 * ahead);
  const double bend = std::sin(along * 0.35) * 0.9;  // the trail winds
  return {{160 + (aside + bend) * s * 150, kHorizon + (240 - kHorizon) * s * 1.15}, s * 150};
}

bool snowy(QChar world) {
  return floraOf(world).snow > 0.4;
}

void paintGround(QPainter& p, QChar world, double walked) {
  const Flora flora = floraOf(world);
  const QColor base = snowy(world) ? QColor(0xe8eef4) : flora.ground;
  QLinearGradient fade(0, kHorizon - 20, 0, kHorizon + 30);
  fade.setColorAt(0, QColor(base.red(), base.green(), base.blue(), 0));
  fade.setColorAt(1, base);
  p.fillRect(QRectF(0, kHorizon - 20, 320, 260 - kHorizon), fade);
  // Litter or drifted snow, fixed to the ground so it passes under the hunter's feet.
  const int first = int(walked / 0.2);
  for (int i = first + int(kFarthest / 0.2); i >= first; --i) {
    StableRandom rnd(uint64_t(i) * 31 + world.unicode());
    for (int j = 0; j < 6; ++j) {
      const Spot s = spotOf(i * 0.2, i * 0.2 - walked + rnd.unit() * 0.2, rnd.between(-2.5, 2.5));
      if (s.at.y() > 250) continue;
      const QColor fleck =
          snowy(world) ? QColor(0xc4d0de) : mixColour(QColor(0xa0521e), QColor(0x6a4a22), rnd.unit());
      p.setBrush(fleck);
      p.drawEllipse(s.at, s.scale * rnd.between(0.02, 0.05), s.scale * rnd.between(0.01, 0.025));
    }
  }
}

// A cloven print: two halves pressed into the ground.
void print(QPainter& p, const Spot& s, QChar world) {
  p.setBrush(snowy(world) ? QColor(120, 140, 170, 190) : QColor(40, 26, 14, 200));
  const double w = s.scale * 0.055, h = s.scale * 0.06;
  p.drawEllipse(s.at + QPointF(-w * 0.7, 0), w * 0.6, h);
  p.drawEllipse(s.at + QPointF(w * 0.7, 0), w * 0.6, h);
}

// Drops and splashes beside the prints; heavier where the animal stopped.
void bloodBy(QPainter& p, const Spot& s, StableRandom& rnd, QChar world) {
  const QColor red = snowy(world) ? QColor(0xb01018) : QColor(0x6a0608);
  const int drops = rnd.below(4) + (rnd.below(5) == 0 ? 6 : 0);
  for (int d = 0; d < drops; ++d) {
    const QPointF at = s.at + QPointF(rnd.between(-0.15, 0.15) * s.scale, rnd.between(-0.05, 0.05) * s.scale);
    const double r = s.scale * rnd.between(0.006, drops > 5 ? 0.03 : 0.015);
    if (snowy(world)) {  // blood spreads pink into snow
      p.setBrush(QColor(220, 120, 130, 110));
      p.drawEllipse(at, r * 1.8, r * 1.2);
    }
    p.setBrush(red);
    p.drawEllipse(at, r, r * 0.7);
  }
}

}  // namespace

void paintTrackingFilm(QImage& picture, const QImage& backdrop, QChar world, int n, bool blood) {
  picture = backdrop.copy();
  QPainter p(&picture);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  const double walked = n * kWalk;
  paintGround(p, world, walked);
  const int first = int(walked / kStep);
  for (int i = first + int(kFarthest / kStep); i >= first; --i) {  // far to near
    const Spot s = spotOf(i * kStep, i * kStep - walked, (i % 2 ? 0.1 : -0.1));
    if (s.at.y() > 250) continue;
    print(p, s, world);
    StableRandom rnd(uint64_t(i) * 7919 + 17);
    if (blood) bloodBy(p, s, rnd, world);
  }
}

}  // namespace worldgen
