// SPDX-License-Identifier: GPL-2.0-or-later
// The menu, postcard, world, loading and sponsor pictures.
#include "tools/worldgen/title_screens.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/lodge_outside.h"
#include "tools/worldgen/materials.h"
#include "tools/worldgen/picture_files.h"
#include "tools/worldgen/world_layout.h"

#include <QPainterPath>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr QSize kLarge(1024, 768);
constexpr double kDesignScale = 1024.0 / 640.0;  // the screens are laid out at 640 x 480

QRectF design(double x, double y, double w, double h) {
  return {x * kDesignScale, y * kDesignScale, w * kDesignScale, h * kDesignScale};
}

// The main menu: the lodge's wall, the season's garland, and a notice board where the menu's
// messages and lists stand.
QImage mainMenu() {
  QImage image(kLarge, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QStringLiteral("main menu"));
  paintWood(p, image.rect(), kPine, rnd, true);
  const QRectF board = design(100, 24, 440, 372);
  dropShadow(p, board, 6);
  paintPaper(p, board, rnd);
  drawFrame(p, board.adjusted(-16, -16, 16, 16), 16, kWalnut);
  drawGarland(p, QPointF(-10, 10), QPointF(kLarge.width() + 10, 10), 40, rnd);
  drawBrassPlate(p, design(220, 418, 200, 40), QStringLiteral("THE LODGE"));
  for (const double x : {40.0, 600.0}) {  // lanterns either side
    const QPointF at(x * kDesignScale, 250 * kDesignScale);
    QRadialGradient glow(at, 120);
    glow.setColorAt(0, QColor(255, 200, 110, 120));
    glow.setColorAt(1, QColor(255, 200, 110, 0));
    p.fillRect(QRectF(at - QPointF(120, 120), QSizeF(240, 240)), glow);
    p.setBrush(QColor(0xffd890));
    p.setPen(QPen(QColor(0x2a1a0a), 3));
    p.drawRoundedRect(QRectF(at - QPointF(14, 22), QSizeF(28, 44)), 5, 5);
    p.drawLine(at + QPointF(0, -22), at + QPointF(0, -40));
  }
  return image;
}

// A stamp with the first world's hills in it and a serrated edge.
void drawStamp(QPainter& p, const QRectF& r) {
  p.save();
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xfbf8f0));
  p.drawRect(r);
  for (double x = r.left(); x <= r.right(); x += 8) {
    p.setBrush(QColor(0xd8ccb0));
    p.drawEllipse(QPointF(x, r.top()), 2.5, 2.5);
    p.drawEllipse(QPointF(x, r.bottom()), 2.5, 2.5);
  }
  const QRectF picture = r.adjusted(8, 8, -8, -8);
  p.drawImage(picture, paintLandscape({u'Y', QStringLiteral("stamp"), int(picture.width()),
                                       int(picture.height()), 0.5, false}));
  p.setPen(QPen(QColor(0x9a1a14), 2));
  p.setBrush(Qt::NoBrush);
  p.drawRect(picture);
  p.restore();
}

// The front of the postcard: a winter view with greetings across it.
QImage postcardFront() {
  QImage view =
      paintLandscape({u'T', QStringLiteral("postcard"), kLarge.width(), kLarge.height(), 0.5, false});
  QPainter p(&view);
  p.setRenderHint(QPainter::Antialiasing);
  drawLodgeOutside(p, QRectF(250, 430, 330, 230), false);
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setPixelSize(74);
  font.setBold(true);
  font.setItalic(true);
  QPainterPath words;
  words.addText(QPointF(70, 140), font, QStringLiteral("Greetings"));
  font.setPixelSize(40);
  words.addText(QPointF(110, 200), font, QStringLiteral("from Hunting Country"));
  p.setPen(QPen(QColor(0x5a0e0a), 6));
  p.drawPath(words);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xf3e3b8));
  p.drawPath(words);
  p.setPen(QPen(QColor(0xfbf8f0), 22));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(view.rect()).adjusted(11, 11, -11, -11));
  return view;
}

