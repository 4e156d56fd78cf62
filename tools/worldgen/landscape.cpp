// SPDX-License-Identifier: GPL-2.0-or-later
// The outdoor scenery of each world, layered from the sky forward so nearer things cover
// farther ones and haze thins with distance.
#include "tools/worldgen/landscape.h"

#include "tools/worldgen/colour_mix.h"
#include "tools/worldgen/place_features.h"
#include "tools/worldgen/seam_wrap.h"
#include "tools/worldgen/stable_random.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace worldgen {

namespace {

constexpr double kTurn = 6.283185307179586;

enum class Relief { Hills, Plains, Mountains };
enum class Texture { Leaves, Grass, Meadow, Snow };

struct Scenery {
  QColor skyTop, skyLow, sunGlow;
  QColor ridge, forest;  // the farthest ridge before haze; the wooded near slopes
  QColor groundFar, groundNear;
  Relief relief;
  double ridgeHeight;  // fraction of the height the far ridges rise
  double peakSnow;     // 0 bare ridges .. 1 white to their feet
  Texture texture;
  Flora flora;
  double secondShare;  // share of the second kind of tree
  double trees;        // per 1000 pixels of width
  double shrubs;
  double rocks;
  bool pond;
};

Scenery sceneryOf(QChar world) {
  switch (world.unicode()) {
    case 'D':
      return {QColor(0x4f7db8),
              QColor(0xf0dcc0),
              QColor(0xffc890),
              QColor(0x8a94a8),
              QColor(0x6a6058),
              QColor(0xc8ae80),
              QColor(0xa8884e),
              Relief::Plains,
              0.07,
              0.0,
              Texture::Grass,
              {TreeKind::Cottonwood, TreeKind::Hardwood, ShrubKind::Twigs, QColor(0xb09a7a), QColor(0xa8c0d4),
               QColor(0xb89a64), 0.08},
              0.3,
              4,
              10,
              2,
              true};
    case 'B':
      return {QColor(0x466fa8),
              QColor(0xe8dcd0),
              QColor(0xffd0a0),
              QColor(0x6f7f9a),
              QColor(0x2c3e34),
              QColor(0xa49c84),
              QColor(0x7e7458),
              Relief::Mountains,
              0.42,
              0.5,
              Texture::Meadow,
              {TreeKind::Pine, TreeKind::Spruce, ShrubKind::Evergreen, QColor(0x8a8680), QColor(0xb4c8da),
               QColor(0x948a6c), 0.35},
              0.45,
              22,
              6,
              4,
              false};
    case 'T':
      return {QColor(0x3e68a6),
              QColor(0xf0e0d4),
              QColor(0xffd4a8),
              QColor(0x7a88a4),
              QColor(0x2a3a32),
              QColor(0xb0aa94),
              QColor(0x8a8266),
              Relief::Mountains,
              0.6,
              0.7,
              Texture::Meadow,
              {TreeKind::Spruce, TreeKind::Aspen, ShrubKind::Sage, QColor(0x8c8c90), QColor(0xb8cce0),
               QColor(0xa09a80), 0.45},
              0.35,
              14,
              16,
              4,
              false};
    case 'Y':
      return {QColor(0x6c84b0),
              QColor(0xf4dcd8),
              QColor(0xffc8b0),
              QColor(0x9aa6bc),
              QColor(0x3a4640),
              QColor(0xe6ecf4),
              QColor(0xf2f5fa),
              Relief::Mountains,
              0.46,
              0.9,
              Texture::Snow,
              {TreeKind::Spruce, TreeKind::Spruce, ShrubKind::Willow, QColor(0x6a6866), QColor(0xc4d4e4),
               QColor(0xe8eef6), 0.92},
              0.0,
              8,
              5,
              6,
              false};
    default:  // Piedmont: rolling hills wooded to their tops
      return {QColor(0x7a94bc),
              QColor(0xeedcc4),
              QColor(0xffd0a0),
              QColor(0x7a7280),
              QColor(0x5a4a44),
              QColor(0x9c7e5c),
              QColor(0x74563a),
              Relief::Hills,
              0.28,
              0.0,
              Texture::Leaves,
              {TreeKind::Hardwood, TreeKind::Oak, ShrubKind::Twigs, QColor(0x8a8078), QColor(0x9ab0c4),
               QColor(0x8a6a48), 0.02},
              0.4,
              40,
              8,
              1,
              false};
  }
}

// What the place's own description asks of its scenery.
struct PlaceTraits {
  double treeFactor = 1;
  bool water = false, lake = false, river = false;
  double shrubFactor = 1, rockFactor = 1;
  bool clearing = false;
  TreeKind second;
  double secondShare;
};

PlaceTraits traitsOf(const Scenery& s, const QString& description) {
  PlaceTraits t;
  t.second = s.flora.second;
  t.secondShare = s.secondShare;
  const auto has = [&](std::initializer_list<const char*> words) {
    for (const char* w : words)
      if (description.contains(QLatin1String(w), Qt::CaseInsensitive)) return true;
    return false;
  };
  if (has({"field", "stubble", "meadow", "park", "flats", "sidehill", "bench", "basin", "knoll", "prairie",
           "rise", "crossing"}))
    t.treeFactor = 0.45;
  if (has({"range"})) t.treeFactor = 0;  // a cleared shooting range: nothing stands behind the lodge
  if (has({"timber", "thicket", "pine", "spruce", "saddle", "lodgepole", "hollow", "cedars"}))
    t.treeFactor = 1.6;
  t.clearing = has({"camp"});  // room for the tents and the fire before the viewer
  t.lake = has({"lake"});
  t.water = s.pond || has({"pond", "beaver", "wallow", "tank"});
  t.river = has({"river", "creek"});
  if (has({"aspen"})) t.second = TreeKind::Aspen, t.secondShare = 0.55;
  if (has({"cottonwood"})) t.second = TreeKind::Cottonwood, t.secondShare = 0.7;
  if (has({"rim", "rock", "talus", "outcrop", "shoulder"})) t.rockFactor = 3;
  if (has({"sage", "willow", "brush"})) t.shrubFactor = 2.5;
  return t;
}

struct Canvas {
  QPainter& p;
  const LandscapeRequest& r;
  const Scenery& s;
  double horizonY;
  double unit;  // pixels per unit of the reference 384-pixel-high strip

