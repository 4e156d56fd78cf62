// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge's great room as the panorama shows it: a square log room seen from its middle,
// so walls, shelves and counters bow toward the viewer as a cylinder's picture of them does.
#include "tools/worldgen/colour_mix.h"
#include "tools/worldgen/figures.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/stable_random.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <map>

namespace worldgen {

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kEye = 1.6;        // metres above the floor
constexpr double kHalfRoom = 4.0;   // metres from the middle to each wall
constexpr double kWallTop = 3.0;    // metres to the ceiling
constexpr double kLogHeight = 0.3;  // one course of logs

// Where a point of the room lands in the picture: x is the heading, z the height above the
// floor, inset how far it stands out from the wall toward the middle.
class Room {
 public:
  Room(int width, int height) : w_(width), h_(height), radius_(width / kTurn) {}

  double y(double x, double z, double inset = 0) const {
    const double quarter = w_ / 4.0;
    const double offAxis = (std::fmod(x + quarter / 2, quarter) - quarter / 2) / w_ * kTurn;
    return h_ / 2.0 - radius_ * (z - kEye) * std::cos(offAxis) / (kHalfRoom - inset);
  }
  // The strip of wall or furniture face between two heights, across x0..x1.
  QPainterPath band(double x0, double x1, double z0, double z1, double inset0 = 0, double inset1 = -1) const {
    if (inset1 < 0) inset1 = inset0;
    QPainterPath path;
    const double step = std::max(2.0, (x1 - x0) / 48);
    path.moveTo(x0, y(x0, z1, inset1));
    for (double x = x0 + step; x < x1 + step / 2; x += step)
      path.lineTo(std::min(x, x1), y(std::min(x, x1), z1, inset1));
    for (double x = x1; x > x0 - step / 2; x -= step)
      path.lineTo(std::max(x, x0), y(std::max(x, x0), z0, inset0));
    path.closeSubpath();
    return path;
  }
  QRectF box(double x0, double x1, double z0, double z1, double inset) const {
    const double xc = (x0 + x1) / 2;
    return QRectF(QPointF(x0, y(xc, z1, inset)), QPointF(x1, y(xc, z0, inset)));
  }
  int width() const { return w_; }
  int height() const { return h_; }
  double unit() const { return h_ / 384.0; }