// The back of the postcard: paper, a dividing rule, the stamp and its postmark, and a frame
// where the chosen world's picture shows.
QImage postcardBack() {
  QImage image(kLarge, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QStringLiteral("postcard back"));
  paintPaper(p, image.rect(), rnd, QColor(0xf3ead6));
  p.setPen(QPen(QColor(0x8a6a3a), 2));
  p.drawLine(QPointF(336 * kDesignScale, 40 * kDesignScale), QPointF(336 * kDesignScale, 440 * kDesignScale));
  drawFrame(p, design(34, 54, 292, 222), 6 * kDesignScale, QColor(0xb8902e));
  drawStamp(p, design(560, 8, 64, 50));
  p.setPen(QPen(QColor(40, 40, 60, 150), 2.5));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(design(520, 14, 52, 40));
  for (int i = 0; i < 4; ++i)
    p.drawLine(QPointF(560 * kDesignScale, (62 + 6 * i) * kDesignScale),
               QPointF(640 * kDesignScale, (58 + 6 * i) * kDesignScale));
  p.setPen(QPen(QColor(120, 100, 70, 120), 1.5));
  for (int i = 0; i < 3; ++i)
    p.drawLine(QPointF(350 * kDesignScale, (420 + 16 * i) * kDesignScale),
               QPointF(620 * kDesignScale, (420 + 16 * i) * kDesignScale));
  return image;
}

QImage worldPicture(const World& w) {
  QImage image = paintLandscape({w.letter, QStringLiteral("postcard world"), 320, 240, 0.46, false});
  vignette(image, 0.25);
  return image;
}

// While a world loads: the lodge at dusk under its own lights.
QImage loadingScreen() {
  QImage view =
      paintLandscape({u'P', QStringLiteral("loading"), kLarge.width(), kLarge.height(), 0.52, false});
  QPainter p(&view);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient dusk(0, 0, 0, kLarge.height());
  dusk.setColorAt(0, QColor(40, 30, 90, 120));
  dusk.setColorAt(1, QColor(20, 10, 30, 90));
  p.fillRect(view.rect(), dusk);
  drawLodgeOutside(p, QRectF(300, 330, 420, 300), true);
  drawBrassPlate(p, QRectF(362, 660, 300, 50), QStringLiteral("LOADING"));
  return view;
}

// The sponsor's badge: a brass oval with a stag's head and crossed pines.
QImage sponsorBadge() {
  QImage image(260, 140, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QStringLiteral("badge"));
  paintPaper(p, image.rect(), rnd, QColor(0xf4ead0));
  const QRectF oval(14, 10, 232, 120);
  QRadialGradient metal(oval.center() - QPointF(40, 30), 180);
  metal.setColorAt(0, QColor(0xf6df9a));
  metal.setColorAt(1, QColor(0xa07a2a));
  p.setBrush(metal);
  p.setPen(QPen(QColor(0x5a400e), 3));
  p.drawEllipse(oval);
  p.setBrush(QColor(0x2e4a2a));
  p.setPen(Qt::NoPen);
  p.drawEllipse(oval.adjusted(12, 10, -12, -10));
  // A stag's head, front on.
  p.setBrush(QColor(0xe9d9a8));
  const QPointF c = oval.center() + QPointF(0, 12);
  p.drawPolygon(
      QPolygonF({c + QPointF(-18, -22), c + QPointF(18, -22), c + QPointF(8, 24), c + QPointF(-8, 24)}));
  p.drawEllipse(c + QPointF(-28, -24), 12, 6);
  p.drawEllipse(c + QPointF(28, -24), 12, 6);
  p.setPen(QPen(QColor(0xe9d9a8), 4, Qt::SolidLine, Qt::RoundCap));
  for (const int side : {-1, 1}) {
    const QPointF base = c + QPointF(side * 10, -24);
    const QPointF top = base + QPointF(side * 26, -28);
    p.drawLine(base, top);
    p.drawLine(base + QPointF(side * 10, -11), base + QPointF(side * 4, -30));
    p.drawLine(base + QPointF(side * 19, -20), base + QPointF(side * 16, -38));
    p.drawLine(top, top + QPointF(side * 8, -4));
  }
  return image;
}

}  // namespace

void writeTitleScreens(const fs::path& root) {
  const fs::path art = root / "art";
  saveForEveryResolution(mainMenu(), art, "mainmnu.bmp");
  saveForEveryResolution(postcardFront(), art, "splash.bmp");
  saveForEveryResolution(postcardBack(), art, "Postcd2.bmp");
  const QList<World> worlds = worldsOf(false);
  for (int n = 0; n < worlds.size(); ++n)
    saveBmp(worldPicture(worlds[n]), art / ("world" + std::to_string(n) + ".bmp"));
  saveBmp(loadingScreen(), art / "load.bmp");
  saveBmp(sponsorBadge(), art / "mdnlogo.bmp");
}

}  // namespace worldgen
