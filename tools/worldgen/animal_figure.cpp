// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/animal_figure.h"

#include "tools/worldgen/animal_outline.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace worldgen {

namespace {

constexpr double kTurn = 6.283185307179586;

bool isBird(const AnimalLook& l) {
  return l.plan == BodyPlan::Bird || l.plan == BodyPlan::WaderBird;
}

// A point given in body units from the middle of the trunk, forward positive, up positive.
QPointF at(const Pose& pose, double scale, QPointF centre, double forward, double up) {
  return {centre.x() + pose.facing * forward * scale, centre.y() - up * scale};
}

QRectF box(QPointF centre, double w, double h) {
  return {centre.x() - w / 2, centre.y() - h / 2, w, h};
}

std::array<QLineF, 4> legsOf(const AnimalLook& l, const Pose& pose, const QRectF& trunk, double s) {
  const double reach = l.legLength * (1 - 0.8 * pose.legFold) * s;
  std::array<QLineF, 4> legs;
  const double hips[] = {0.3, 0.22, -0.3, -0.36};  // fore pair, hind pair
  for (int i = 0; i < 4; ++i) {
    const double phase = pose.stride * kTurn + (i % 2) * kTurn / 2 + (i / 2) * kTurn / 4;
    const double sweep = std::sin(phase) * 0.45 * pose.swing;
    const QPointF hip(trunk.center().x() + pose.facing * hips[i] * trunk.width(),
                      trunk.bottom() - 0.15 * trunk.height());
    const double lift = std::max(0.0, std::cos(phase)) * 0.15 * pose.swing;
    legs[size_t(i)] = QLineF(hip, QPointF(hip.x() + pose.facing * std::sin(sweep) * reach,
                                          hip.y() + reach * (std::cos(sweep) - lift)));
  }
  if (isBird(l)) legs[2] = legs[0], legs[3] = legs[1];
  return legs;
}

QRectF headgearOf(const AnimalLook& l, const QRectF& head, double s, int facing) {
  const double size[] = {0, 0.55, 0.3, 0.7, 0.3, 0.17, 0.22, 0.12};
  const double h = size[int(l.headgear)] * s;
  if (h <= 0) return {};
  if (l.headgear == Headgear::Palmate)  // broad palms spread either side of the head
    return {head.center().x() - facing * head.width() * 0.35 - h * 0.8, head.top() - h * 1.1, h * 1.6, h};
  const double w = l.headgear == Headgear::Curl ? head.width() * 0.9 : h * 1.1;
  const double back = facing > 0 ? head.left() - w * 0.35 : head.right() - w * 0.65;
  return {back, head.top() - h * 0.9, w, h};
}

// A point of an authored shape in its frame, mirrored when the animal faces left.
QPointF inFrame(const QRectF& f, int facing, QPointF at) {
  return {facing > 0 ? f.left() + at.x() * f.width() : f.right() - at.x() * f.width(),
          f.top() + at.y() * f.height()};
}

QRectF frameOf(const Anatomy::Frames& f, OutlinePart part) {
  const QRectF frames[] = {f.trunk, f.neck, f.head, f.headgear, f.tail};
  return frames[int(part)];
}

QPainterPath shapePath(const OutlineShape& shape, const Anatomy::Frames& frames, int facing) {
  QPolygonF points;
  for (const QPointF& at : shape.points) points << inFrame(frameOf(frames, shape.part), facing, at);
  QPainterPath path;
  if (!shape.smooth) {
    path.addPolygon(points);
    path.closeSubpath();
    return path;
  }
  const qsizetype n = points.size();
  auto mid = [&](qsizetype i) { return (points[i % n] + points[(i + 1) % n]) / 2; };
  path.moveTo(mid(n - 1));
  for (qsizetype i = 0; i < n; ++i) path.quadTo(points[i], mid(i));
  return path;
}

// The parts the shot tests are the bounds of what is drawn for them.
void fitToOutline(Anatomy& a, const SpeciesOutline& outline, int facing) {
  QRectF bounds[5];
  for (const OutlineShape& shape : outline.shapes)
    bounds[int(shape.part)] |= shapePath(shape, a.frames, facing).boundingRect();
  a.trunk = bounds[int(OutlinePart::Trunk)];
  a.head = bounds[int(OutlinePart::Head)];
  a.headgear = bounds[int(OutlinePart::Headgear)];
}

}  // namespace

