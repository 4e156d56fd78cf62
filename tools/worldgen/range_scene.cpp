// SPDX-License-Identifier: GPL-2.0-or-later
// The target range behind the lodge: four lanes before an earth backstop, one per weapon
// class, a shooting bench in front and the lodge's back door behind the hunter.
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/stable_random.h"

#include <QFontMetricsF>
#include <QPainterPath>

namespace worldgen {

namespace {

struct Lane {
  QChar target;  // the weapon class after ':'
  double x;      // centre, fraction of the turn
  double foot;   // where the frame stands, fraction of the height
  double size;   // height of the target face, fraction of the height
  const char* label;
};

// Nearer lanes for the short-range weapons, the rifle lane out on the backstop.
const Lane kLanes[] = {
    {u'1', 0.37, 0.76, 0.17, "BOW 20 YDS"},
    {u'0', 0.45, 0.7, 0.13, "HANDGUN 25 YDS"},
    {u'2', 0.53, 0.63, 0.09, "SHOTGUN & .54 50 YDS"},
    {u'3', 0.6, 0.565, 0.055, "RIFLE 100 YDS"},
};

const Lane* laneOf(const QString& name) {
  for (const Lane& lane : kLanes)
    if (name == QStringLiteral(":") + lane.target) return &lane;
  return nullptr;
}

void paintLabel(QPainter& p, const QRectF& under, const QString& text) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setBold(true);
  font.setPixelSize(std::max(7, int(under.height() * 0.16)));
  p.setFont(font);
  const double width = QFontMetricsF(font).horizontalAdvance(text) + font.pixelSize();
  const QRectF board(under.center().x() - width / 2, under.bottom() + 2, width, font.pixelSize() * 1.5);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x5a4630));
  p.drawRect(board);
  p.setPen(QColor(0xf4ecd0));
  p.drawText(board, Qt::AlignCenter, text);
  p.setPen(Qt::NoPen);
}

// A target on its frame: rings for guns, a straw bale with coloured rings for bows.
void paintTarget(QPainter& p, const QRect& area, const Lane& lane) {
  const QRectF a = area;
  const double legs = a.height() * 0.25;
  const QRectF face(a.left() + a.width() * 0.08, a.top(), a.width() * 0.84, a.height() - legs);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x5a4630));
  p.drawRect(QRectF(face.left() + face.width() * 0.1, face.bottom(), face.width() * 0.07, legs));
  p.drawRect(QRectF(face.right() - face.width() * 0.17, face.bottom(), face.width() * 0.07, legs));
  const QPointF c = face.center();
  const double r = std::min(face.width(), face.height()) * 0.45;
  if (lane.target == u'1') {
    p.setBrush(QColor(0xd8b868));
    p.drawRoundedRect(face, r * 0.1, r * 0.1);
    p.setBrush(QColor(0xb89848));
    for (int k = 1; k < 4; ++k)
      p.drawRect(QRectF(face.left(), face.top() + face.height() * k / 4.0 - 1, face.width(), 2));
    const QColor rings[] = {QColor(0xf4f4f0), QColor(0x202020), QColor(0x3a7ad0), QColor(0xd83020),
                            QColor(0xf8d020)};
    for (int k = 0; k < 5; ++k) {
      p.setBrush(rings[k]);
      p.drawEllipse(c, r * (1 - k * 0.18), r * (1 - k * 0.18));
    }
    return;
  }
  p.setBrush(QColor(0x8a7a60));
  p.drawRect(face.adjusted(-2, -2, 2, 2));
  p.setBrush(QColor(0xf2efe6));
  p.drawRect(face);
  for (int ring = 5; ring >= 1; --ring) {
    p.setBrush(ring <= 2 ? QColor(0x202020) : QColor(0xf2efe6));
    p.setPen(QPen(ring <= 2 ? QColor(0xf2efe6) : QColor(0x202020), std::max(0.5, r * 0.02)));
    p.drawEllipse(c, r * ring / 5.0, r * ring / 5.0);
  }
  p.setPen(Qt::NoPen);
}

void paintBackstop(QPainter& p, int w, int h) {
  QPainterPath berm;
  berm.moveTo(w * 0.28, h * 0.6);
  berm.cubicTo(w * 0.32, h * 0.46, w * 0.64, h * 0.46, w * 0.7, h * 0.6);
  berm.closeSubpath();
  QLinearGradient earth(0, h * 0.46, 0, h * 0.6);
  earth.setColorAt(0, QColor(0xeef2f6));
  earth.setColorAt(0.3, QColor(0x9a8468));
  earth.setColorAt(1, QColor(0x6a5640));
  p.setBrush(earth);
  p.drawPath(berm);
}