 private:
  int w_, h_;
  double radius_;
};

struct Placement {
  double x0, x1;  // fractions of the turn
  double top;     // metres
  double inset;   // metres out from the wall
};

// Where each thing of the lodge stands, going round from the fireplace wall.
const std::map<QString, Placement>& placements() {
  static const std::map<QString, Placement> table = {
      {"&range", {0.029, 0.073, 2.15, 0}},    {"%test", {0.138, 0.2, 1.05, 0.5}},
      {"$movie", {0.218, 0.29, 1.5, 0.4}},    {"+book", {0.31, 0.355, 1.35, 0.9}},
      {"@guide", {0.378, 0.415, 1.85, 1.2}},  {"@host", {0.579, 0.615, 1.85, 1.2}},
      {"!outfit", {0.635, 0.774, 2.3, 0}},    {"*tags", {0.789, 0.86, 2.2, 0}},
      {"@warden", {0.874, 0.911, 1.85, 1.2}}, {"^camp", {0.955, 0.994, 2.15, 0}},
  };
  return table;
}

QColor logColour(StableRandom& rnd) {
  return QColor(0x9a6436).lighter(int(rnd.between(88, 112)));
}

// Round logs with pale chinking between them, their cut ends stacked at the corners.
void paintWalls(QPainter& p, const Room& room, StableRandom& rnd) {
  const double w = room.width();
  for (double z = 0; z < kWallTop; z += kLogHeight) {
    const QColor log = logColour(rnd);
    const double bands[][3] = {{0, 0.25, 120}, {0.25, 0.7, 100}, {0.7, 1, 75}};  // lit top, body, shadow
    for (const auto& b : bands) {
      p.setBrush(log.lighter(int(b[2])));
      p.drawPath(room.band(0, w, z + kLogHeight * (1 - b[1]), z + kLogHeight * (1 - b[0])));
    }
    p.setBrush(QColor(0xd8c8a8));
    p.drawPath(room.band(0, w, z - 0.012, z + 0.012));
    // Grain and checks along each log.
    p.setPen(QPen(QColor(60, 36, 20, 90), std::max(1.0, room.unit() * 0.8)));
    for (int k = 0; k < 40; ++k) {
      const double x = rnd.between(0, w), len = rnd.between(20, 90) * room.unit();
      const double zz = z + kLogHeight * rnd.between(0.3, 0.7);
      p.drawLine(QPointF(x, room.y(x, zz)), QPointF(x + len, room.y(x + len, zz)));
    }
    p.setPen(Qt::NoPen);
  }
  for (int corner = 0; corner < 4; ++corner) {
    const double x = (corner + 0.5) * w / 4;
    for (double z = kLogHeight / 2; z < kWallTop; z += kLogHeight) {
      const double r = (room.y(x, z - kLogHeight / 2) - room.y(x, z + kLogHeight / 2)) / 2;
      QRadialGradient end(QPointF(x, room.y(x, z)), r);
      end.setColorAt(0, QColor(0xd8aa70));
      end.setColorAt(0.8, QColor(0xb07a44));
      end.setColorAt(1, QColor(0x5a3a20));
      p.setBrush(end);
      p.drawEllipse(QPointF(x, room.y(x, z)), r * 1.05, r);
    }
  }
}

void paintCeilingAndFloor(QPainter& p, const Room& room) {
  const double w = room.width();
  p.setBrush(QColor(0x3a2416));
  p.drawPath(room.band(0, w, kWallTop, 40, 0, 3.95));
  p.setBrush(QColor(0x5a3820));
  for (double inset = 0.4; inset < 3.9; inset += 0.9)  // rafters running round the room
    p.drawPath(room.band(0, w, kWallTop, kWallTop, inset, inset + 0.25));
  p.setBrush(QColor(0x6a4226));
  p.drawPath(room.band(0, w, -40, 0, 3.95, 0));
  for (double inset = 0.15; inset < 3.8; inset += 0.22) {  // floorboards parallel to the walls
    p.setBrush(QColor(0x4a2c18));
    p.drawPath(room.band(0, w, 0, 0, inset, inset + 0.015));
  }
  // A braided rug before the fire.
  for (int ring = 0; ring < 5; ++ring) {
    const QColor rug[] = {QColor(0x7a2a20), QColor(0x3a4a3a), QColor(0xb08040), QColor(0x5a2a2a),
                          QColor(0x7a2a20)};
    p.setBrush(rug[ring]);
    p.drawPath(room.band(w * (0.42 + ring * 0.012), w * (0.58 - ring * 0.012), 0, 0, 1.2 + ring * 0.12,
                         2.9 - ring * 0.12));
  }
}

// A window onto the snow at dusk: deep blue over a pink afterglow, dark spruce, lit snow.
void paintWindow(QPainter& p, const Room& room, double x0, double x1, StableRandom& rnd) {
  const QPainterPath pane = room.band(x0, x1, 1.0, 2.2);
  const QRectF r = pane.boundingRect();
  p.save();
  p.setClipPath(pane);
  QLinearGradient sky(0, r.top(), 0, r.bottom());
  sky.setColorAt(0, QColor(0x2a3a6a));
  sky.setColorAt(0.55, QColor(0x8a7aa8));
  sky.setColorAt(0.75, QColor(0xf0b0a0));
  sky.setColorAt(1, QColor(0xe8eef8));
  p.fillRect(r, sky);
  p.setBrush(QColor(0xdce4f0));
  p.drawRect(QRectF(r.left(), r.top() + r.height() * 0.78, r.width(), r.height()));
  p.setBrush(QColor(0x1a2a26));
  for (int k = 0; k < 5; ++k) {
    const double x = r.left() + r.width() * rnd.between(0, 1), th = r.height() * rnd.between(0.2, 0.45);
    const double foot = r.top() + r.height() * 0.8;
    p.drawPolygon(
        QPolygonF({QPointF(x, foot - th), QPointF(x + th * 0.2, foot), QPointF(x - th * 0.2, foot)}));
  }
  p.setBrush(QColor(255, 255, 255, 110));  // frost in the lower corners
  p.drawEllipse(QPointF(r.left(), r.bottom()), r.width() * 0.3, r.height() * 0.2);
  p.drawEllipse(QPointF(r.right(), r.bottom()), r.width() * 0.3, r.height() * 0.2);
  p.restore();
  p.setBrush(QColor(0x4a2c16));
  const double frame = 0.05;
  p.drawPath(room.band(x0 - 4 * room.unit(), x1 + 4 * room.unit(), 0.95, 1.0 + frame));
  p.drawPath(room.band(x0 - 4 * room.unit(), x1 + 4 * room.unit(), 2.2 - frame, 2.25));
  p.drawPath(room.band(x0 - 4 * room.unit(), x0 + 2 * room.unit(), 1.0, 2.2));
  p.drawPath(room.band(x1 - 2 * room.unit(), x1 + 4 * room.unit(), 1.0, 2.2));
  p.drawPath(room.band((x0 + x1) / 2 - 1.5 * room.unit(), (x0 + x1) / 2 + 1.5 * room.unit(), 1.0, 2.2));
  p.drawPath(room.band(x0, x1, 1.58, 1.62));
}

// Fieldstone chimney, a fire of split logs, its glow on the hearth, floor and walls.
void paintFireplace(QPainter& p, const Room& room, double x0, double x1, StableRandom& rnd) {
  const double w = x1 - x0, u = room.unit();
  p.setBrush(QColor(0x6a6460));
  p.drawPath(room.band(x0, x1, 0, kWallTop, 0.25));
  for (double z = 0; z < kWallTop; z += 0.17) {  // stones in rough courses
    for (double x = x0 + rnd.between(0, 12) * u; x < x1 - 6 * u; x += rnd.between(16, 30) * u) {
      const double sw = std::min(rnd.between(14, 28) * u, x1 - x - 2 * u);
      const QRectF stone(QPointF(x, room.y(x, z + 0.16, 0.25)), QPointF(x + sw, room.y(x, z + 0.01, 0.25)));
      const QColor c = QColor(0x8a8478).lighter(int(rnd.between(80, 125)));
      QLinearGradient shade(stone.topLeft(), stone.bottomRight());
      shade.setColorAt(0, mixColour(c, QColor(0xa08060), rnd.between(0, 0.4)).lighter(115));
      shade.setColorAt(1, c.darker(135));
      p.setBrush(shade);
      p.drawRoundedRect(stone, stone.height() * 0.35, stone.height() * 0.35);
    }
  }
  const double o0 = x0 + w * 0.25, o1 = x1 - w * 0.25;
  p.setBrush(QColor(0x141010));
  p.drawPath(room.band(o0, o1, 0.25, 1.15, 0.25));
  const QRectF mouth = room.box(o0, o1, 0.25, 1.15, 0.25);
  // Hearth and mantel.
  p.setBrush(QColor(0x7a7470));
  p.drawPath(room.band(x0 - 8 * u, x1 + 8 * u, 0, 0.22, 0.9, 0.25));
  p.setBrush(QColor(0x5a3218));
  p.drawPath(room.band(x0 - 6 * u, x1 + 6 * u, 1.35, 1.45, 0.4));
  // Firelight on everything near it.
  p.save();
  p.setCompositionMode(QPainter::CompositionMode_Screen);
  QRadialGradient glow(QPointF(mouth.center().x(), mouth.bottom()), w * 1.6);
  glow.setColorAt(0, QColor(255, 140, 50, 120));
  glow.setColorAt(0.4, QColor(200, 90, 30, 60));
  glow.setColorAt(1, QColor(0, 0, 0, 0));
  p.setBrush(glow);
  p.drawEllipse(QPointF(mouth.center().x(), mouth.bottom()), w * 1.6, w * 0.8);
  p.restore();
  // The firebox stays dark above the fire, lit red at its floor.
  QLinearGradient box(0, mouth.top(), 0, mouth.bottom());
  box.setColorAt(0, QColor(0x100a08));
  box.setColorAt(0.6, QColor(0x2a120a));
  box.setColorAt(1, QColor(0x8a3010));
  p.setBrush(box);
  p.drawPath(room.band(o0 + 3 * u, o1 - 3 * u, 0.28, 1.1, 0.25));
  // The fire: glowing logs and layered flames.
  p.setBrush(QColor(0x3a1a0a));
  p.drawRoundedRect(QRectF(mouth.left() + mouth.width() * 0.12, mouth.bottom() - mouth.height() * 0.16,
                           mouth.width() * 0.76, mouth.height() * 0.12),
                    4 * u, 4 * u);
  const QColor flames[] = {QColor(0xc8300a), QColor(0xf07010), QColor(0xffc030), QColor(0xfff0a0)};
  for (int layer = 0; layer < 4; ++layer) {
    p.setBrush(flames[layer]);
    for (int k = 0; k < 6 - layer; ++k) {
      const double cx = mouth.left() + mouth.width() * rnd.between(0.25, 0.75);
      const double fh = mouth.height() * (0.7 - layer * 0.13) * rnd.between(0.7, 1.1);
      const double fw = mouth.width() * (0.16 - layer * 0.025);
      const double base = mouth.bottom() - mouth.height() * 0.12;
      QPainterPath flame;
      flame.moveTo(cx - fw, base);
      flame.cubicTo(cx - fw, base - fh * 0.5, cx + fw * 0.3, base - fh * 0.6, cx + rnd.between(-fw, fw) * 0.5,
                    base - fh);
      flame.cubicTo(cx + fw * 0.2, base - fh * 0.5, cx + fw, base - fh * 0.4, cx + fw, base);
      flame.closeSubpath();
      p.drawPath(flame);
    }
  }
}

// A deer mount: the neck on a plaque and a rack of antlers.
void paintMount(QPainter& p, QPointF at, double size) {
  p.setBrush(QColor(0x5a3218));
  p.drawEllipse(at, size * 0.35, size * 0.45);
  p.setBrush(QColor(0x8a6a48));
  p.drawEllipse(QRectF(at.x() - size * 0.2, at.y() - size * 0.25, size * 0.4, size * 0.55));
  p.setBrush(QColor(0x9a7a58));
  p.drawEllipse(QRectF(at.x() - size * 0.13, at.y() - size * 0.45, size * 0.26, size * 0.32));
  p.setBrush(QColor(0x1a1410));
  p.drawEllipse(at + QPointF(-size * 0.07, -size * 0.33), size * 0.025, size * 0.025);
  p.drawEllipse(at + QPointF(size * 0.07, -size * 0.33), size * 0.025, size * 0.025);
  p.drawEllipse(at + QPointF(0, -size * 0.16), size * 0.05, size * 0.035);
  p.setPen(QPen(QColor(0xe0d0b0), std::max(1.0, size * 0.035), Qt::SolidLine, Qt::RoundCap));
  for (const int side : {-1, 1}) {
    const QPointF base = at + QPointF(side * size * 0.1, -size * 0.45);
    const QPointF tip = base + QPointF(side * size * 0.45, -size * 0.35);
    p.drawLine(base, base + QPointF(side * size * 0.2, -size * 0.1));
    p.drawLine(base + QPointF(side * size * 0.2, -size * 0.1), tip);
    for (int t = 1; t <= 3; ++t) {
      const QPointF on = base + (tip - base) * (t / 4.0) + QPointF(side * size * 0.06, -size * 0.05);
      p.drawLine(on, on + QPointF(side * size * 0.02, -size * 0.22));
    }
  }
  p.setPen(Qt::NoPen);
}

// A carved board naming what stands below it, hung along the logs.
void paintSign(QPainter& p, const Room& room, double x0, double x1, double z, const QString& text) {
  p.setBrush(QColor(0x4a2a14));
  p.drawPath(room.band(x0, x1, z, z + 0.26, 0.02));
  p.setBrush(QColor(0x7a5230));
  p.drawPath(room.band(x0 + 2 * room.unit(), x1 - 2 * room.unit(), z + 0.025, z + 0.235, 0.03));
  // The lettering follows the slope the wall has in the picture at the board's middle.
  const double xc = (x0 + x1) / 2, yc = room.y(xc, z + 0.13, 0.03);
  const double slope = (room.y(xc + 1, z + 0.13, 0.03) - room.y(xc - 1, z + 0.13, 0.03)) / 2;
  const double h = room.y(xc, z, 0.03) - room.y(xc, z + 0.26, 0.03);
  QFont font(QStringLiteral("DejaVu Serif"));
  font.setPixelSize(std::max(6, int(h * 0.55)));
  font.setBold(true);
  p.save();
  p.translate(xc, yc);
  p.rotate(std::atan(slope) * 180 / 3.141592653589793);
  p.setFont(font);
  p.setPen(QColor(0xf4e0b0));
  p.drawText(QRectF(-(x1 - x0) / 2, -h / 2, x1 - x0, h), Qt::AlignCenter, text);
  p.restore();
}

void paintDoor(QPainter& p, const Room& room, const QRectF& a, bool front) {
  const double x0 = a.left(), x1 = a.right(), u = room.unit();
  p.setBrush(QColor(0x3a2212));
  p.drawPath(room.band(x0 - 5 * u, x1 + 5 * u, 0, 2.25));
  p.setBrush(QColor(0x7a4a26));
  p.drawPath(room.band(x0, x1, 0, 2.15));
  p.setPen(QPen(QColor(0x4a2a14), std::max(1.0, u)));
  for (double x = x0 + (x1 - x0) / 5; x < x1 - 1; x += (x1 - x0) / 5)
    p.drawLine(QPointF(x, room.y(x, 2.15)), QPointF(x, room.y(x, 0)));
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x4a2a14));
  for (const double z : {0.4, 1.7}) p.drawPath(room.band(x0, x1, z, z + 0.1));
  p.drawPath(room.band(x0, x1, 0.45, 1.7));
  p.setBrush(QColor(0x7a4a26));
  p.drawPath(room.band(x0 + 3 * u, x1 - 3 * u, 0.5, 1.65));
  if (front) {  // a small pane with the snow outside
    QLinearGradient dusk(0, room.y(x0, 1.95), 0, room.y(x0, 1.8));
    dusk.setColorAt(0, QColor(0x3a4a7a));
    dusk.setColorAt(1, QColor(0xe8c0b0));
    p.setBrush(dusk);
    p.drawPath(room.band(x0 + (x1 - x0) * 0.25, x1 - (x1 - x0) * 0.25, 1.78, 1.98));
  }
  p.setBrush(QColor(0x1a1a1a));
  const double hx = front ? x1 - (x1 - x0) * 0.15 : x0 + (x1 - x0) * 0.15;
  p.drawEllipse(QPointF(hx, room.y(hx, 1.05)), 3 * u, 3 * u);
}