  // The strip's width in units: counts go by it, so every size of a place holds the same things.
  double span() const { return r.width / unit; }
};

// A skyline that repeats every turn: sines of whole turns, peaked for mountains, flat-topped
// buttes for the plains.
class Skyline {
 public:
  Skyline(Relief relief, StableRandom& rnd) : relief_(relief) {
    for (double& phase : phases_) phase = rnd.between(0, kTurn);
  }
  // 0 at the ridge foot .. about 1 at the highest peak.
  double at(double x, double width) const {
    const double t = x / width * kTurn;
    const int freq[] = {2, 3, 5, 8, 13, 21, 34, 55};
    double sum = 0, norm = 0;
    for (int k = 0; k < 8; ++k) {
      const double amp = 1.0 / std::pow(k + 1, relief_ == Relief::Mountains ? 0.9 : 1.3);
      const double wave = std::sin(freq[k] * t + phases_[k]);
      sum += amp * (relief_ == Relief::Mountains ? 1 - std::abs(wave) : 0.5 + 0.5 * wave);
      norm += amp;
    }
    const double h = sum / norm;
    if (relief_ == Relief::Plains) return 0.2 * h + 0.8 * std::clamp((h - 0.58) * 9, 0.0, 1.0);
    return relief_ == Relief::Mountains ? std::pow(h, 1.6) * 1.4 : h;
  }

