// SPDX-License-Identifier: GPL-2.0-or-later
// Sights, bullet holes and range pictures for the two shooting scenes.
#include "tools/worldgen/shooting_pictures.h"

#include "tools/worldgen/landscape.h"
#include "tools/worldgen/materials.h"
#include "tools/worldgen/picture_files.h"
#include "tools/worldgen/world_layout.h"

#include <QPainterPath>

#include <cmath>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr QSize kSightFrame(320, 240);

// Picture codes by weapon number, and where the standard set's sights aim within a frame.
struct SightLook {
  const char* code;
  QPoint aim;
};
constexpr SightLook kSights[] = {
    {"", {0, 0}},         {"rifle0", {159, 65}}, {"bolt0", {159, 65}}, {"rifle0", {159, 65}},
    {"bolt0", {159, 65}}, {"hgun0", {153, 94}},  {"12ga0", {160, 77}}, {"54hr0", {148, 132}},
    {"Bow0", {47, 163}},  {"RBow0", {135, 162}},
};

enum class SightKind { Scope, OpenSights, Bead, Pins };

SightKind kindOf(int weapon) {
  if (weapon <= 4) return SightKind::Scope;
  if (weapon == 6) return SightKind::Bead;
  if (weapon >= 8) return SightKind::Pins;
  return SightKind::OpenSights;
}

// Blued steel and oiled walnut, lit from the left.
QBrush steel(double left, double right) {
  QLinearGradient g(left, 0, right, 0);
  g.setColorAt(0, QColor(0x3a3e48));
  g.setColorAt(0.35, QColor(0x20232a));
  g.setColorAt(1, QColor(0x0c0d10));
  return g;
}
QBrush walnut(double left, double right) {
  QLinearGradient g(left, 0, right, 0);
  g.setColorAt(0, QColor(0x8a5a30));
  g.setColorAt(0.4, QColor(0x6a4222));
  g.setColorAt(1, QColor(0x3a2210));
  return g;
}

// Hard edges throughout: a blended edge would leave a pink fringe round the see-through colour.
// The eyepiece fills the picture's height above the rifle: a wide glass with a duplex reticle,
// thick posts from the rim that lead the eye in to the fine cross at the aim.
void scope(QPainter& p, QPointF aim) {
  constexpr double kGlass = 64, kRim = 76, kGap = 16;
  p.setBrush(steel(aim.x() - 40, aim.x() + 40));
  p.setPen(Qt::NoPen);
  p.drawRect(QRectF(aim.x() - 40, aim.y() + 60, 80, 200));  // the rifle beneath
  p.setBrush(walnut(aim.x() - 70, aim.x() + 70));
  p.drawPolygon(QPolygonF({QPointF(aim.x() - 70, 240), QPointF(aim.x() - 34, aim.y() + 120),
                           QPointF(aim.x() + 34, aim.y() + 120), QPointF(aim.x() + 70, 240)}));
  p.setBrush(steel(aim.x() - kRim, aim.x() + kRim));
  p.drawEllipse(aim, kRim, kRim);
  p.setBrush(QColor(0x050505));
  p.drawEllipse(aim, kGlass + 3, kGlass + 3);
  p.setBrush(QColor(kKeyColour));  // the game shows through the glass
  p.drawEllipse(aim, kGlass, kGlass);
  p.setBrush(QColor(0x050505));
  for (const int side : {-1, 1}) {  // the heavy posts, left, right and below
    p.drawRect(QRectF(side > 0 ? aim.x() + kGap * 2 : aim.x() - kGlass - 1, aim.y() - 2.5,
                      kGlass - kGap * 2 + 1, 5));
  }
  p.drawRect(QRectF(aim.x() - 2.5, aim.y() + kGap * 2, 5, kGlass - kGap * 2 + 1));
  p.drawRect(QRectF(aim.x() - 1.5, aim.y() - kGlass, 3, kGlass - kGap * 2));
  p.setPen(QPen(QColor(0x050505), 1));
  p.drawLine(aim - QPointF(kGap * 2, 0), aim + QPointF(kGap * 2, 0));
  p.drawLine(aim - QPointF(0, kGap * 2), aim + QPointF(0, kGap * 2));
}