Anatomy anatomyOf(const AnimalLook& l, const Pose& pose) {
  const double s = l.metres * pose.pixelsPerMetre;  // pixels per body length
  Anatomy a;
  const double trunkW = (isBird(l) ? 0.75 : 1.0) * s, trunkH = l.bodyHeight * s;
  const QPointF centre(pose.x,
                       pose.ground - l.legLength * (1 - 0.8 * pose.legFold) * s - trunkH / 2 + 0.1 * trunkH);
  a.trunk = box(centre, trunkW, trunkH);
  a.hump =
      l.hump > 0 ? box(at(pose, s, centre, 0.22, l.bodyHeight * 0.45), 0.45 * s, l.hump * s * 1.4) : QRectF();
  const double lift = pose.headLift;
  const double neckUp = l.neckLength * (lift < 0 ? 0.2 + lift * 1.2 : 0.6 + 0.4 * lift);
  const QPointF shoulder = at(pose, s, centre, 0.38 * trunkW / s, l.bodyHeight * 0.25);
  const QPointF poll = at(pose, s, shoulder, l.neckLength * (lift < 0 ? 0.7 : 0.45), neckUp);
  const double headW = l.headLength * s, headH = std::max(l.headLength * 0.45, 0.08) * s;
  const QPointF headCentre(poll.x() + l.headLength * 0.4 * s * pose.facing,
                           poll.y() + headH * (lift < 0 ? 0.7 : 0.2));
  a.head = box(headCentre, headW, headH);
  const double neckW = std::max(0.12, l.bodyHeight * 0.45) * s * (isBird(l) ? 0.4 : 1.0);
  a.neck = QPolygonF({at(pose, s, shoulder, -neckW / s * 0.7, l.bodyHeight * 0.25),
                      at(pose, s, poll, -0.02, headH / s * 0.4), at(pose, s, poll, 0.03, -headH / s * 0.6),
                      at(pose, s, shoulder, neckW / s * 0.4, -l.bodyHeight * 0.6)});
  a.legs = legsOf(l, pose, a.trunk, s);
  a.legWidth = std::max(1.5, (isBird(l) ? 0.02 : 0.07) * s);
  a.headgear = headgearOf(l, a.head, s, pose.facing);
  a.vital = box(at(pose, s, centre, 0.22 * trunkW / s, -0.08 * l.bodyHeight), 0.24 * trunkW, 0.42 * trunkH);
  a.gut = box(at(pose, s, centre, -0.12 * trunkW / s, -0.18 * l.bodyHeight), 0.26 * trunkW, 0.38 * trunkH);
  a.tailBase = at(pose, s, centre, -0.5 * trunkW / s, 0.25 * l.bodyHeight);
  const double tailW = l.tail * s * 0.8;
  // Authored heads are drawn in a deeper frame than the plain oval, to carry ears and jaw.
  a.frames = {a.trunk, a.neck.boundingRect(), box(a.head.center(), headW, headW * 0.62), a.headgear,
              QRectF(pose.facing > 0 ? a.tailBase.x() - tailW : a.tailBase.x(), a.tailBase.y(), tailW,
                     l.tail * s * 0.9)};
  if (l.outline) fitToOutline(a, *l.outline, pose.facing);
  return a;
}