 private:
  Relief relief_;
  double phases_[8];
};

void paintSun(Canvas& c, double sunX, double sunY) {
  const double reach = c.r.height * 1.4;
  drawAcrossSeam(sunX - reach, sunX + reach, c.r.width, c.r.seamless, [&](double shift) {
    QRadialGradient glow(QPointF(sunX + shift, sunY), reach);
    glow.setColorAt(0, withAlpha(c.s.sunGlow, 200));
    glow.setColorAt(0.35, withAlpha(c.s.sunGlow, 70));
    glow.setColorAt(1, withAlpha(c.s.sunGlow, 0));
    c.p.setBrush(glow);
    c.p.drawEllipse(QPointF(sunX + shift, sunY), reach, reach * 0.55);
    c.p.setBrush(QColor(255, 250, 232));
    c.p.drawEllipse(QPointF(sunX + shift, sunY), 7 * c.unit, 7 * c.unit);
  });
}

void paintSky(Canvas& c, StableRandom& rnd) {
  QLinearGradient sky(0, 0, 0, c.horizonY);
  sky.setColorAt(0, c.s.skyTop);
  sky.setColorAt(0.55, mixColour(c.s.skyTop, c.s.skyLow, 0.45));
  sky.setColorAt(1, c.s.skyLow);
  c.p.fillRect(QRectF(0, 0, c.r.width, c.horizonY + 2), sky);
  const double sunX = rnd.between(0, c.r.width);
  const double sunY = c.horizonY - c.r.height * rnd.between(0.1, 0.16);
  paintSun(c, sunX, sunY);
  // Long thin winter clouds, lit from below on the sun's side.
  for (int i = 0; i < int(c.span() / 110); ++i) {
    const double x = rnd.between(0, c.r.width), y = rnd.between(0.1, 0.7) * c.horizonY;
    const double cw = rnd.between(80, 300) * c.unit;
    const double nearSun = std::max(0.0, 1 - std::abs(x - sunX) / (c.r.width * 0.3));
    const QColor tint = mixColour(QColor(250, 250, 255), c.s.sunGlow, 0.3 + 0.5 * nearSun);
    for (int k = 0; k < 6; ++k) {
      const QRectF puff(x + (k - 3) * cw * 0.16, y + rnd.between(-2, 2) * c.unit, cw * 0.45, cw * 0.05);
      drawAcrossSeam(puff.left(), puff.right(), c.r.width, c.r.seamless, [&](double shift) {
        c.p.setBrush(withAlpha(tint, int(rnd.between(25, 70))));
        c.p.drawEllipse(puff.translated(shift, 0));
      });
    }
  }
}

struct RidgeLayer {
  double base, amplitude, haze;
  QColor colour;
  double snow;
};

// One ridge: filled in its colour faded toward the sky, sunlit faces brighter, snow on top.
QPainterPath paintRidge(Canvas& c, const RidgeLayer& layer, StableRandom& rnd) {
  const Skyline skyline(c.s.relief, rnd);
  const int step = std::max(2, int(2 * c.unit));
  QList<double> tops;
  QPainterPath land;
  land.moveTo(0, c.r.height);
  for (int x = 0; x <= c.r.width; x += step) {
    tops << layer.base - layer.amplitude * skyline.at(x, c.r.width);
    land.lineTo(x, tops.back());
  }
  land.lineTo(c.r.width, c.r.height);
  land.closeSubpath();
  const QColor body = mixColour(layer.colour, c.s.skyLow, layer.haze);
  QLinearGradient fill(0, layer.base - layer.amplitude, 0, layer.base + 4 * c.unit);
  fill.setColorAt(0, body.lighter(108));
  fill.setColorAt(1, mixColour(body, c.s.skyLow, 0.3));
  c.p.setBrush(fill);
  c.p.drawPath(land);
  // Faces turned to the light catch it; the others fall into blue shadow. Columns meet edge
  // to edge, so no smoothing between them.
  c.p.setRenderHint(QPainter::Antialiasing, false);
  const int reach = 16;  // slopes read over many columns, so faces are broad, not stripes
  for (int i = reach; i + reach < tops.size(); ++i) {
    const double slope = (tops[i + reach] - tops[i - reach]) / (2.0 * reach * step);
    // One depth for the whole layer: faces that end at the same height leave no streaks below.
    const double x = i * step, depth = layer.amplitude * 0.3;
    const QColor light =
        slope < 0 ? withAlpha(QColor(255, 240, 220), int(std::min(70.0, -slope * 160) * (1 - layer.haze)))
                  : withAlpha(QColor(40, 50, 80), int(std::min(60.0, slope * 120) * (1 - layer.haze)));
    // Each face fades down its slope, so the columns leave no edge at their feet.
    QLinearGradient fade(0, tops[i], 0, tops[i] + depth);
    fade.setColorAt(0, light);
    fade.setColorAt(1, withAlpha(light, 0));
    c.p.setBrush(fade);
    c.p.drawRect(QRect(int(x) - step / 2, int(tops[i]) + 1, step, int(depth)));
  }
  c.p.setRenderHint(QPainter::Antialiasing, true);
  if (layer.snow > 0) {
    const Skyline streaks(Relief::Mountains, rnd);
    const double line = layer.base - layer.amplitude * (1 - layer.snow) * 0.9;
    QPainterPath snow;
    for (int i = 0; i < tops.size(); ++i) i == 0 ? snow.moveTo(0, tops[0]) : snow.lineTo(i * step, tops[i]);
    for (int i = int(tops.size()) - 1; i >= 0; --i) {
      const double x = i * step;
      const double depth = std::max(0.0, line - tops[i]) * (0.5 + 0.7 * streaks.at(x * 3, c.r.width));
      snow.lineTo(x, tops[i] + depth);
    }
    snow.closeSubpath();
    c.p.setBrush(mixColour(QColor(248, 248, 252), c.s.skyLow, layer.haze * 0.7));
    c.p.drawPath(snow);
  }
  return land;
}

// The wooded slopes of the nearest ridge: small crowns packed along it and down to the land.
void paintForestBand(Canvas& c, const RidgeLayer& layer, StableRandom& rnd) {
  const bool conifers = c.s.flora.woods != TreeKind::Hardwood;
  const Skyline skyline(c.s.relief, rnd);
  const QColor base = mixColour(c.s.forest, c.s.skyLow, layer.haze);
  const int count = int(c.span() / (conifers ? 2.2 : 3.0));
  for (int i = 0; i < count; ++i) {
    const double x = rnd.between(0, c.r.width);
    const double top = layer.base - layer.amplitude * skyline.at(x, c.r.width);
    const double y = top + std::pow(rnd.unit(), 1.5) * (c.horizonY - top + 2 * c.unit);
    const double h = (3 + 7 * (y - top) / std::max(1.0, c.horizonY - top)) * c.unit * rnd.between(0.7, 1.3);
    const QColor colour = base.lighter(int(rnd.between(80, 120)));
    drawAcrossSeam(x - h, x + h, c.r.width, c.r.seamless, [&](double shift) {
      c.p.setBrush(colour);
      if (conifers)
        c.p.drawPolygon(QPolygonF(
            {QPointF(x + shift, y - h), QPointF(x + shift + h * 0.22, y), QPointF(x + shift - h * 0.22, y)}));
      else
        c.p.drawEllipse(QPointF(x + shift, y - h * 0.4), h * 0.45, h * 0.4);
    });
  }
}

QPainterPath paintRidges(Canvas& c, StableRandom& rnd) {
  const double h = c.r.height;
  const double height = h * c.s.ridgeHeight;
  const RidgeLayer layers[] = {
      {c.horizonY - 2 * c.unit, height * 1.0 + 6 * c.unit, 0.55, c.s.ridge, c.s.peakSnow},
      {c.horizonY, height * 0.6 + 5 * c.unit, 0.3, mixColour(c.s.ridge, c.s.forest, 0.5), c.s.peakSnow * 0.7},
      {c.horizonY + 1 * c.unit, height * 0.28 + 4 * c.unit, 0.12, c.s.forest, c.s.peakSnow * 0.25},
  };
  QPainterPath nearest;
  for (const RidgeLayer& layer : layers) nearest = paintRidge(c, layer, rnd);
  if (c.s.relief != Relief::Plains) paintForestBand(c, layers[2], rnd);
  return nearest;
}

double depthAt(const Canvas& c, double y) {
  return std::clamp((y - c.horizonY) / (c.r.height - c.horizonY), 0.0, 1.0);
}

// Leaf litter, grass, meadow or snow drifts, each mark growing toward the viewer.
void paintGround(Canvas& c, StableRandom& rnd) {
  QLinearGradient ground(0, c.horizonY, 0, c.r.height);
  ground.setColorAt(0, mixColour(c.s.groundFar, c.s.skyLow, 0.25));
  ground.setColorAt(0.3, c.s.groundFar);
  ground.setColorAt(1, c.s.groundNear);
  c.p.fillRect(QRectF(0, c.horizonY, c.r.width, c.r.height - c.horizonY), ground);
  // Snow lies in broad drifts: fewer, larger marks than leaves or grass.
  const double spacing = c.s.texture == Texture::Snow ? 160 : 40;
  const int marks = int(c.r.width * (c.r.height - c.horizonY) / (spacing * c.unit * c.unit));
  for (int i = 0; i < marks; ++i) {
    const double y = c.horizonY + std::sqrt(rnd.unit()) * (c.r.height - c.horizonY);
    const double d = depthAt(c, y), size = (0.8 + 9 * d) * c.unit;
    const double x = rnd.between(0, c.r.width);
    const bool snow = rnd.unit() < c.s.flora.snow;
    drawAcrossSeam(x - size * 3, x + size * 3, c.r.width, c.r.seamless, [&](double shift) {
      if (snow) {
        const bool shade = c.s.texture == Texture::Snow && rnd.unit() < 0.4;
        // A patch of a few overlapping drifts reads as snow lying in the grass, not as a disc.
        c.p.setBrush(shade ? QColor(190, 204, 228, 50) : QColor(250, 252, 255, 90));
        for (int k = 0; k < 3; ++k)
          c.p.drawEllipse(
              QPointF(x + shift + rnd.between(-1.5, 1.5) * size, y + rnd.between(-0.3, 0.3) * size),
              size * rnd.between(0.8, 2), size * rnd.between(0.25, 0.45));
        return;
      }
      const QColor mark = c.s.groundNear.lighter(int(rnd.between(75, 140)));
      if (c.s.texture == Texture::Leaves) {
        const QColor leaf = rnd.unit() < 0.3 ? QColor(0xa0622c) : mark;
        c.p.setBrush(withAlpha(leaf, 190));
        c.p.drawEllipse(QPointF(x + shift, y), size * 0.7, size * 0.3);
      } else {
        c.p.setPen(QPen(withAlpha(mark.lighter(c.s.texture == Texture::Grass ? 115 : 100), 200),
                        std::max(0.6, size * 0.12)));
        c.p.drawLine(QPointF(x + shift, y),
                     QPointF(x + shift + rnd.between(-0.6, 0.6) * size, y - size * 1.2));
        c.p.setPen(Qt::NoPen);
      }
    });
  }
}

void paintRiver(Canvas& c, StableRandom& rnd) {
  const double y = c.horizonY + (c.r.height - c.horizonY) * rnd.between(0.12, 0.3);
  const double phase = rnd.between(0, kTurn);
  QPainterPath bank;
  const int step = int(8 * c.unit);
  for (int x = 0; x <= c.r.width; x += step) {
    const double wobble = std::sin(x * kTurn / c.r.width * 3 + phase) * 6 * c.unit;
    x == 0 ? bank.moveTo(x, y + wobble) : bank.lineTo(x, y + wobble);
  }
  for (int x = c.r.width / step * step; x >= 0; x -= step) {
    const double wobble = std::sin(x * kTurn / c.r.width * 3 + phase) * 6 * c.unit;
    bank.lineTo(x, y + wobble + (5 + 3 * std::sin(x * kTurn / c.r.width * 7)) * c.unit);
  }
  bank.closeSubpath();
  QLinearGradient ice(0, y - 6 * c.unit, 0, y + 12 * c.unit);
  ice.setColorAt(0, c.s.flora.water.darker(115));
  ice.setColorAt(1, c.s.flora.water.lighter(115));
  c.p.setBrush(ice);
  c.p.drawPath(bank);
}

void paintPonds(Canvas& c, const PlaceTraits& t, StableRandom& rnd) {
  const int count = t.lake ? 1 : 2;
  for (int i = 0; i < count; ++i) {
    const double w = (t.lake ? 0.45 : rnd.between(0.08, 0.15)) * c.r.width;
    const double y = c.horizonY + rnd.between(0.06, t.lake ? 0.1 : 0.3) * (c.r.height - c.horizonY);
    const double h = std::max(4 * c.unit, (y - c.horizonY) * (t.lake ? 1.4 : 0.5));
    const double x = rnd.between(0, c.r.width);
    drawAcrossSeam(x - w / 2, x + w / 2, c.r.width, c.r.seamless, [&](double shift) {
      StableRandom same(uint64_t(x * 31 + i));
      paintFrozenWater(c.p, QRectF(x + shift - w / 2, y, w, h), c.s.flora, same);
    });
  }
}

TreeKind pickTree(const Scenery& s, const PlaceTraits& t, StableRandom& rnd) {
  return rnd.unit() < t.secondShare ? t.second : s.flora.woods;
}

// Trees in groves with open ground between, far ones first so near ones stand in front.
void paintTrees(Canvas& c, const PlaceTraits& t, StableRandom& rnd) {
  const int count = int(c.s.trees * t.treeFactor * c.span() / 1000.0);
  struct Stand {
    QPointF foot;
    TreeKind kind;
    uint64_t seed;
  };
  QList<Stand> trees;
  const int groves = std::max(3, count / 6);
  QList<double> centres;
  for (int g = 0; g < groves; ++g) centres << rnd.between(0, c.r.width);
  for (int i = 0; i < count; ++i) {
    const double d = std::pow(rnd.unit(), 2.3);
    const double spread = c.r.width * (0.02 + 0.08 * d);
    const double x =
        std::fmod(centres[rnd.below(groves)] + rnd.between(-spread, spread) + c.r.width, c.r.width);
    trees << Stand{QPointF(x, c.horizonY + (1 + d * (c.r.height - c.horizonY - 1))), pickTree(c.s, t, rnd),
                   rnd.next()};
  }
  if (t.clearing)
    trees.removeIf([&](const Stand& tree) {
      return tree.foot.x() > c.r.width * 0.2 && tree.foot.x() < c.r.width * 0.82 &&
             depthAt(c, tree.foot.y()) > 0.06;
    });
  std::sort(trees.begin(), trees.end(),
            [](const Stand& a, const Stand& b) { return a.foot.y() < b.foot.y(); });
  for (const Stand& tree : trees) {
    // Seen from a stand some metres up: a tree's height grows with how far below the horizon
    // its foot lies.
    const double h = (tree.foot.y() - c.horizonY) * 3.2 + 6 * c.unit;
    drawAcrossSeam(tree.foot.x() - h * 0.4, tree.foot.x() + h * 0.4, c.r.width, c.r.seamless,
                   [&](double shift) {
                     StableRandom same(tree.seed);  // the copy across the seam is the same tree
                     paintTree(c.p, tree.kind, tree.foot + QPointF(shift, 0), h, c.s.flora.snow, same);
                   });
  }
}

void paintUndergrowth(Canvas& c, const PlaceTraits& t, StableRandom& rnd) {
  const int shrubs = int(c.s.shrubs * t.shrubFactor * c.span() / 1000.0);
  const int rocks = int(c.s.rocks * t.rockFactor * c.span() / 1000.0);
  for (int i = 0; i < shrubs + rocks; ++i) {
    const double y = c.horizonY + std::pow(rnd.unit(), 1.5) * (c.r.height - c.horizonY);
    const double x = rnd.between(0, c.r.width), w = (4 + 60 * depthAt(c, y)) * c.unit;
    const uint64_t seed = rnd.next();
    drawAcrossSeam(x - w, x + w, c.r.width, c.r.seamless, [&](double shift) {
      StableRandom same(seed);
      if (i < shrubs)
        paintShrub(c.p, c.s.flora.brush, QPointF(x + shift, y), w, c.s.flora.snow, same);
      else
        paintRocks(c.p, QPointF(x + shift, y), w, c.s.flora.stone, c.s.flora.snow, same);
    });
  }
}

}  // namespace

