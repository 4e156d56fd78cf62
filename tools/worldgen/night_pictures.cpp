// SPDX-License-Identifier: GPL-2.0-or-later
// Night, end, jail and optics pictures shown full view over the hunting screen.
#include "tools/worldgen/night_pictures.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/lodge_outside.h"
#include "tools/worldgen/materials.h"
#include "tools/worldgen/picture_files.h"

#include <QPainterPath>

#include <cmath>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr QSize kFullView(800, 600);

QImage nightAtLodge() {
  QImage image = paintLandscape(
      {u'B', QStringLiteral("night lodge"), kFullView.width(), kFullView.height(), 0.5, false});
  makeNight(image, 0.5, 11);
  QPainter p(&image);
  drawLodgeOutside(p, QRectF(200, 250, 400, 300), true);
  return image;
}

QImage nightAtCamp() {
  QImage image = paintLandscape(
      {u'T', QStringLiteral("night camp"), kFullView.width(), kFullView.height(), 0.52, false});
  makeNight(image, 0.52, 12);
  QPainter p(&image);
  drawCamp(p, QRectF(170, 360, 460, 200));
  return image;
}

// The fireplace of the lodge with the season's trophy mounted over it.
QImage happyEnd() {
  QImage image(kFullView, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QStringLiteral("endgame"));
  paintWood(p, image.rect(), kPine, rnd, true);
  const QRectF hearth(220, 300, 360, 300);
  for (double y = hearth.top(); y < hearth.bottom(); y += 26)  // fieldstone
    for (double x = hearth.left() + (int(y) / 26 % 2) * 20; x < hearth.right(); x += 40) {
      p.setBrush(
          QColor::fromHsv(int(rnd.between(20, 40)), int(rnd.between(10, 50)), int(rnd.between(100, 160))));
      p.setPen(QPen(QColor(0x3a3430), 2));
      p.drawRoundedRect(QRectF(x, y, 38, 24), 8, 8);
    }
  const QRectF opening(300, 420, 200, 180);
  p.setBrush(QColor(0x140a04));
  p.drawRoundedRect(opening, 30, 30);
  drawFire(p, QPointF(opening.center().x(), opening.bottom() - 14), 1.6);
  paintWood(p, QRectF(190, 284, 420, 22), kWalnut, rnd);  // mantel
  drawGarland(p, QPointF(190, 290), QPointF(610, 290), 30, rnd);
  // Antlers on a shield.
  const QPointF mount(400, 170);
  paintWood(p, QRectF(mount.x() - 40, mount.y() - 20, 80, 100), kWalnut.lighter(120), rnd);
  p.setPen(QPen(QColor(0xe6d6b0), 9, Qt::SolidLine, Qt::RoundCap));
  for (const int side : {-1, 1}) {
    QPainterPath beam;
    beam.moveTo(mount + QPointF(side * 12, 0));
    beam.cubicTo(mount + QPointF(side * 80, -20), mount + QPointF(side * 120, -90),
                 mount + QPointF(side * 90, -140));
    p.setBrush(Qt::NoBrush);
    p.drawPath(beam);
    for (int tine = 0; tine < 3; ++tine) {
      const QPointF base = mount + QPointF(side * (45 + 22 * tine), -18 - 30 * tine);
      p.drawLine(base, base + QPointF(side * 6, -42));
    }
  }
  p.end();
  vignette(image, 0.5);
  return image;
}

// An empty field at dusk, the day's tracks leading away into it.
QImage unhappyEnd() {
  QImage image = paintLandscape(
      {u'D', QStringLiteral("better luck"), kFullView.width(), kFullView.height(), 0.48, false});
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient dusk(0, 0, 0, kFullView.height());
  dusk.setColorAt(0, QColor(60, 30, 80, 140));
  dusk.setColorAt(0.5, QColor(200, 110, 60, 60));
  dusk.setColorAt(1, QColor(30, 20, 40, 120));
  p.fillRect(image.rect(), dusk);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(40, 40, 60, 120));
  for (int i = 0; i < 22; ++i) {  // boot prints, smaller as they go
    const double t = i / 22.0;
    const double scale = 1 - t * 0.85;
    const QPointF at(400 + 60 * std::sin(t * 5) * scale + (i % 2 ? 10 : -10) * scale,
                     590 - 300 * std::sqrt(t));
    p.drawEllipse(at, 9 * scale, 16 * scale);
  }
  p.end();
  vignette(image, 0.45);
  return image;
}