// A handgun's square post in the rear sight's notch, post top level with the blade at the aim.
void postAndNotch(QPainter& p, QPointF aim) {
  p.setBrush(QColor(0x111111));
  p.drawRect(QRectF(aim.x() - 4, aim.y(), 8, 34));
  p.setBrush(QColor(0xf0f0e8));  // a white dot on the post catches the eye
  p.drawEllipse(aim + QPointF(0, 6), 2, 2);
  p.setBrush(QColor(0x151515));
  p.drawRect(QRectF(aim.x() - 70, aim.y(), 60, 26));
  p.drawRect(QRectF(aim.x() + 10, aim.y(), 60, 26));
  p.drawRect(QRectF(aim.x() - 70, aim.y() + 26, 140, 14));
}

// A shotgun's brass bead at the end of a ventilated rib.
void beadOnRib(QPainter& p, QPointF aim) {
  p.setBrush(QColor(0x2a2c32));
  p.drawPolygon(QPolygonF({QPointF(aim.x() - 3, aim.y() + 5), QPointF(aim.x() + 3, aim.y() + 5),
                           QPointF(aim.x() + 12, 240), QPointF(aim.x() - 12, 240)}));
  p.setBrush(QColor(0x0c0d10));
  for (int i = 1; i < 9; ++i) {  // the rib's vents
    const double y = aim.y() + 8 + i * i * 2.2;
    p.drawRect(QRectF(aim.x() - 1 - i * 0.8, y, 2 + i * 1.6, 1 + i * 0.3));
  }
  p.setBrush(QColor(0xd8b040));
  p.drawEllipse(aim + QPointF(0, 2), 5, 5);
  p.setBrush(QColor(0xfff0b0));
  p.drawEllipse(aim + QPointF(-1.5, 0.5), 1.6, 1.6);
}

void openSights(QPainter& p, QPointF aim, bool bead) {
  p.setPen(Qt::NoPen);
  p.setBrush(steel(aim.x() - 40, aim.x() + 40));
  p.drawPolygon(QPolygonF({QPointF(aim.x() - 8, aim.y() + 2), QPointF(aim.x() + 8, aim.y() + 2),
                           QPointF(aim.x() + 40, 240), QPointF(aim.x() - 40, 240)}));  // barrel running away
  if (bead)
    beadOnRib(p, aim);
  else
    postAndNotch(p, aim);
  p.setBrush(walnut(aim.x() - 70, aim.x() + 70));
  p.drawPolygon(QPolygonF({QPointF(aim.x() - 70, 240), QPointF(aim.x() - 40, aim.y() + 90),
                           QPointF(aim.x() + 40, aim.y() + 90), QPointF(aim.x() + 70, 240)}));
}

// The bow's pin guard: a ring round three bright fibre pins, the top one at the aim.
void bowPins(QPainter& p, QPointF aim) {
  p.setPen(Qt::NoPen);
  p.setBrush(steel(aim.x() + 40, aim.x() + 56));
  p.drawRect(QRectF(aim.x() + 40, 0, 16, 240));  // the riser
  p.setBrush(QColor(0x2a2a2e));
  p.drawRect(QRectF(aim.x() + 30, aim.y() + 6, 12, 10));  // the bracket
  const QPointF ring = aim + QPointF(0, 14);
  p.setBrush(QColor(0x1a1a1e));
  p.drawEllipse(ring, 34, 34);
  p.setBrush(QColor(kKeyColour));
  p.drawEllipse(ring, 28, 28);
  const QColor pins[] = {QColor(0x30f030), QColor(0xf0e020), QColor(0xf04020)};
  for (int i = 0; i < 3; ++i) {
    const QPointF head = aim + QPointF(0, i * 14);
    p.setBrush(QColor(0x333333));
    p.drawRect(QRectF(head.x(), head.y() - 1.5, 30, 3));
    p.setBrush(pins[i]);
    p.drawEllipse(head, 3.5, 3.5);
  }
  p.setPen(QPen(QColor(0xd8d0c0), 2));
  p.drawLine(QPointF(aim.x() - 70, 0), QPointF(aim.x() - 70, 240));  // the string
}