void paintBench(QPainter& p, int w, int h) {
  p.setBrush(QColor(0x6a4a2a));
  p.drawPolygon(QPolygonF({QPointF(w * 0.455, h * 0.86), QPointF(w * 0.545, h * 0.86),
                           QPointF(w * 0.56, h * 0.93), QPointF(w * 0.44, h * 0.93)}));
  p.setBrush(QColor(0x4a3018));
  p.drawRect(QRectF(w * 0.45, h * 0.93, w * 0.008, h * 0.07));
  p.drawRect(QRectF(w * 0.542, h * 0.93, w * 0.008, h * 0.07));
  p.setBrush(QColor(0xb8a070));  // sandbags to rest the fore-end on
  p.drawRoundedRect(QRectF(w * 0.49, h * 0.85, w * 0.025, h * 0.03), h * 0.01, h * 0.01);
  p.drawRoundedRect(QRectF(w * 0.5, h * 0.895, w * 0.02, h * 0.025), h * 0.01, h * 0.01);
  p.setBrush(QColor(0x2a6a2a));  // an ammunition box
  p.drawRect(QRectF(w * 0.465, h * 0.875, w * 0.012, h * 0.02));
}

// The lodge's back wall with its door: the way back in.
void paintLodgeWall(QPainter& p, const QRect& door, int w, int h) {
  const double left = w * 0.82, right = w * 0.995, base = h * 0.72, top = h * 0.24;
  for (double y = base; y > top; y -= h * 0.035) {
    p.setBrush(QColor(0x8a5a32).lighter(int(100 + int((base - y) / (h * 0.035)) % 2 * 10)));
    p.drawRoundedRect(QRectF(left, y - h * 0.035, right - left, h * 0.035), h * 0.017, h * 0.017);
  }
  p.setBrush(QColor(0x3a2a1e));
  p.drawPolygon(QPolygonF(
      {QPointF(left - w * 0.01, top), QPointF((left + right) / 2, h * 0.1), QPointF(right + w * 0.01, top)}));
  p.setBrush(QColor(245, 248, 252));
  p.drawPolygon(QPolygonF({QPointF(left - w * 0.01, top), QPointF((left + right) / 2, h * 0.1),
                           QPointF(right + w * 0.01, top), QPointF(right, top + h * 0.015),
                           QPointF(left, top + h * 0.015)}));
  p.setBrush(QColor(0x6a6660));  // the stone foundation
  p.drawRect(QRectF(left, base, right - left, h * 0.03));
  p.setBrush(QColor(0xf0d890));  // a lit window
  p.drawRect(QRectF(w * 0.95, h * 0.42, w * 0.025, h * 0.1));
  p.setBrush(QColor(0x3a2212));
  p.drawRect(QRectF(door).adjusted(-3, -3, 3, 0));
  p.setBrush(QColor(0x7a4a26));
  p.drawRect(door);
  p.setBrush(QColor(0x1a1a1a));
  p.drawEllipse(QPointF(door.left() + door.width() * 0.2, door.center().y()), 2.5, 2.5);
}

}  // namespace

QList<Spot> rangeLayout(const QStringList& names, int width, int height) {
  QList<Spot> spots;
  for (const QString& name : names) {
    if (const Lane* lane = laneOf(name)) {
      const double h = lane->size * height / 0.75, w = lane->size * height * 1.1;
      spots << Spot{name, QRectF(lane->x * width - w / 2, lane->foot * height - h, w, h).toAlignedRect()};
    } else {
      spots << Spot{name,
                    QRect(int(width * 0.89), int(height * 0.44), int(width * 0.035), int(height * 0.28))};
    }
  }
  return spots;
}

QImage paintRange(const QList<Spot>& spots, int width, int height) {
  const int w = width, h = height;
  // Open snowy ground under the peaks, with no pond across the lanes.
  QImage image =
      paintLandscape({QChar(u'T'), QStringLiteral("range"), w, h, 0.5, true}, QStringLiteral("range"));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  paintBackstop(p, w, h);
  for (auto it = spots.rbegin(); it != spots.rend(); ++it) {  // far lanes first
    if (const Lane* lane = laneOf(it->name)) {
      paintTarget(p, it->area, *lane);
      paintLabel(p, it->area, QString::fromLatin1(lane->label));
    } else {
      paintLodgeWall(p, it->area, w, h);
    }
  }
  paintBench(p, w, h);
  p.end();
  return image;
}

}  // namespace worldgen