QImage jail() {
  QImage image(kFullView, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QStringLiteral("jail"));
  for (double y = 0; y < kFullView.height(); y += 50)
    for (double x = (int(y) / 50 % 2) * -45; x < kFullView.width(); x += 90) {
      p.setBrush(QColor::fromHsv(30, int(rnd.between(5, 30)), int(rnd.between(90, 130))));
      p.setPen(QPen(QColor(0x2a2826), 3));
      p.drawRect(QRectF(x, y, 90, 50));
    }
  const QRectF window(300, 80, 200, 170);
  QImage night = paintLandscape(
      {u'P', QStringLiteral("jail window"), int(window.width()), int(window.height()), 0.6, false});
  makeNight(night, 0.6, 13);
  p.drawImage(window, night);
  p.setPen(QPen(QColor(0x1a1a1c), 10, Qt::SolidLine, Qt::RoundCap));
  for (double x = window.left() + 25; x < window.right(); x += 37)
    p.drawLine(QPointF(x, window.top()), QPointF(x, window.bottom()));
  // Moonlight falling through the bars onto the floor.
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(190, 200, 255, 40));
  p.drawPolygon(QPolygonF({window.bottomLeft(), window.bottomRight(), QPointF(620, 600), QPointF(260, 600)}));
  paintWood(p, QRectF(60, 430, 300, 40), kWalnut, rnd);  // the bench
  const QRectF notice(560, 300, 150, 110);
  dropShadow(p, notice, 3);
  paintPaper(p, notice, rnd);
  drawInkTitle(p, notice.adjusted(8, 8, -8, -8), QStringLiteral("GAME\nWARDEN\nNOTICE"), 18);
  p.end();
  vignette(image, 0.6);
  return image;
}

// Black round the glass, the glass one flat colour the game looks through.
constexpr QRgb kGlass = 0xff7fa07f;

QImage binoculars(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(0x060606));
  QPainter p(&image);
  const double r = size.height() * 0.44;
  const QPointF centre(size.width() / 2.0, size.height() / 2.0);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(kGlass));
  p.drawEllipse(centre - QPointF(r * 0.62, 0), r, r);
  p.drawEllipse(centre + QPointF(r * 0.62, 0), r, r);
  return image;
}

QImage rangefinder(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(0x060606));
  QPainter p(&image);
  const double r = size.height() * 0.46;
  const QPointF centre(size.width() / 2.0, size.height() / 2.0);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(kGlass));
  p.drawEllipse(centre, r, r);
  // The reticle: a broken cross and a ring, drawn hard-edged so the glass stays one colour.
  p.setPen(QPen(QColor(0x101010), std::max(2.0, r / 120)));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(centre, r * 0.18, r * 0.18);
  for (const QPointF d : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
    p.drawLine(centre + d * r * 0.24, centre + d * r * 0.95);
  for (int tick = 1; tick <= 4; ++tick) {
    const double y = centre.y() + r * 0.18 * tick;
    p.drawLine(QPointF(centre.x() - r * 0.04, y), QPointF(centre.x() + r * 0.04, y));
  }
  return image;
}

}  // namespace

void writeNightAndEndPictures(const fs::path& root) {
  const fs::path art = root / "art";
  saveBmp(nightAtLodge(), art / "nitel.bmp");
  saveBmp(nightAtCamp(), art / "nitec.bmp");
  saveBmp(happyEnd(), art / "endgame.bmp");
  saveBmp(unhappyEnd(), art / "bettluk.bmp");
  saveBmp(jail(), art / "jail.bmp");
}

void writeOpticsOverlays(const fs::path& root) {
  for (const Resolution& r : kResolutions) {
    saveBmp(binoculars(r.size), root / "art" / (std::string(r.code) + "bino.bmp"));
    saveBmp(rangefinder(r.size), root / "art" / (std::string(r.code) + "rngf.bmp"));
  }
}

}  // namespace worldgen