void drawSightFrame(QPainter& p, int weapon, QPointF aim) {
  switch (kindOf(weapon)) {
    case SightKind::Scope: scope(p, aim); break;
    case SightKind::OpenSights: openSights(p, aim, false); break;
    case SightKind::Bead: openSights(p, aim, true); break;
    case SightKind::Pins: bowPins(p, aim); break;
  }
}

// Holes torn in paper: dark centres, a ragged grey rim.
QImage bulletHole(int n) {
  QImage image(16, 16, QImage::Format_RGB32);
  image.fill(QColor(kKeyColour));
  QPainter p(&image);
  StableRandom rnd(uint64_t(n) + 77);
  p.setPen(Qt::NoPen);
  QPolygonF rim;
  for (int i = 0; i < 10; ++i) {
    const double angle = i * 0.628;
    const double r = rnd.between(4.5, 6.5);
    rim << QPointF(8 + r * std::cos(angle), 8 + r * std::sin(angle));
  }
  p.setBrush(QColor(0x6a645a));
  p.drawPolygon(rim);
  p.setBrush(QColor(0x0c0a08));
  p.drawEllipse(QPointF(8 + rnd.between(-0.5, 0.5), 8 + rnd.between(-0.5, 0.5)), 3.2, 3.2);
  return image;
}

// Target boards by class ("0" handgun, "1" bows, "2" shotgun and muzzle-loader, "3" rifles), at
// the places the range's hit test expects them in 640 x 480; the special-permit set's own
// places for the world only that set hunts.
struct TargetBoard {
  QRectF standard;
  QRectF permit;
};
constexpr int kClasses = 4;
const TargetBoard kBoards[kClasses] = {
    {{150, 147, 340, 133}, {164, 74, 319, 126}},
    {{89, 3, 469, 396}, {259, 105, 88, 99}},
    {{220, 164, 229, 88}, {139, 79, 336, 128}},
    {{252, 44, 386, 326}, {139, 65, 336, 132}},
};

void rings(QPainter& p, const QRectF& r, int count) {
  const QPointF centre = r.center();
  const double outer = std::min(r.width(), r.height()) * 0.46;
  for (int i = count; i >= 1; --i) {
    const double radius = outer * i / count;
    p.setBrush(i <= 2 ? QColor(0xc4161c) : (i % 2 ? QColor(0x1a1a1a) : QColor(0xf4f0e6)));
    p.setPen(QPen(QColor(0x8a8a80), 1));
    p.drawEllipse(centre, radius, radius);
  }
}

void silhouette(QPainter& p, const QRectF& r) {
  p.setBrush(QColor(0x1a1a1a));
  p.setPen(Qt::NoPen);
  const QPointF c = r.center();
  const double h = r.height() * 0.9;
  p.drawEllipse(QPointF(c.x(), r.top() + h * 0.18), h * 0.13, h * 0.15);
  p.drawRoundedRect(QRectF(c.x() - h * 0.35, r.top() + h * 0.33, h * 0.7, h * 0.62), h * 0.15, h * 0.15);
  p.setPen(QPen(QColor(0xf4f0e6), 1.5));
  p.setBrush(Qt::NoBrush);
  for (const double s : {0.12, 0.22}) p.drawEllipse(QPointF(c.x(), r.top() + h * 0.6), h * s, h * s);
}

