// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge screens' backgrounds, one set per area letter.
#include "tools/worldgen/lodge_screens.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/materials.h"
#include "tools/worldgen/picture_files.h"
#include "tools/worldgen/world_layout.h"

#include <QPainterPath>

#include <functional>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr QSize kLodgeScreen(1014, 607);
constexpr QSize kPage(640, 480);
constexpr QSize kTalkBox(560, 200);

// A window in the wall that looks out on the world, so each world's lodge is its own.
void drawWindow(QPainter& p, const QRectF& r, QChar world) {
  const QImage view =
      paintLandscape({world, QStringLiteral("lodge window"), int(r.width()), int(r.height()), 0.55, false});
  p.drawImage(r, view);
  p.save();
  p.setPen(QPen(QColor(0xf4f0e8), 4));
  p.drawLine(QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
  p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
  p.restore();
  drawFrame(p, r.adjusted(-10, -10, 10, 10), 10, QColor(0xe9e2d2));
}

// The wall every lodge screen hangs on: planks, the season's garland and a brass name plate.
QImage lodgeWall(QSize size, QChar world, const QString& title, QColor tone) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + title);
  paintWood(p, image.rect(), tone, rnd, true);
  drawGarland(p, QPointF(-10, 8), QPointF(size.width() + 10, 8), 26, rnd);
  const double plateWidth = std::min(360.0, size.width() * 0.4);
  drawBrassPlate(p, QRectF((size.width() - plateWidth) / 2, 16, plateWidth, 38), title);
  return image;
}

// A sheet of paper lying on the wall or desk, with its shadow.
void paperSheet(QPainter& p, const QRectF& r, StableRandom& rnd, bool ruled = false) {
  dropShadow(p, r, 4);
  paintPaper(p, r, rnd);
  if (!ruled) return;
  p.save();
  p.setPen(QPen(QColor(120, 140, 170, 70), 1));
  for (double y = r.top() + 40; y < r.bottom() - 12; y += 22)
    p.drawLine(QPointF(r.left() + 14, y), QPointF(r.right() - 14, y));
  p.setPen(QPen(QColor(190, 80, 70, 80), 1));
  p.drawLine(QPointF(r.left() + 40, r.top() + 6), QPointF(r.left() + 40, r.bottom() - 6));
  p.restore();
}

// An open book: a leather cover with two pages and the shadow of the spine between them.
void openBook(QPainter& p, const QRectF& r, QColor leather, StableRandom& rnd) {
  dropShadow(p, r, 5);
  paintLeather(p, r, leather, rnd, 14);
  const QRectF pages = r.adjusted(18, 14, -18, -14);
  const QRectF left(pages.left(), pages.top(), pages.width() / 2, pages.height());
  const QRectF right(pages.center().x(), pages.top(), pages.width() / 2, pages.height());
  paintPaper(p, left, rnd);
  paintPaper(p, right, rnd);
  QLinearGradient gutter(QPointF(pages.center().x() - 40, 0), QPointF(pages.center().x() + 40, 0));
  gutter.setColorAt(0, QColor(0, 0, 0, 0));
  gutter.setColorAt(0.5, QColor(60, 35, 10, 110));
  gutter.setColorAt(1, QColor(0, 0, 0, 0));
  p.fillRect(QRectF(pages.center().x() - 40, pages.top(), 80, pages.height()), gutter);
}

QImage catalogScreen(QChar world) {
  QImage image = lodgeWall(kLodgeScreen, world, QStringLiteral("OUTFITTER'S CATALOGUE"), kPine);
  QPainter p(&image);
  StableRandom rnd(QString(world) + QStringLiteral("catalog"));
  openBook(p, QRectF(34, 70, 946, 515), QColor(0x6e2a1c), rnd);
  drawInkTitle(p, QRectF(70, 92, 420, 40), QStringLiteral("Winter Outfitting"), 24);
  p.setPen(QPen(QColor(120, 80, 30, 120), 1.2));
  p.drawLine(QPointF(120, 136), QPointF(440, 136));
  return image;
}