namespace {

// A leg as a tapered limb bent at the knee (forelegs) or hock (hind legs), with a dark hoof.
QPolygonF limb(const QLineF& leg, double width, bool hind, int facing) {
  const QPointF hip = leg.p1(), foot = leg.p2();
  const QPointF knee = hip + (foot - hip) * 0.48 + QPointF((hind ? -1 : 0.4) * facing * width * 0.9, 0);
  const double top = width * (hind ? 1.6 : 1.3), mid = width * 0.75, low = width * 0.5;
  return QPolygonF({hip - QPointF(top, 0), knee - QPointF(mid, 0), foot - QPointF(low, 0),
                    foot + QPointF(low, 0), knee + QPointF(mid, 0), hip + QPointF(top, 0)});
}

void drawLegs(QPainter& p, const Anatomy& a, const AnimalLook& l, const Pose& pose) {
  p.setPen(Qt::NoPen);
  for (size_t i = 0; i < a.legs.size(); ++i) {
    // The far legs are in the body's shade.
    p.setBrush(i % 2 ? l.legs.darker(125) : l.legs);
    p.drawPolygon(limb(a.legs[i], a.legWidth / 2, i >= 2, pose.facing));
  }
  p.setBrush(l.legs.darker(170));
  for (const QLineF& leg : a.legs) p.drawEllipse(leg.p2(), a.legWidth * 0.35, a.legWidth * 0.25);
}

void drawTail(QPainter& p, const Anatomy& a, const AnimalLook& l, const Pose& pose) {
  const double s = a.trunk.width();
  if (l.plan == BodyPlan::Bird && l.beard) {  // the turkey's fan
    p.setBrush(l.coat.darker(120));
    p.setPen(QPen(l.rump, 1.5));
    p.drawPie(box(a.tailBase, s * 0.9, s * 0.9), pose.facing > 0 ? 70 * 16 : 20 * 16, 90 * 16);
    return;
  }
  const QPointF end(a.tailBase.x() - pose.facing * l.tail * s * 0.8, a.tailBase.y() + l.tail * s * 0.5);
  p.setPen(QPen(l.rump == l.coat ? l.coat.darker(115) : l.rump,
                std::max(1.5, s * (l.tail > 0.3 ? 0.09 : 0.06)), Qt::SolidLine, Qt::RoundCap));
  p.drawLine(a.tailBase, end);
}

// The barrel of the body: a level back, the chest deeper than the tucked-up flank.
QPainterPath trunkOutline(const QRectF& t, int facing) {
  auto at = [&](double fx, double fy) {  // fx from rump (0) to chest (1)
    return QPointF(facing > 0 ? t.left() + fx * t.width() : t.right() - fx * t.width(),
                   t.top() + fy * t.height());
  };
  QPainterPath path(at(0.02, 0.5));
  path.cubicTo(at(0.0, 0.1), at(0.2, 0.0), at(0.5, 0.02));
  path.cubicTo(at(0.8, 0.0), at(1.0, 0.1), at(1.0, 0.5));
  path.cubicTo(at(1.0, 0.95), at(0.8, 1.02), at(0.6, 0.98));
  path.cubicTo(at(0.4, 0.9), at(0.25, 0.9), at(0.1, 0.85));
  path.cubicTo(at(0.03, 0.8), at(0.0, 0.65), at(0.02, 0.5));
  return path;
}

void drawTrunk(QPainter& p, const Anatomy& a, const AnimalLook& l, const Pose& pose) {
  QLinearGradient shade(a.trunk.topLeft(), a.trunk.bottomLeft());
  shade.setColorAt(0, l.coat.lighter(112));
  shade.setColorAt(0.65, l.coat);
  shade.setColorAt(1, l.belly);
  p.setPen(Qt::NoPen);
  p.setBrush(shade);
  p.drawPath(trunkOutline(a.trunk, pose.facing));
  if (!a.hump.isEmpty()) p.drawEllipse(a.hump);
  if (l.rump != l.coat) {
    p.setBrush(l.rump);
    const double w = a.trunk.width() * 0.22;
    const double x = pose.facing > 0 ? a.trunk.left() : a.trunk.right() - w;
    p.drawEllipse(QRectF(x, a.trunk.top() + a.trunk.height() * 0.15, w, a.trunk.height() * 0.6));
  }
  p.setBrush(l.coat);
  p.drawPolygon(a.neck);
  if (l.marking == Marking::BackStripes) {  // two white bands from the crown along the back
    p.setBrush(l.rump);
    const QRectF t = a.trunk;
    p.drawChord(QRectF(t.left(), t.top(), t.width(), t.height() * 0.7), 15 * 16, 150 * 16);
    p.setBrush(l.coat);
    p.drawChord(
        QRectF(t.left() + t.width() * 0.15, t.top() + t.height() * 0.12, t.width() * 0.7, t.height() * 0.5),
        30 * 16, 120 * 16);
  }
}

void drawHeadgear(QPainter& p, const Anatomy& a, const AnimalLook& l, const Pose& pose) {
  if (a.headgear.isEmpty()) return;
  const QRectF g = a.headgear;
  const QColor bone = l.headgear == Headgear::Spikes ? QColor(0x1a1a1a) : QColor(0xd8c8a8);
  const double w = std::max(1.2, g.height() * 0.08);
  p.setPen(QPen(bone, w, Qt::SolidLine, Qt::RoundCap));
  p.setBrush(Qt::NoBrush);
  const QPointF base(a.head.center().x() - pose.facing * a.head.width() * 0.25, a.head.top() + 1);
  const double f = -pose.facing;  // beams sweep back over the neck
  switch (l.headgear) {
    case Headgear::Antlers:
    case Headgear::CaribouRack: {
      const QPointF tip(base.x() + f * g.width() * 0.55, g.top());
      p.drawLine(base, tip);
      for (int t = 1; t <= 3; ++t) {
        const QPointF on = base + (tip - base) * (t / 4.0);
        p.drawLine(on, on + QPointF(-f * g.width() * 0.18, -g.height() * 0.3));
      }
      if (l.headgear == Headgear::CaribouRack) {
        p.setBrush(bone);
        p.drawEllipse(box(base + QPointF(-f * g.width() * 0.15, -g.height() * 0.2), g.width() * 0.18,
                          g.height() * 0.15));
      }
      break;
    }
    case Headgear::Palmate:
      p.setBrush(bone);
      p.drawChord(QRectF(g.left(), g.top(), g.width(), g.height() * 2), 0, 180 * 16);
      for (int t = 0; t < 5; ++t)  // tines along the rim of the palm
        p.drawLine(QPointF(g.left() + g.width() * (0.1 + 0.2 * t), g.top() + g.height() * 0.25),
                   QPointF(g.left() + g.width() * (0.05 + 0.22 * t), g.top() - g.height() * 0.15));
      break;
    case Headgear::Curl:
      p.setPen(QPen(bone.darker(115), std::max(2.0, g.height() * 0.25), Qt::SolidLine, Qt::RoundCap));
      p.drawArc(QRectF(base.x() + f * g.width() * 0.1 - g.width() / 2, g.top(), g.width(), g.height() * 1.6),
                pose.facing > 0 ? 0 : -90 * 16, 270 * 16);
      break;
    default:
      p.drawLine(base, QPointF(base.x() + f * g.width() * 0.3, g.top()));
      p.drawLine(base + QPointF(pose.facing * 2, 0), QPointF(base.x() + f * g.width() * 0.1, g.top()));
  }
}

void drawHead(QPainter& p, const Anatomy& a, const AnimalLook& l, const Pose& pose) {
  p.setPen(Qt::NoPen);
  p.setBrush(l.marking == Marking::WhiteHead ? l.rump : l.coat.darker(105));
  p.drawEllipse(a.head);
  if (l.marking == Marking::WhiteHead) p.drawPolygon(a.neck);
  if (l.marking == Marking::BackStripes) {
    p.setBrush(l.rump);  // the white blaze up the face
    p.drawEllipse(box(a.head.center() + QPointF(0, -a.head.height() * 0.3), a.head.width() * 0.7,
                      a.head.height() * 0.2));
  }
  if (l.marking == Marking::Mask) {
    p.setBrush(QColor(0x151515));  // the bandit's mask across the eyes
    p.drawEllipse(box(a.head.center(), a.head.width() * 0.6, a.head.height() * 0.35));
  }
  const double h = a.head.height();
  const QPointF back(a.head.center().x() - pose.facing * a.head.width() * 0.3, a.head.top());
  if (!isBird(l)) {  // ears
    p.setBrush(l.coat.darker(125));
    p.drawEllipse(box(back + QPointF(-pose.facing * h * 0.1, -h * 0.15), h * 0.35, h * 0.55));
  }
  if (l.beard) {
    p.setBrush(l.plan == BodyPlan::Bird ? QColor(0xb02020) : l.coat.darker(140));
    p.drawEllipse(
        box(QPointF(a.head.center().x() + pose.facing * a.head.width() * 0.1, a.head.bottom() + h * 0.3),
            h * 0.4, h * 0.8));
  }
  p.setBrush(QColor(0x101010));
  const double eye = std::max(1.2, h * 0.16);
  p.drawEllipse(box(
      QPointF(a.head.center().x() + pose.facing * a.head.width() * 0.08, a.head.top() + h * 0.35), eye, eye));
  if (isBird(l)) {  // beak
    p.setBrush(l.legs);
    const QPointF tip(a.head.center().x() + pose.facing * a.head.width() * 0.85,
                      a.head.center().y() + h * 0.1);
    p.drawPolygon(QPolygonF(
        {QPointF(a.head.center().x() + pose.facing * a.head.width() * 0.4, a.head.top() + h * 0.3), tip,
         QPointF(a.head.center().x() + pose.facing * a.head.width() * 0.4, a.head.bottom() - h * 0.2)}));
  }
}

QColor toneOf(const AnimalLook& l, Tone tone) {
  switch (tone) {
    case Tone::Coat: return l.coat;
    case Tone::Belly: return l.belly;
    case Tone::Rump: return l.rump;
    case Tone::Shade: return l.coat.darker(135);
    case Tone::Horn: return l.outline->horn;
    case Tone::Dark: break;
  }
  return QColor(0x141210);
}

// Lit from above: each shape pales at its top and darkens below, the body fading to its belly.
void paintShape(QPainter& p, const QPainterPath& path, const OutlineShape& shape, const AnimalLook& l,
                double rim) {
  const QColor c = toneOf(l, shape.tone);
  const QRectF b = path.boundingRect();
  QLinearGradient shade(b.topLeft(), b.bottomLeft());
  shade.setColorAt(0, c.lighter(118));
  shade.setColorAt(0.6, c);
  shade.setColorAt(1, shape.part == OutlinePart::Trunk && shape.tone == Tone::Coat ? l.belly : c.darker(125));
  const bool outlined = shape.tone == Tone::Coat || shape.tone == Tone::Horn;
  p.setPen(outlined ? QPen(c.darker(170), rim) : QPen(Qt::NoPen));
  p.setBrush(shade);
  p.drawPath(path);
}

// The tail behind the legs, or everything else in front of them.
void drawOutlined(QPainter& p, const Anatomy& a, const AnimalLook& l, const Pose& pose, bool tail) {
  const double rim = std::max(0.6, a.legWidth * 0.1);
  QPainterPath neck;
  neck.addPolygon(a.neck);
  if (!tail) paintShape(p, neck, {OutlinePart::Neck, Tone::Coat, false, {}}, l, rim);
  for (const OutlineShape& shape : l.outline->shapes) {
    if ((shape.part == OutlinePart::Tail) != tail) continue;
    paintShape(p, shapePath(shape, a.frames, pose.facing), shape, l, rim);
  }
}

HitZone zoneOf(const QRectF& r, int code) {
  const QRect i = r.toAlignedRect().intersected(QRect(0, 0, 320, 240));
  if (i.isEmpty()) return {-10, -10, -10, -10, int16_t(code)};  // off screen: nothing to hit
  return {int16_t(i.left()), int16_t(i.top()), int16_t(i.right()), int16_t(i.bottom()), int16_t(code)};
}

QRectF legBox(const Anatomy& a) {
  QRectF r;
  for (const QLineF& leg : a.legs) r |= QRectF(leg.p1(), leg.p2()).normalized();
  return r;
}

}  // namespace

