// SPDX-License-Identifier: GPL-2.0-or-later
// The quick-hunt map: a hand-drawn chart of the world on old paper, wrapped round the viewer,
// with the lodge, the camp and the four stands marked where their hotspots lie.
#include "tools/worldgen/colour_mix.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/seam_wrap.h"
#include "tools/worldgen/stable_random.h"
#include "tools/worldgen/world_layout.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <optional>

namespace worldgen {

namespace {

const QColor kInk(0x4a3420);

struct Chart {
  QPainter& p;
  int w, h;
  StableRandom& rnd;
};

void paintPaper(Chart& c) {
  QLinearGradient paper(0, 0, 0, c.h);
  paper.setColorAt(0, QColor(0xd8c8a0));
  paper.setColorAt(0.15, QColor(0xeadcb8));
  paper.setColorAt(0.85, QColor(0xeadcb8));
  paper.setColorAt(1, QColor(0xcbb890));
  c.p.fillRect(QRect(0, 0, c.w, c.h), paper);
  for (int k = 0; k < 60; ++k) {  // age stains
    const double x = c.rnd.between(0, c.w), y = c.rnd.between(0, c.h),
                 r = c.rnd.between(10, 60) * c.h / 384.0;
    drawAcrossSeam(x - r, x + r, c.w, true, [&](double shift) {
      c.p.setBrush(QColor(150, 110, 60, int(c.rnd.between(8, 22))));
      c.p.drawEllipse(QPointF(x + shift, y), r * 1.4, r);
    });
  }
  c.p.setBrush(QColor(0x6a4a2a));  // the border bands top and bottom, with tick marks
  c.p.drawRect(QRectF(0, c.h * 0.04, c.w, c.h * 0.012));
  c.p.drawRect(QRectF(0, c.h * 0.946, c.w, c.h * 0.012));
  for (int x = 0; x < c.w; x += c.w / 72) {
    c.p.drawRect(QRectF(x, c.h * 0.052, 1.5, c.h * 0.02));
    c.p.drawRect(QRectF(x, c.h * 0.926, 1.5, c.h * 0.02));
  }
}

void paintMountain(Chart& c, QPointF at, double s, bool snow) {
  c.p.setBrush(QColor(0xb8a07a));
  c.p.drawPolygon(QPolygonF({at + QPointF(-s, 0), at + QPointF(0, -s * 1.1), at + QPointF(s, 0)}));
  c.p.setBrush(QColor(0x8a7050));
  c.p.drawPolygon(QPolygonF({at + QPointF(0, -s * 1.1), at + QPointF(s, 0), at + QPointF(s * 0.2, 0)}));
  if (snow) {
    c.p.setBrush(QColor(0xfaf8f0));
    c.p.drawPolygon(QPolygonF(
        {at + QPointF(-s * 0.3, -s * 0.77), at + QPointF(0, -s * 1.1), at + QPointF(s * 0.3, -s * 0.77)}));
  }
}

void paintTreeMark(Chart& c, QPointF at, double s, bool conifer) {
  c.p.setBrush(QColor(0x5a7a4a).lighter(int(c.rnd.between(90, 120))));
  if (conifer)
    c.p.drawPolygon(
        QPolygonF({at + QPointF(-s * 0.4, 0), at + QPointF(0, -s * 1.2), at + QPointF(s * 0.4, 0)}));
  else
    c.p.drawEllipse(at - QPointF(0, s * 0.5), s * 0.5, s * 0.5);
}

void paintWater(Chart& c, QPointF at, double s) {
  c.p.setBrush(QColor(0x8ab0c8));
  c.p.drawEllipse(at, s * 2.2, s * 0.8);
  c.p.setPen(QPen(QColor(0x4a7a9a), 1));
  c.p.setBrush(Qt::NoBrush);
  c.p.drawEllipse(at, s * 2.2, s * 0.8);
  c.p.setPen(Qt::NoPen);
}

// Country symbols in clusters over the chart: woods and hills, plains and ponds, peaks and timber.
void paintCountry(Chart& c, QChar world) {
  const double u = c.h / 384.0;
  const bool mountains = world == u'B' || world == u'T' || world == u'Y';
  const int clusters = world == u'D' ? 14 : 34;
  for (int k = 0; k < clusters; ++k) {
    const double cx = c.rnd.between(0, c.w), cy = c.rnd.between(0.2, 0.8) * c.h;
    const bool peaks = (mountains && c.rnd.unit() < 0.45) || (world == u'P' && c.rnd.unit() < 0.25);
    const int count = peaks ? 5 : world == u'D' ? 6 : 14;
    for (int m = 0; m < count; ++m) {
      const double x = cx + c.rnd.between(-70, 70) * u,
                   y = std::clamp(cy + c.rnd.between(-40, 40) * u, 0.16 * c.h, 0.86 * c.h);
      const double size = c.rnd.between(0.8, 1.3);
      const bool conifer = mountains || (world == u'P' && c.rnd.unit() < 0.2);
      drawAcrossSeam(x - 40 * u, x + 40 * u, c.w, true, [&](double shift) {
        const QPointF at(x + shift, y);
        if (peaks)
          paintMountain(c, at, (mountains ? 26 : 13) * u * size, mountains && world != u'B');
        else
          paintTreeMark(c, at, 10 * u * size, conifer);
      });
    }
  }
  if (world == u'D')  // grass marks over the open plains
    for (int k = 0; k < 300; ++k) {
      const double x = c.rnd.between(0, c.w), y = c.rnd.between(0.16, 0.86) * c.h;
      c.p.setPen(QPen(QColor(0x9a8a50), 1.2 * u));
      for (int b = -1; b <= 1; ++b) c.p.drawLine(QPointF(x, y), QPointF(x + b * 3 * u, y - 5 * u));
      c.p.setPen(Qt::NoPen);
    }
  for (int k = 0; k < (world == u'D' ? 10 : 3); ++k) {
    const double x = c.rnd.between(0, c.w), y = c.rnd.between(0.2, 0.85) * c.h;
    drawAcrossSeam(x - 60 * u, x + 60 * u, c.w, true,
                   [&](double shift) { paintWater(c, QPointF(x + shift, y), (world == u'Y' ? 26 : 9) * u); });
  }
  // A river winding along the whole turn.
  QPainterPath river;
  const double phase = c.rnd.between(0, 6.28);
  for (int x = 0; x <= c.w; x += 8) {
    const double y = c.h * (0.8 + 0.06 * std::sin(x * 6.2832 / c.w * 4 + phase));
    x == 0 ? river.moveTo(x, y) : river.lineTo(x, y);
  }
  c.p.setBrush(Qt::NoBrush);
  c.p.setPen(QPen(QColor(0x5a8aaa), 3 * u));
  c.p.drawPath(river);
  c.p.setPen(Qt::NoPen);
}

void paintTitle(Chart& c, const QString& title) {
  const QRectF card(c.w * 0.01, c.h * 0.1, c.w * 0.2, c.h * 0.14);
  c.p.setBrush(QColor(0xf4ead0));
  c.p.setPen(QPen(kInk, 2));
  c.p.drawRect(card);
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setBold(true);
  font.setPixelSize(int(card.height() * 0.38));
  c.p.setFont(font);
  c.p.setPen(kInk);
  c.p.drawText(card, Qt::AlignCenter, title);
  c.p.setPen(Qt::NoPen);
}

// The compass rose points north at the heading the map faces first.
void paintCompass(Chart& c, QPointF at, double r) {
  c.p.setBrush(QColor(0xf4ead0));
  c.p.setPen(QPen(kInk, 1.5));
  c.p.drawEllipse(at, r, r);
  c.p.setPen(Qt::NoPen);
  for (int k = 0; k < 4; ++k) {
    const double a = k * 1.5708;
    const QPointF tip = at + QPointF(std::sin(a) * r * 0.95, -std::cos(a) * r * 0.95);
    const QPointF side = at + QPointF(std::sin(a + 0.5) * r * 0.2, -std::cos(a + 0.5) * r * 0.2);
    c.p.setBrush(k == 0 ? QColor(0xa02a1a) : kInk);
    c.p.drawPolygon(QPolygonF({at, side, tip}));
  }
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setBold(true);
  font.setPixelSize(int(r * 0.45));
  c.p.setFont(font);
  c.p.setPen(kInk);
  c.p.drawText(QRectF(at.x() - r, at.y() - r * 1.6, 2 * r, r * 0.6), Qt::AlignCenter, QStringLiteral("N"));
  c.p.setPen(Qt::NoPen);
}

// The mark of a place: a stand's ladder, the camp's tent or the lodge's roof, and its name.
void paintPlaceMark(Chart& c, const Spot& s) {
  const QRectF a = s.area;
  const QString place = s.name.mid(1);
  const QRectF icon(a.center().x() - a.height() * 0.3, a.top() + a.height() * 0.05, a.height() * 0.6,
                    a.height() * 0.55);
  c.p.setBrush(QColor(244, 234, 208, 220));
  c.p.setPen(QPen(QColor(0xa02a1a), 2.5));
  c.p.drawEllipse(icon.center(), icon.width() * 0.62, icon.height() * 0.62);
  c.p.setPen(Qt::NoPen);
  c.p.setBrush(QColor(0xa02a1a));
  QString label;
  if (place.back().isDigit()) {
    label = QStringLiteral("Stand ") + place.back();
    c.p.drawRect(QRectF(icon.left() + icon.width() * 0.3, icon.top() + icon.height() * 0.15,
                        icon.width() * 0.4, icon.height() * 0.2));
    c.p.drawRect(QRectF(icon.left() + icon.width() * 0.35, icon.top() + icon.height() * 0.35,
                        icon.width() * 0.06, icon.height() * 0.55));
    c.p.drawRect(QRectF(icon.left() + icon.width() * 0.59, icon.top() + icon.height() * 0.35,
                        icon.width() * 0.06, icon.height() * 0.55));
  } else if (place.contains(QStringLiteral("lodge"))) {
    label = QStringLiteral("Lodge");
    c.p.drawPolygon(QPolygonF({QPointF(icon.left() + icon.width() * 0.15, icon.center().y()),
                               QPointF(icon.center().x(), icon.top() + icon.height() * 0.15),
                               QPointF(icon.right() - icon.width() * 0.15, icon.center().y())}));
    c.p.drawRect(QRectF(icon.left() + icon.width() * 0.25, icon.center().y(), icon.width() * 0.5,
                        icon.height() * 0.35));
  } else {
    label = QStringLiteral("Camp");
    c.p.drawPolygon(
        QPolygonF({QPointF(icon.left() + icon.width() * 0.15, icon.bottom() - icon.height() * 0.1),
                   QPointF(icon.center().x(), icon.top() + icon.height() * 0.15),
                   QPointF(icon.right() - icon.width() * 0.15, icon.bottom() - icon.height() * 0.1)}));
  }
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setBold(true);
  font.setItalic(true);
  font.setPixelSize(int(a.height() * 0.22));
  c.p.setFont(font);
  c.p.setPen(kInk);
  c.p.drawText(
      QRectF(a.left() - a.width() * 0.3, a.top() + a.height() * 0.72, a.width() * 1.6, a.height() * 0.28),
      Qt::AlignCenter, label);
  c.p.setPen(Qt::NoPen);
}

// Dashed trails from the lodge to the camp and on to each stand.
void paintTrails(Chart& c, const QList<Spot>& spots) {
  std::optional<QPointF> lodge, camp;
  for (const Spot& s : spots) {
    if (s.name.contains(QStringLiteral("lodge"))) lodge = s.area.center();
    if (s.name.contains(QStringLiteral("camp"))) camp = s.area.center();
  }
  if (!camp) return;
  c.p.setBrush(Qt::NoBrush);
  c.p.setPen(QPen(QColor(0x8a3a20), 2.2 * c.h / 384.0, Qt::DashLine));
  const auto trail = [&](QPointF from, QPointF to) {
    QPainterPath path(from);
    path.cubicTo(from + QPointF((to.x() - from.x()) * 0.4, -c.h * 0.12),
                 to - QPointF((to.x() - from.x()) * 0.4, -c.h * 0.1), to);
    c.p.drawPath(path);
  };
  if (lodge) trail(*lodge, *camp);
  for (const Spot& s : spots)
    if (s.name.back().isDigit()) trail(*camp, s.area.center());
  c.p.setPen(Qt::NoPen);
}

QString worldName(QChar letter) {
  for (const World& w : distinctAreas())
    if (w.letter == letter) return w.name;
  return QString(letter);
}

}  // namespace

QList<Spot> mapLayout(const QStringList& names, int width, int height) {
  QList<Spot> spots;
  const int n = int(names.size());
  for (int i = 0; i < n; ++i) {
    // Lodge and camp to the left of the chart's middle, the stands spread beyond them.
    const QString& name = names[i];
    const double x = name.contains(QStringLiteral("lodge"))  ? 0.3
                     : name.contains(QStringLiteral("camp")) ? 0.42
                                                             : 0.54 + 0.1 * i;
    const double y = 0.28 + 0.12 * ((i * 7) % 4);
    const int w = width / 22, h = height / 4;
    spots << Spot{name, QRect(int(x * width) - w / 2, int(y * height), w, h)};
  }
  return spots;
}

QImage paintMap(QChar world, const QList<Spot>& spots, int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(QColor(0xeadcb8));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  p.setPen(Qt::NoPen);
  StableRandom rnd(QStringLiteral("map") + world);
  Chart c{p, width, height, rnd};
  paintPaper(c);
  paintCountry(c, world);
  paintTrails(c, spots);
  for (const Spot& s : spots) paintPlaceMark(c, s);
  paintTitle(c, worldName(world) + QStringLiteral(" Hunting Grounds"));
  paintCompass(c, QPointF(width * 0.24, height * 0.2), height * 0.07);
  p.end();
  return image;
}

}  // namespace worldgen
