// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/panorama_scenes.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/stable_random.h"

#include <QPainter>
#include <QPainterPath>

namespace worldgen {

namespace {

// A trail marker: trampled ground and a stake with orange flagging.
void paintTrailMark(QPainter& p, const QRect& a) {
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(150, 130, 100, 120));
  p.drawEllipse(QRectF(a.left(), a.bottom() - a.height() * 0.25, a.width(), a.height() * 0.25));
  const double x = a.center().x();
  p.setBrush(QColor(0x6a5038));
  p.drawRect(QRectF(x - 1.5, a.top() + a.height() * 0.3, 3, a.height() * 0.65));
  p.setBrush(QColor(0xff6a10));
  p.drawRect(QRectF(x + 1, a.top() + a.height() * 0.32, a.width() * 0.18, 4));
}

// A trail sign: a post and a board pointing the way.
void paintSignpost(QPainter& p, const QRect& a) {
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x5a4630));
  p.drawRect(QRectF(a.center().x() - 2, a.top() + a.height() * 0.2, 4, a.height() * 0.8));
  p.setBrush(QColor(0x9a7a50));
  const QRectF board(a.left() + a.width() * 0.1, a.top() + a.height() * 0.2, a.width() * 0.8,
                     a.height() * 0.22);
  p.drawPolygon(QPolygonF({board.topLeft(), board.topRight() - QPointF(board.height() / 2, 0),
                           QPointF(board.right(), board.center().y()),
                           board.bottomRight() - QPointF(board.height() / 2, 0), board.bottomLeft()}));
}

QColor paneColour(int i) {
  const QRgb colours[] = {0x8a3a2a, 0x3a5a3a, 0x2a3a5a, 0x6a5a2a, 0x5a2a4a};
  return QColor(colours[i % 5]);
}

// A counter, a shelf or a person of the lodge, by what the hotspot does.
void paintLodgeThing(QPainter& p, const Spot& s, int i) {
  const QRectF a = s.area;
  p.setPen(QPen(QColor(0x2a1a10), 2));
  switch (s.name.at(0).unicode()) {
    case '@':  // a person behind the counter
      p.setBrush(paneColour(i));
      p.drawRoundedRect(
          QRectF(a.left() + a.width() * 0.2, a.top() + a.height() * 0.3, a.width() * 0.6, a.height() * 0.7),
          8, 8);
      p.setBrush(QColor(0xe0b898));
      p.drawEllipse(QRectF(a.center().x() - a.width() * 0.15, a.top(), a.width() * 0.3, a.height() * 0.3));
      p.setBrush(QColor(0x5a3a20));
      p.drawRect(QRectF(a.center().x() - a.width() * 0.2, a.top(), a.width() * 0.4, a.height() * 0.08));
      break;
    case '^':  // the door out
      p.setBrush(QColor(0x4a3020));
      p.drawRect(a);
      p.setBrush(QColor(0xd8e4ee));
      p.drawRect(a.adjusted(a.width() * 0.2, a.height() * 0.1, -a.width() * 0.2, -a.height() * 0.55));
      break;
    default:  // counters, shelves, the screen and the desks
      p.setBrush(QColor(0x7a5232));
      p.drawRect(QRectF(a.left(), a.center().y(), a.width(), a.height() / 2));
      p.setBrush(paneColour(i + 2).lighter(150));
      for (int k = 0; k < 4; ++k)
        p.drawRect(
            QRectF(a.left() + k * a.width() / 4 + 3, a.top() + 4, a.width() / 4 - 6, a.height() / 2 - 8));
  }
  p.setPen(QColor(0xf0e0c0));
  p.drawText(QRectF(a.left(), a.bottom() - 18, a.width(), 16), Qt::AlignCenter, s.name.mid(1));
}

}  // namespace

QList<Spot> layoutSpots(const QStringList& names, int width, int height) {
  QList<Spot> spots;
  const int n = int(names.size());
  for (int i = 0; i < n; ++i) {
    const bool trail = names[i].startsWith(u'~');
    const int w = width / (trail ? 28 : 18), h = height / (trail ? 7 : 4);
    const int row = trail ? i % 3 : 0;  // far, middle and near trail points
    const int y = int(height * (0.52 + 0.1 * row)) - h / 2;
    spots << Spot{names[i], QRect((i * 2 + 1) * width / (2 * n) - w / 2, std::max(0, y), w, h)};
  }
  return spots;
}