// The outfitter's wall of goods and its counter with the cash register.
void paintOutfitter(QPainter& p, const Room& room, const QRectF& a, StableRandom& rnd) {
  const double x0 = a.left(), x1 = a.right(), u = room.unit();
  p.setBrush(QColor(0x5a3418));
  p.drawPath(room.band(x0, x1, 0.9, 2.3, 0.05));
  const QColor goods[] = {QColor(0xff6a10), QColor(0x3a5a3a), QColor(0x8a6a3a), QColor(0xc03020),
                          QColor(0x2a3a5a), QColor(0xd8c8a0), QColor(0x5a4a3a)};
  for (const double z : {1.2, 1.6, 2.0}) {
    p.setBrush(QColor(0x8a5a30));
    p.drawPath(room.band(x0, x1, z - 0.04, z, 0.1));
    for (double x = x0 + 3 * u; x < x1 - 8 * u;) {  // boxes, tins and folded coats on the shelf
      const double bw = rnd.between(6, 16) * u, bh = rnd.between(0.12, 0.3);
      p.setBrush(goods[rnd.below(7)].lighter(int(rnd.between(85, 120))));
      p.drawPath(room.band(x, x + bw, z, z + bh, 0.12));
      x += bw + rnd.between(1, 4) * u;
    }
  }
  // The counter, its top and the register on it.
  p.setBrush(QColor(0x6a3e1e));
  p.drawPath(room.band(x0, x1, 0, 1.0, 1.0));
  p.setBrush(QColor(0x8a5a30));
  p.drawPath(room.band(x0, x1, 1.0, 1.0, 1.0, 0.4));
  p.setBrush(QColor(0x4a2a14));
  for (double x = x0 + (x1 - x0) / 4; x < x1 - 1; x += (x1 - x0) / 4)
    p.drawPath(room.band(x - u, x + u, 0.05, 0.95, 1.0));
  const double rx = x0 + (x1 - x0) * 0.7;
  const QRectF reg = room.box(rx, rx + 26 * u, 1.0, 1.3, 0.7);
  QLinearGradient brass(reg.topLeft(), reg.topRight());
  brass.setColorAt(0, QColor(0xe8c868));
  brass.setColorAt(1, QColor(0x8a6a28));
  p.setBrush(brass);
  p.drawRoundedRect(reg, 3 * u, 3 * u);
  p.setBrush(QColor(0x202020));
  p.drawRect(QRectF(reg.left() + reg.width() * 0.2, reg.top() + reg.height() * 0.12, reg.width() * 0.6,
                    reg.height() * 0.22));
  p.setBrush(QColor(0xf0f0e0));
  for (int k = 0; k < 6; ++k)
    p.drawEllipse(QPointF(reg.left() + reg.width() * (0.2 + 0.12 * k), reg.top() + reg.height() * 0.6),
                  1.6 * u, 1.6 * u);
  // A blaze orange coat hanging at the end.
  const QRectF coat = room.box(x0 + 4 * u, x0 + 22 * u, 1.05, 1.6, 1.05);
  p.setBrush(QColor(0xff6a10));
  p.drawRoundedRect(coat, 3 * u, 3 * u);
}