QImage packScreen(QChar world) {
  QImage image = lodgeWall(kLodgeScreen, world, QStringLiteral("YOUR PACK"), kWalnut.lighter(125));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + QStringLiteral("invent"));
  const QRectF canvas(30, 68, 954, 520);
  dropShadow(p, canvas, 5);
  paintCloth(p, canvas, QColor(0x6b6a42), rnd);
  drawFrame(p, canvas, 8, QColor(0x5a3a1e));
  for (const double x : {170.0, 844.0}) {  // the pack's straps
    const QRectF strap(x - 18, canvas.top() + 8, 36, canvas.height() - 16);
    paintLeather(p, strap, QColor(0x7a4a22), rnd, 4);
    p.setBrush(QColor(0xc9a04a));
    p.setPen(QPen(QColor(0x6a4c14), 1.5));
    p.drawRoundedRect(QRectF(x - 22, canvas.top() + 60, 44, 30), 4, 4);
  }
  return image;
}

QImage gunRackScreen(QChar world) {
  QImage image = lodgeWall(kLodgeScreen, world, QStringLiteral("GUN RACK"), kWalnut.lighter(140));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + QStringLiteral("weapon"));
  const QRectF felt(36, 76, 600, 300);
  dropShadow(p, felt, 5);
  paintCloth(p, felt, QColor(0x2f4a32), rnd);
  drawFrame(p, felt.adjusted(-12, -12, 12, 12), 12, kWalnut);
  for (const double x : {90.0, 336.0, 582.0}) {  // pegs the guns rest on
    p.setBrush(QColor(0x3a2412));
    p.setPen(QPen(QColor(0x1e1208), 1));
    p.drawRoundedRect(QRectF(x - 9, felt.bottom() - 30, 18, 34), 5, 5);
  }
  paperSheet(p, QRectF(670, 76, 310, 505), rnd, true);
  drawWindow(p, QRectF(60, 420, 250, 150), world);
  return image;
}

QImage licenceScreen(QChar world) {
  QImage image = lodgeWall(kLodgeScreen, world, QStringLiteral("LICENCES AND TAGS"), kPine.darker(110));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + QStringLiteral("license"));
  const QRectF board(30, 70, 954, 515);
  p.fillRect(board, QColor(0xb08a5a));
  for (int i = 0; i < 9000; ++i) {  // cork
    p.setPen(QPen(QColor::fromHsv(28, int(rnd.between(80, 160)), int(rnd.between(110, 200)), 160),
                  rnd.between(1, 2.4)));
    p.drawPoint(QPointF(rnd.between(board.left(), board.right()), rnd.between(board.top(), board.bottom())));
  }
  drawFrame(p, board, 14, kWalnut);
  const QRectF notice(740, 96, 220, 150);
  paperSheet(p, notice, rnd);
  drawInkTitle(p, notice.adjusted(10, 8, -10, -70), QStringLiteral("SEASON\nDecember"), 18);
  p.setBrush(QColor(0xc4161c));
  p.setPen(Qt::NoPen);
  p.drawEllipse(QPointF(notice.center().x(), notice.top() + 6), 5, 5);
  return image;
}

QImage testScreen(QChar world) {
  QImage image = lodgeWall(kLodgeScreen, world, QStringLiteral("HUNTER'S TEST"), kWalnut.lighter(120));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + QStringLiteral("htest"));
  const QRectF board(60, 66, 894, 530);
  dropShadow(p, board, 5);
  paintWood(p, board, QColor(0xb08458), rnd);  // the clipboard
  paperSheet(p, board.adjusted(18, 34, -18, -14), rnd, true);
  QLinearGradient clip(QPointF(0, board.top()), QPointF(0, board.top() + 40));
  clip.setColorAt(0, QColor(0xe0e0e0));
  clip.setColorAt(1, QColor(0x8a8a8a));
  p.setBrush(clip);
  p.setPen(QPen(QColor(0x505050), 1.2));
  p.drawRoundedRect(QRectF(board.center().x() - 90, board.top() - 6, 180, 44), 8, 8);
  return image;
}

