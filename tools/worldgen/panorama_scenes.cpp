// SPDX-License-Identifier: GPL-2.0-or-later
// Where hotspots sit in each kind of place, and the outdoor places: trail points painted as
// what lies there, signposts lettered with where their paths lead.
#include "tools/worldgen/panorama_scenes.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/place_features.h"
#include "tools/worldgen/stable_random.h"
#include "tools/worldgen/trees.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace worldgen {

namespace {

// A trail marker: a stake with orange flagging, so the spot reads as a place to walk to.
void paintFlagging(QPainter& p, const QRect& a) {
  p.setPen(Qt::NoPen);
  const double x = a.right() - a.width() * 0.15, u = a.height() / 50.0;
  p.setBrush(QColor(0x6a5038));
  p.drawRect(QRectF(x - u, a.bottom() - a.height() * 0.45, 2 * u, a.height() * 0.45));
  p.setBrush(QColor(0xff6a10));
  p.drawRect(QRectF(x + u, a.bottom() - a.height() * 0.44, a.width() * 0.12, 3 * u));
}

// What lies at a trail point, by its terrain: open grass, woods, brush, rock, water or snow.
void paintTrailPoint(QPainter& p, QChar world, const Spot& s) {
  const QRectF a = s.area;
  const Flora flora = floraOf(world);
  StableRandom rnd(s.name);
  const QPointF foot(a.center().x(), a.bottom() - a.height() * 0.1);
  switch (s.terrain) {
    case 2:  // woods: a few trees standing together
      for (int k = 0; k < 3; ++k)
        paintTree(p, k == 1 ? flora.second : flora.woods,
                  foot + QPointF((k - 1) * a.width() * 0.3, -k * 0.03 * a.height()),
                  a.height() * rnd.between(1.3, 1.9), flora.snow, rnd);
      break;
    case 3:  // brush
      for (int k = 0; k < 3; ++k)
        paintShrub(p, flora.brush, foot + QPointF((k - 1) * a.width() * 0.28, 0), a.width() * 0.5, flora.snow,
                   rnd);
      break;
    case 4: paintRocks(p, foot, a.width() * 0.8, flora.stone, flora.snow, rnd); break;
    case 5:
      paintFrozenWater(p, QRectF(a.left(), a.bottom() - a.height() * 0.3, a.width(), a.height() * 0.25),
                       flora, rnd);
      break;
    case 6:
      p.setBrush(QColor(246, 249, 253));
      p.drawEllipse(QRectF(a.left(), a.bottom() - a.height() * 0.3, a.width(), a.height() * 0.25));
      break;
    default:  // open ground: a worn spot in the grass
      paintShrub(p, ShrubKind::Grass, foot, a.width() * 0.7, flora.snow, rnd);
  }
  paintFlagging(p, s.area);
}

// A trail sign: a post and a board pointing the way, lettered with where it leads.
void paintSignpost(QPainter& p, const QRect& a, const QString& text) {
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x5a4630));
  p.drawRect(QRectF(a.center().x() - a.width() * 0.04, a.top() + a.height() * 0.2, a.width() * 0.08,
                    a.height() * 0.8));
  const QRectF board(a.left() + a.width() * 0.05, a.top() + a.height() * 0.18, a.width() * 0.9,
                     a.height() * 0.26);
  const QPolygonF arrow({board.topLeft(), board.topRight() - QPointF(board.height() / 2, 0),
                         QPointF(board.right(), board.center().y()),
                         board.bottomRight() - QPointF(board.height() / 2, 0), board.bottomLeft()});
  p.setBrush(QColor(0x3a2a1a));
  p.drawPolygon(arrow.translated(1.5, 1.5));
  p.setBrush(QColor(0xa88458));
  p.drawPolygon(arrow);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setBold(true);
  font.setPixelSize(std::max(6, int(board.height() * 0.55)));
  const double room = board.width() - board.height() * 0.7;
  while (font.pixelSize() > 6 && QFontMetricsF(font).horizontalAdvance(text) > room)
    font.setPixelSize(font.pixelSize() - 1);
  p.setFont(font);
  p.setPen(QColor(0x2a1a0a));
  p.drawText(board.adjusted(0, 0, -board.height() / 2, 0), Qt::AlignCenter, text);
  p.setPen(Qt::NoPen);
}

// Where a path leads, as its sign says it.
QString signText(const QString& name) {
  if (name.back().isDigit()) return QStringLiteral("STAND ") + name.back();
  if (name.contains(QStringLiteral("lodge"))) return QStringLiteral("LODGE");
  if (name.contains(QStringLiteral("camp"))) return QStringLiteral("CAMP");
  return QStringLiteral("FORK");
}

bool isCamp(const QStringList& names) {
  return names.size() == 2 && names[0] == u"^3lodge";
}

QList<Spot> campLayout(const QStringList& names, int width, int height) {
  return {Spot{names[0], QRect(int(width * 0.27), int(height * 0.5), int(width * 0.085), int(height * 0.2))},
          Spot{names[1], QRect(int(width * 0.78), int(height * 0.42), width / 30, height / 4)}};
}

}  // namespace

QList<Spot> layoutSpots(const QStringList& names, int width, int height) {
  if (names.contains(QStringLiteral("!outfit"))) return lodgeLayout(names, width, height);
  if (isCamp(names)) return campLayout(names, width, height);
  if (names.contains(QStringLiteral(":0"))) return rangeLayout(names, width, height);
  if (names.contains(QStringLiteral("^3lodge")) && names.contains(QStringLiteral("^camp")))
    return mapLayout(names, width, height);
  QList<Spot> spots;
  const int n = int(names.size());
  for (int i = 0; i < n; ++i) {
    const bool trail = names[i].startsWith(u'~');
    const int row = trail ? i % 3 : 0;  // far, middle and near trail points
    const double grow = trail ? 0.75 + 0.3 * row : 1.0;
    const int w = int(width / (trail ? 30 : 32) * grow), h = int(height / (trail ? 8 : 4) * grow);
    const int y = int(height * (trail ? 0.56 + 0.1 * row : 0.44)) - h / 2;
    spots << Spot{names[i], QRect((i * 2 + 1) * width / (2 * n) - w / 2, std::max(0, y), w, h)};
  }
  return spots;
}

QImage paintOutdoorPlace(QChar world, const QString& variant, const QString& description, int width,
                         int height, const QList<Spot>& spots) {
  QImage image = paintLandscape({world, variant, width, height, 0.5, true}, description);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  paintPlaceStructure(p, description, width, height);
  if (variant.contains(QStringLiteral("camp"))) paintCamp(p, world, width, height, spots);
  for (const Spot& s : spots) {
    if (s.name.startsWith(u'~'))
      paintTrailPoint(p, world, s);
    else if (!(variant.contains(QStringLiteral("camp")) && s.name == u"^3lodge"))
      paintSignpost(p, s.area, signText(s.name));
  }
  p.end();
  return image;
}

}  // namespace worldgen