// The tag counter: a board pinned with the season's tags over a low counter.
void paintTagCounter(QPainter& p, const Room& room, const QRectF& a, StableRandom& rnd) {
  const double x0 = a.left(), x1 = a.right(), u = room.unit();
  p.setBrush(QColor(0x4a2a14));
  p.drawPath(room.band(x0 + 4 * u, x1 - 4 * u, 1.25, 2.2, 0.02));
  p.setBrush(QColor(0xb89060));
  p.drawPath(room.band(x0 + 7 * u, x1 - 7 * u, 1.3, 2.15, 0.03));
  const QColor tags[] = {QColor(0xf4f0e0), QColor(0xf0d040), QColor(0x80c0f0), QColor(0xf09080),
                         QColor(0xa0e0a0)};
  for (double z = 1.38; z < 2.05; z += 0.16)
    for (double x = x0 + 10 * u; x < x1 - 18 * u; x += 12 * u) {
      const double jitter = rnd.between(-2, 2) * u;
      p.setBrush(tags[rnd.below(5)]);
      p.drawPath(room.band(x + jitter, x + jitter + 8 * u, z, z + 0.11, 0.04));
      p.setBrush(QColor(0xc02020));
      p.drawEllipse(QPointF(x + jitter + 4 * u, room.y(x, z + 0.1, 0.04)), 1.2 * u, 1.2 * u);
    }
  p.setBrush(QColor(0x6a3e1e));
  p.drawPath(room.band(x0, x1, 0, 1.0, 0.7));
  p.setBrush(QColor(0x8a5a30));
  p.drawPath(room.band(x0, x1, 1.0, 1.0, 0.7, 0.2));
  p.setBrush(QColor(0xf4f0e0));  // a licence book lying open
  p.drawPath(room.band(x0 + (x1 - x0) * 0.3, x0 + (x1 - x0) * 0.6, 1.0, 1.0, 0.6, 0.35));
}