void drawAnimal(QPainter& p, const AnimalLook& look, const Pose& pose) {
  const Anatomy a = anatomyOf(look, pose);
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  if (pose.tilt != 0) {
    p.translate(pose.x, pose.ground);
    p.rotate(pose.tilt * pose.facing);
    p.translate(-pose.x, -pose.ground);
  }
  if (look.outline) {
    drawOutlined(p, a, look, pose, true);
    drawLegs(p, a, look, pose);
    drawOutlined(p, a, look, pose, false);
  } else {
    drawTail(p, a, look, pose);
    drawLegs(p, a, look, pose);
    drawTrunk(p, a, look, pose);
    drawHead(p, a, look, pose);
    drawHeadgear(p, a, look, pose);
  }
  p.restore();
}

HitRecord hitZonesOf(const AnimalLook& look, const Pose& pose) {
  const Anatomy a = anatomyOf(look, pose);
  return zoneRecord({a.headgear, a.vital, a.head, a.gut, a.trunk | a.hump, legBox(a)});
}

HitRecord zoneRecord(const ZoneBoxes& b) {
  QList<HitZone> zones;
  if (!b.headgear.isEmpty()) zones << zoneOf(b.headgear, kHeadgearZone);
  zones << zoneOf(b.vital, kVitalZone) << zoneOf(b.head, kHeadZone) << zoneOf(b.gut, kGutZone)
        << zoneOf(b.body, kBodyZone) << zoneOf(b.legs, kLegZone);
  HitRecord record{};
  for (size_t i = 0; i < record.size(); ++i) record[i] = zones[qsizetype(i)];
  return record;
}

}  // namespace worldgen