QImage guideScreen(QChar world) {
  QImage image = lodgeWall(kLodgeScreen, world, QStringLiteral("HUNTING GUIDE"), kPine);
  QPainter p(&image);
  StableRandom rnd(QString(world) + QStringLiteral("hguide"));
  openBook(p, QRectF(34, 70, 946, 515), QColor(0x2e4a2a), rnd);
  return image;
}

QImage talkBox(QChar world) {
  QImage image(kTalkBox, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + QStringLiteral("peopbox"));
  paintWood(p, image.rect(), kWalnut.lighter(130), rnd);
  const QRectF paper(148, 10, kTalkBox.width() - 158, kTalkBox.height() - 20);
  paperSheet(p, paper, rnd);
  const QRectF portrait(16, 16, 120, 150);
  drawFrame(p, portrait.adjusted(-7, -7, 7, 7), 7, QColor(0xc9a04a));
  p.fillRect(portrait, QColor(0x3a2818));
  drawGarland(p, QPointF(-6, 4), QPointF(150, 4), 10, rnd);
  return image;
}

// The award certificate: a bordered page with a seal, space for the trophy picture, the
// figures beside it and the sponsor's badge.
QImage awardPage(QChar world) {
  QImage image(kPage, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(QString(world) + QStringLiteral("award"));
  paintPaper(p, image.rect(), rnd, QColor(0xf4ead0));
  for (const auto& [inset, colour, width] :
       {std::tuple{10.0, QColor(0x2e4a2a), 5.0}, std::tuple{20.0, QColor(0xb8902e), 2.0},
        std::tuple{26.0, QColor(0x2e4a2a), 1.0}}) {
    p.setPen(QPen(colour, width));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(image.rect()).adjusted(inset, inset, -inset, -inset));
  }
  for (const QPointF corner : {QPointF(20, 20), QPointF(620, 20), QPointF(20, 460), QPointF(620, 460)}) {
    p.setBrush(QColor(0xb8902e));
    p.setPen(Qt::NoPen);
    p.drawEllipse(corner, 7, 7);
  }
  drawFrame(p, QRectF(32, 64, 296, 226), 8, QColor(0xb8902e));
  // The seal.
  const QPointF seal(585, 70);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x9a1a14));
  for (int i = 0; i < 16; ++i) {
    p.save();
    p.translate(seal);
    p.rotate(i * 22.5);
    p.drawEllipse(QPointF(0, -22), 7, 7);
    p.restore();
  }
  p.drawEllipse(seal, 24, 24);
  p.setPen(QPen(QColor(0xf0c8a0), 1.5));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(seal, 16, 16);
  p.setPen(QPen(QColor(0x2e4a2a), 1));
  p.drawLine(QPointF(40, 412), QPointF(600, 412));
  return image;
}

QImage recordBook(QChar world) {
  QImage image(kPage, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter p(&image);
  StableRandom rnd(QString(world) + QStringLiteral("trophy"));
  paintWood(p, image.rect(), kWalnut, rnd);
  openBook(p, QRectF(10, 10, 620, 460), QColor(0x5a2414), rnd);
  drawInkTitle(p, QRectF(30, 24, 280, 30), QStringLiteral("Record Book"), 20);
  return image;
}

}  // namespace

void writeLodgeScreens(const fs::path& root) {
  const std::pair<const char*, std::function<QImage(QChar)>> screens[] = {
      {"catalog.bmp", catalogScreen}, {"invent.bmp", packScreen}, {"weapon.bmp", gunRackScreen},
      {"license.bmp", licenceScreen}, {"htest.bmp", testScreen},  {"hguide.bmp", guideScreen},
      {"peopbox.bmp", talkBox},       {"award.bmp", awardPage},   {"trophy.bmp", recordBook},
  };
  for (const World& w : distinctAreas())
    for (const auto& [name, paint] : screens) {
      QImage image = paint(w.letter);
      vignette(image, 0.35);
      saveBmp(image, root / "art" / (QString(w.letter) + QLatin1String(name)).toStdString());
    }
}

}  // namespace worldgen