void paintLectern(QPainter& p, const Room& room, const QRectF& a) {
  const double x0 = a.left(), x1 = a.right(), u = room.unit(), xc = (x0 + x1) / 2;
  p.setBrush(QColor(0x5a3218));
  p.drawPath(room.band(xc - 8 * u, xc + 8 * u, 0, 1.05, 0.9));
  p.drawPath(room.band(x0 + 4 * u, x1 - 4 * u, 0, 0.08, 0.9));
  p.setBrush(QColor(0x7a4a26));
  p.drawPath(room.band(x0 + 2 * u, x1 - 2 * u, 1.05, 1.3, 0.9, 0.6));
  // The big record book lying open.
  p.setBrush(QColor(0x6a1a14));
  p.drawPath(room.band(x0 + 5 * u, x1 - 5 * u, 1.12, 1.32, 0.85, 0.6));
  p.setBrush(QColor(0xf4ecd8));
  p.drawPath(room.band(x0 + 7 * u, xc - u, 1.14, 1.33, 0.83, 0.62));
  p.drawPath(room.band(xc + u, x1 - 7 * u, 1.14, 1.33, 0.83, 0.62));
  paintMount(p, QPointF(xc, room.y(xc, 2.0)), 60 * u);
}

void paintVideoCorner(QPainter& p, const Room& room, const QRectF& a) {
  const double x0 = a.left(), x1 = a.right(), u = room.unit();
  p.setBrush(QColor(0x4a2a14));
  p.drawPath(room.band(x0, x1, 0, 0.7, 0.4));
  p.setBrush(QColor(0x3a3a3a));  // the player under the set
  p.drawPath(room.band(x0 + 14 * u, x1 - 14 * u, 0.55, 0.65, 0.45));
  p.setBrush(QColor(0x30c030));
  p.drawEllipse(QPointF(x1 - 20 * u, room.y(x1, 0.6, 0.45)), 1.3 * u, 1.3 * u);
  p.setBrush(QColor(0x2a2a2a));
  p.drawPath(room.band(x0 + 6 * u, x1 - 6 * u, 0.72, 1.45, 0.4));
  const QPainterPath screen = room.band(x0 + 12 * u, x1 - 24 * u, 0.8, 1.38, 0.42);
  const QRectF s = screen.boundingRect();
  QLinearGradient picture(s.topLeft(), s.bottomLeft());
  picture.setColorAt(0, QColor(0x6a8ab8));
  picture.setColorAt(0.6, QColor(0xa8b8c8));
  picture.setColorAt(0.61, QColor(0x8a7a50));
  picture.setColorAt(1, QColor(0x6a5a38));
  p.setBrush(picture);
  p.drawPath(screen);
  p.setBrush(QColor(0x4a3020));  // a buck on the screen
  const QPointF deer(s.center().x(), s.top() + s.height() * 0.6);
  p.drawEllipse(deer, s.width() * 0.12, s.height() * 0.1);
  p.drawRect(QRectF(deer.x() - s.width() * 0.1, deer.y(), s.width() * 0.02, s.height() * 0.18));
  p.drawRect(QRectF(deer.x() + s.width() * 0.08, deer.y(), s.width() * 0.02, s.height() * 0.18));
  p.drawEllipse(deer + QPointF(s.width() * 0.14, -s.height() * 0.12), s.width() * 0.04, s.height() * 0.05);
  p.setBrush(QColor(0x8a8a8a));
  for (int k = 0; k < 2; ++k)
    p.drawEllipse(QPointF(x1 - 16 * u, room.y(x1, 1.25 - k * 0.15, 0.42)), 2.5 * u, 2.5 * u);
  // Tapes on the shelf beside the set.
  const QColor tapes[] = {QColor(0x202020), QColor(0x7a2020), QColor(0x203a6a)};
  for (int k = 0; k < 6; ++k) {
    p.setBrush(tapes[k % 3]);
    p.drawPath(room.band(x0 + (4 + k * 4) * u, x0 + (7 + k * 4) * u, 0.3, 0.5, 0.45));
  }
}

