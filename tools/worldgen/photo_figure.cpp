// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/photo_figure.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace worldgen {

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kFold = 0.75;  // how much of the legs' height folds away lying down

double ramp(double v, double from, double to) {
  const double t = std::clamp((v - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

// The photograph scaled for one pose on a canvas with room for the head to bend.
struct Placing {
  double w = 0, h = 0;  // the photograph on the canvas
  double top = 0;       // room above it for a raised head
  double drop = 0;      // how far the body sinks as the legs fold
  double headTurn = 0;  // degrees, positive lowers the nose
  QSize canvas;
  QPointF neck;  // canvas pixels
  QTransform toFrame;
};

Placing placingOf(const AnimalPhoto& photo, const Pose& pose) {
  Placing l;
  l.w = std::max(4.0, std::round(photo.metres * pose.pixelsPerMetre));
  l.h = std::max(4.0, std::round(l.w * photo.image.height() / photo.image.width()));
  l.top = std::round(0.15 * l.h);
  l.drop = kFold * pose.legFold * (1 - photo.legTop) * l.h;
  l.headTurn = pose.headLift < 0 ? -pose.headLift * 40 : -pose.headLift * 8;
  l.canvas = QSize(int(l.w * 1.2), int(l.top + l.h * 1.35));
  l.neck = QPointF(photo.neck.x() * l.w, l.top + photo.neck.y() * l.h + l.drop);
  const double bob = std::abs(std::sin(pose.stride * kTurn)) * 0.015 * l.h * pose.swing;
  l.toFrame.translate(pose.x, pose.ground - bob);
  l.toFrame.rotate(pose.tilt * pose.facing);
  l.toFrame.scale(pose.facing, 1);
  l.toFrame.translate(-l.w / 2, -(l.top + l.h));
  return l;
}

// Legs shear about the hips, fore and hind pairs in turn, and fold as the animal lies down.
QImage walkingCanvas(const QImage& scaled, const AnimalPhoto& photo, const Pose& pose, const Placing& l) {
  QImage out(l.canvas, QImage::Format_ARGB32_Premultiplied);
  out.fill(Qt::transparent);
  const double legTop = photo.legTop * l.h, legs = l.h - legTop;
  const double destLegTop = l.top + legTop + l.drop;
  const double split = photo.legSplit * l.w, reach = 0.07 * l.w * pose.swing;
  const double fore = std::sin(pose.stride * kTurn), hind = -fore;
  for (int y = 0; y < out.height(); ++y) {
    const bool leg = y >= destLegTop;
    const double sy = leg ? legTop + (y - destLegTop) / (1 - kFold * pose.legFold) : y - l.top - l.drop;
    const int row = int(std::floor(sy));
    if (row < 0 || row >= scaled.height()) continue;
    const auto* in = reinterpret_cast<const QRgb*>(scaled.constScanLine(row));
    auto* line = reinterpret_cast<QRgb*>(out.scanLine(y));
    const double depth = leg ? (sy - legTop) / legs : 0;
    for (int x = 0; x < out.width(); ++x) {
      const double wave = hind + (fore - hind) * ramp(x, split - 0.05 * l.w, split + 0.05 * l.w);
      const int sx = int(std::lround(x - reach * depth * wave));
      if (sx >= 0 && sx < scaled.width()) line[x] = in[sx];
    }
  }
  return out;
}

// The share of each canvas pixel that moves with the head.
double headShare(const AnimalPhoto& photo, const Placing& l, int x, int y) {
  const double legTop = l.top + photo.legTop * l.h + l.drop;
  return ramp(x, l.neck.x() - 0.04 * l.w, l.neck.x() + 0.05 * l.w) *
         (1 - ramp(y, legTop - 0.08 * l.h, legTop));
}

// Splits off the head and neck and turns them about the neck; added back so the seam is whole.
QImage bentCanvas(const QImage& canvas, const AnimalPhoto& photo, const Placing& l) {
  if (std::abs(l.headTurn) < 0.5) return canvas;
  QImage body = canvas, head = canvas;
  for (int y = 0; y < canvas.height(); ++y) {
    auto* b = reinterpret_cast<QRgb*>(body.scanLine(y));
    auto* h = reinterpret_cast<QRgb*>(head.scanLine(y));
    for (int x = 0; x < canvas.width(); ++x) {
      const double share = headShare(photo, l, x, y);
      auto part = [](QRgb c, double f) {
        return qRgba(int(qRed(c) * f), int(qGreen(c) * f), int(qBlue(c) * f), int(qAlpha(c) * f));
      };
      h[x] = part(h[x], share);
      b[x] = part(b[x], 1 - share);
    }
  }
  QPainter p(&body);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  p.setCompositionMode(QPainter::CompositionMode_Plus);
  p.translate(l.neck);
  p.rotate(l.headTurn);
  p.translate(-l.neck);
  p.drawImage(0, 0, head);
  return body;
}

// Light from above: the belly and legs a little darker than the back.
void shade(QImage& canvas, const Placing& l) {
  QPainter p(&canvas);
  p.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  QLinearGradient g(0, l.top, 0, l.top + l.h);
  g.setColorAt(0, QColor(255, 240, 210, 25));
  g.setColorAt(0.45, QColor(0, 0, 0, 0));
  g.setColorAt(1, QColor(0, 0, 0, 90));
  p.fillRect(canvas.rect(), g);
}

QPointF onCanvas(const AnimalPhoto& photo, const Placing& l, QPointF f, bool withHead) {
  QPointF c(f.x() * l.w, l.top + f.y() * l.h + l.drop);
  if (f.y() > photo.legTop) c.ry() -= l.drop * (f.y() - photo.legTop) / (1 - photo.legTop);
  if (!withHead) return c;
  QTransform turn;
  turn.translate(l.neck.x(), l.neck.y());
  turn.rotate(l.headTurn);
  turn.translate(-l.neck.x(), -l.neck.y());
  return turn.map(c);
}

QRectF inFrame(const AnimalPhoto& photo, const Placing& l, const QRectF& f, bool withHead) {
  if (f.isEmpty()) return {};
  QPolygonF corners;
  for (const QPointF& corner : {f.topLeft(), f.topRight(), f.bottomRight(), f.bottomLeft()})
    corners << l.toFrame.map(onCanvas(photo, l, corner, withHead));
  return corners.boundingRect();
}

}  // namespace

void drawPhotoAnimal(QPainter& p, const AnimalPhoto& photo, const Pose& pose) {
  const Placing l = placingOf(photo, pose);
  const QImage scaled =
      photo.image.scaled(int(l.w), int(l.h), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage canvas = bentCanvas(walkingCanvas(scaled, photo, pose, l), photo, l);
  shade(canvas, l);
  p.save();
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  p.setTransform(l.toFrame, true);
  p.drawImage(0, 0, canvas);
  p.restore();
}

HitRecord photoHitZones(const AnimalPhoto& photo, const Pose& pose) {
  const Placing l = placingOf(photo, pose);
  const QRectF head = inFrame(photo, l, photo.head, true);
  // The trunk ends where the neck begins; the head is counted with the body wherever it bends.
  QRectF trunk = photo.body;
  trunk.setRight(std::min(trunk.right(), photo.neck.x()));
  return zoneRecord({inFrame(photo, l, photo.headgear, true), inFrame(photo, l, photo.vital, false), head,
                     inFrame(photo, l, photo.gut, false), inFrame(photo, l, trunk, false) | head,
                     inFrame(photo, l, photo.legs, false)});
}

}  // namespace worldgen