Flora floraOf(QChar world) {
  return sceneryOf(world).flora;
}

void paintFrozenWater(QPainter& p, const QRectF& area, const Flora& flora, StableRandom& rnd) {
  p.save();
  p.setPen(Qt::NoPen);
  QLinearGradient ice(area.topLeft(), area.bottomLeft());
  ice.setColorAt(0, flora.water.darker(112));
  ice.setColorAt(1, flora.water.lighter(112));
  p.setBrush(ice);
  p.drawEllipse(area);
  p.setBrush(QColor(255, 255, 255, 90));
  for (int k = 0; k < 3; ++k)
    p.drawEllipse(QRectF(area.left() + area.width() * rnd.between(0.15, 0.6),
                         area.top() + area.height() * 0.35, area.width() * 0.25, area.height() * 0.12));
  const QColor reed = flora.snow > 0.5 ? QColor(250, 252, 255) : QColor(0x9a7e4a);
  p.setBrush(reed);
  const double reedHeight = std::max(2.0, area.height() * 0.35);
  for (int k = 0; k < 24; ++k) {
    const double a = rnd.between(0, 6.2832);
    const QPointF at(area.center().x() + std::cos(a) * area.width() / 2,
                     area.center().y() + std::sin(a) * area.height() / 2);
    p.drawRect(QRectF(at.x(), at.y() - reedHeight, std::max(1.0, reedHeight * 0.06), reedHeight));
  }
  p.restore();
}

QImage paintLandscape(const LandscapeRequest& r, const QString& description) {
  const Scenery s = sceneryOf(r.world);
  StableRandom rnd(QString(r.world) + r.variant);
  QImage image(r.width, r.height, QImage::Format_RGB32);
  image.fill(s.skyLow);
  QPainter p(&image);  // ends before the picture is handed on, so the caller may paint on it
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  Canvas c{p, r, s, r.height * r.horizon, r.height / 384.0};
  const PlaceTraits traits = traitsOf(s, description);
  paintSky(c, rnd);
  paintRidges(c, rnd);
  paintGround(c, rnd);
  if (traits.river) paintRiver(c, rnd);
  if (traits.water || traits.lake) paintPonds(c, traits, rnd);
  paintPlaceGround(p, description, r.width, r.height, c.horizonY, s.flora);
  paintUndergrowth(c, traits, rnd);
  paintTrees(c, traits, rnd);
  p.end();
  return image;
}

}  // namespace worldgen