void paintTestDesk(QPainter& p, const Room& room, const QRectF& a, StableRandom& rnd) {
  const double x0 = a.left(), x1 = a.right(), u = room.unit();
  p.setBrush(QColor(0x5a3218));
  p.drawPath(room.band(x0 + 4 * u, x0 + 10 * u, 0, 0.75, 0.9));
  p.drawPath(room.band(x1 - 10 * u, x1 - 4 * u, 0, 0.75, 0.9));
  p.drawPath(room.band(x0, x1, 0.6, 0.78, 0.9));
  p.setBrush(QColor(0x8a5a30));
  p.drawPath(room.band(x0, x1, 0.78, 0.78, 0.9, 0.5));
  for (int k = 0; k < 4; ++k) {  // test papers, a pencil, a lamp
    const double x = x0 + (x1 - x0) * (0.15 + 0.16 * k) + rnd.between(-3, 3) * u;
    p.setBrush(QColor(0xf8f6ee).darker(int(rnd.between(100, 112))));
    p.drawPath(room.band(x, x + 14 * u, 0.78, 0.78, 0.85, 0.6));
    p.setPen(QPen(QColor(0x8090a0), std::max(0.5, 0.5 * u)));
    for (int line = 1; line < 4; ++line) {
      const double inset = 0.6 + 0.06 * line;
      p.drawLine(QPointF(x + 2 * u, room.y(x, 0.78, inset)), QPointF(x + 12 * u, room.y(x, 0.78, inset)));
    }
    p.setPen(Qt::NoPen);
  }
  p.setPen(QPen(QColor(0xf0c020), 2 * u, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(x0 + (x1 - x0) * 0.5, room.y(x0, 0.78, 0.75)),
             QPointF(x0 + (x1 - x0) * 0.62, room.y(x0, 0.78, 0.82)));
  p.setPen(Qt::NoPen);
  const double lx = x1 - 18 * u;
  p.setBrush(QColor(0x2a4a2a));
  p.drawPolygon(
      QPolygonF({QPointF(lx - 9 * u, room.y(lx, 1.18, 0.6)), QPointF(lx + 9 * u, room.y(lx, 1.18, 0.6)),
                 QPointF(lx + 5 * u, room.y(lx, 1.32, 0.6)), QPointF(lx - 5 * u, room.y(lx, 1.32, 0.6))}));
  p.setBrush(QColor(0x8a7a50));
  p.drawRect(QRectF(lx - u, room.y(lx, 1.18, 0.6), 2 * u, room.y(lx, 0.78, 0.6) - room.y(lx, 1.18, 0.6)));
  p.setBrush(QColor(255, 230, 150, 90));
  p.drawEllipse(QPointF(lx, room.y(lx, 0.8, 0.65)), 16 * u, 4 * u);
}

void paintLodgeThing(QPainter& p, const Room& room, const Spot& s, StableRandom& rnd) {
  const QRectF a = s.area;
  const QString name = s.name;
  if (name == u"^camp")  // the way out to camp is the front door; lettered like the range's
    paintDoor(p, room, a, true),
        paintSign(p, room, a.left() - 3 * room.unit(), a.right() + 3 * room.unit(), 2.35, "CAMP");
  else if (name == u"&range")
    paintDoor(p, room, a, false), paintSign(p, room, a.left() - 6, a.right() + 6, 2.35, "RANGE");
  else if (name == u"!outfit")
    paintOutfitter(p, room, a, rnd),
        paintSign(p, room, a.left() + a.width() * 0.2, a.right() - a.width() * 0.2, 2.5, "OUTFITTER");
  else if (name == u"*tags")
    paintTagCounter(p, room, a, rnd), paintSign(p, room, a.left(), a.right(), 2.4, "TAGS");
  else if (name == u"+book")
    paintLectern(p, room, a), paintSign(p, room, a.left() - 14, a.right() + 14, 2.62, "RECORD BOOK");
  else if (name == u"$movie")
    paintVideoCorner(p, room, a), paintSign(p, room, a.left() + 10, a.right() - 10, 2.45, "VIDEOS");
  else if (name == u"%test")
    paintTestDesk(p, room, a, rnd), paintSign(p, room, a.left(), a.right(), 2.5, "HUNTER'S TEST");
  else if (name == u"@host")
    paintPerson(p, Person::Host, a);
  else if (name == u"@guide")
    paintPerson(p, Person::Guide, a);
  else if (name == u"@warden")
    paintPerson(p, Person::Warden, a);
}

}  // namespace