void targetBoard(QPainter& p, const QRectF& r, int targetClass, StableRandom& rnd) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  // Posts and a backing board, then the paper.
  p.setBrush(QColor(0x5a3a1e));
  p.setPen(Qt::NoPen);
  p.drawRect(QRectF(r.left() + r.width() * 0.15, r.bottom(), 10, 480 - r.bottom()));
  p.drawRect(QRectF(r.right() - r.width() * 0.15 - 10, r.bottom(), 10, 480 - r.bottom()));
  if (targetClass == 1) {  // bows shoot at a straw bale
    p.setBrush(QColor(0xd8b860));
    p.drawRoundedRect(r, 12, 12);
    for (int i = 0; i < 400; ++i) {
      const QPointF a(rnd.between(r.left(), r.right()), rnd.between(r.top(), r.bottom()));
      p.setPen(QPen(QColor(150, 120, 40, 120), 1));
      p.drawLine(a, a + QPointF(rnd.between(-8, 8), rnd.between(-2, 2)));
    }
    const QRectF face = QRectF(0, 0, r.width() * 0.6, r.height() * 0.6);
    rings(p, face.translated(r.center() - face.center()), 10);
  } else {
    paintWood(p, r, QColor(0xb08458), rnd, true);
    const QRectF paper =
        r.adjusted(r.width() * 0.08, r.height() * 0.06, -r.width() * 0.08, -r.height() * 0.06);
    paintPaper(p, paper, rnd, QColor(0xf6f2e6));
    if (targetClass == 0)
      silhouette(p, paper);
    else
      rings(p, paper, targetClass == 2 ? 4 : 8);
  }
  p.restore();
}

QImage rangePicture(const World& w, int targetClass) {
  QImage image = paintLandscape({w.letter, QStringLiteral("target range"), 640, 480, 0.42, false});
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  // A sand berm behind the boards.
  QPainterPath berm;
  berm.moveTo(0, 480);
  berm.lineTo(0, 250);
  berm.cubicTo(160, 200, 480, 200, 640, 250);
  berm.lineTo(640, 480);
  p.fillPath(berm, QColor(0xb49a72));
  StableRandom rnd(QString(w.letter) + QString::number(targetClass));
  const TargetBoard& board = kBoards[targetClass];
  targetBoard(p, w.permit ? board.permit : board.standard, targetClass, rnd);
  return image;
}

}  // namespace

QImage sightStrip(int weapon) {
  QImage strip(kSightFrame.width() * kRecoilFrames, kSightFrame.height(), QImage::Format_RGB32);
  strip.fill(QColor(kKeyColour));
  QPainter p(&strip);
  // Rest, the kick up and back, and the settle.
  const QPointF kick[kRecoilFrames] = {{0, 0}, {3, -22}, {6, -34}, {4, -20}, {2, -9}, {0, -3}};
  for (int frame = 0; frame < kRecoilFrames; ++frame) {
    p.save();
    p.setClipRect(QRect(frame * kSightFrame.width(), 0, kSightFrame.width(), kSightFrame.height()));
    p.translate(frame * kSightFrame.width(), 0);
    drawSightFrame(p, weapon, QPointF(kSights[weapon].aim) + kick[frame]);
    p.restore();
  }
  return strip;
}

void writeShootingPictures(const fs::path& root) {
  const fs::path pict = root / "pict";
  for (int weapon = 1; weapon <= 9; ++weapon)
    saveBmp(sightStrip(weapon), pict / (kSights[weapon].code + std::to_string(weapon) + ".bmp"));
  for (int n = 0; n < 10; ++n) saveBmp(bulletHole(n), pict / ("bullet" + std::to_string(n) + ".bmp"));
  // One range per area letter: its world's own group decides where the boards stand.
  for (const World& w : distinctAreas())
    for (int targetClass = 0; targetClass < kClasses; ++targetClass)
      saveBmp(rangePicture(w, targetClass), pict / (QString(w.letter) + QStringLiteral("range") +
                                                    QString::number(targetClass) + QStringLiteral(".bmp"))
                                                       .toStdString());
}

}  // namespace worldgen