QImage paintOutdoorPlace(QChar world, const QString& variant, int width, int height,
                         const QList<Spot>& spots) {
  QImage image = paintLandscape({world, variant, width, height, 0.5, true});
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  for (const Spot& s : spots) s.name.startsWith(u'~') ? paintTrailMark(p, s.area) : paintSignpost(p, s.area);
  return image;
}

QImage paintLodge(const QList<Spot>& spots) {
  QImage image(kPanoramaWidth, kPanoramaHeight, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient wall(0, 0, 0, kPanoramaHeight * 0.7);
  wall.setColorAt(0, QColor(0x6a4428));
  wall.setColorAt(1, QColor(0x9a6a40));
  p.fillRect(image.rect(), wall);
  p.setPen(QPen(QColor(0x55361f), 2));
  for (int y = 8; y < kPanoramaHeight * 0.7; y += 22) p.drawLine(0, y, kPanoramaWidth, y);  // log walls
  p.fillRect(QRect(0, int(kPanoramaHeight * 0.7), kPanoramaWidth, kPanoramaHeight), QColor(0x5a3a22));
  p.setPen(QPen(QColor(0x4a2e1a), 1));
  for (int x = 0; x < kPanoramaWidth; x += 40)
    p.drawLine(x, int(kPanoramaHeight * 0.7), x - 60, kPanoramaHeight);
  for (int i = 0; i < 6; ++i) {  // windows onto the snow
    const QRect win(160 + i * 340, 60, 90, 70);
    p.fillRect(win, QColor(0xdde6ee));
    p.setPen(QPen(QColor(0x3a2414), 5));
    p.drawRect(win);
  }
  for (int i = 0; i < spots.size(); ++i) paintLodgeThing(p, spots[i], i);
  return image;
}

QImage paintRange(const QList<Spot>& spots) {
  QImage image =
      paintLandscape({QChar(u'D'), QStringLiteral("range"), kPanoramaWidth, kPanoramaHeight, 0.5, true});
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  for (const Spot& s : spots) {
    if (s.name.startsWith(u'^')) {
      paintSignpost(p, s.area);
      continue;
    }
    const QRectF board = QRectF(s.area).adjusted(6, 4, -6, -s.area.height() * 0.3);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x5a4630));
    p.drawRect(QRectF(board.center().x() - 3, board.bottom(), 6, s.area.height() * 0.3));
    p.setBrush(QColor(0xf2efe6));
    p.drawRect(board);
    for (int ring = 3; ring >= 1; --ring) {
      p.setBrush(ring % 2 ? QColor(0x202020) : QColor(0xf2efe6));
      const double r = board.width() * ring / 8.0;
      p.drawEllipse(board.center(), r, r);
    }
  }
  return image;
}

QImage paintMap(QChar world, const QList<Spot>& spots) {
  QImage image = paintLandscape({world, QStringLiteral("map"), kPanoramaWidth, kPanoramaHeight, 0.35, true});
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF sheet(0, kPanoramaHeight * 0.45, kPanoramaWidth, kPanoramaHeight * 0.5);
  p.fillRect(sheet, QColor(0xe8dcc0));  // the map spread out on the hood of the truck
  p.setPen(QPen(QColor(0x4a7a9a), 3));
  p.drawLine(sheet.left(), sheet.center().y() + 20, sheet.right(), sheet.center().y() - 10);
  p.setPen(QPen(QColor(0xb0a080), 1, Qt::DashLine));
  for (int k = 1; k < 5; ++k)
    p.drawLine(sheet.left(), sheet.top() + k * 36, sheet.right(), sheet.top() + k * 36);
  QFont font = p.font();
  font.setPixelSize(20);
  font.setBold(true);
  p.setFont(font);
  for (const Spot& s : spots) {
    p.setPen(QPen(QColor(0x7a2a1a), 3));
    p.setBrush(QColor(0xf4e8d0));
    p.drawEllipse(QRectF(s.area).adjusted(8, 8, -8, -8));
    const QString place = s.name.mid(1);
    const QString label = place.back().isDigit()                    ? place.right(1)
                          : place.contains(QStringLiteral("lodge")) ? QStringLiteral("lodge")
                                                                    : QStringLiteral("camp");
    p.drawText(s.area, Qt::AlignCenter, label);
  }
  return image;
}

}  // namespace worldgen