QList<Spot> lodgeLayout(const QStringList& names, int width, int height) {
  const Room room(width, height);
  QList<Spot> spots;
  for (const QString& name : names) {
    const auto it = placements().find(name);
    if (it == placements().end()) continue;
    const Placement& at = it->second;
    spots << Spot{name, room.box(at.x0 * width, at.x1 * width, 0, at.top, at.inset).toAlignedRect()};
  }
  return spots;
}

QImage paintLodge(const QList<Spot>& spots, int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(QColor(0x4a2c18));  // the bands leave hairline gaps at their smoothed edges
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  p.setPen(Qt::NoPen);
  const Room room(width, height);
  StableRandom rnd(QStringLiteral("lodge"));
  paintWalls(p, room, rnd);
  paintCeilingAndFloor(p, room);
  const double w = width;
  for (const auto& [x0, x1] : {std::pair{0.15, 0.188}, std::pair{0.925, 0.948}, std::pair{0.012, 0.024}})
    paintWindow(p, room, x0 * w, x1 * w, rnd);
  paintFireplace(p, room, 0.43 * w, 0.57 * w, rnd);
  paintMount(p, QPointF(0.5 * w, room.y(0.5 * w, 2.15, 0.25)), 80 * room.unit());
  for (const Spot& s : spots) paintLodgeThing(p, room, s, rnd);
  p.end();
  return image;
}

}  // namespace worldgen
