// SPDX-License-Identifier: GPL-2.0-or-later
// One animal in one picture: where its parts lie for a pose, how it is drawn, and the hit
// zones taken from those same parts, so what the player sees is what the shot tests.
#pragma once

#include "tools/worldgen/animal_look.h"

#include <QLineF>
#include <QPainter>
#include <QPolygonF>
#include <QRectF>

#include <array>
#include <cstdint>

namespace worldgen {

struct Pose {
  double x = 160;       // middle of the trunk, frame pixels
  double ground = 200;  // where the hooves stand
  double pixelsPerMetre = 40;
  int facing = 1;       // +1 walks to the right, -1 to the left
  double stride = 0;    // gait phase in turns; legs swing with it
  double swing = 0;     // 0 standing .. 1 full running stride
  double headLift = 0;  // -1 grazing, 0 level, 1 alert
  double tilt = 0;      // degrees the body leans, for a fall
  double legFold = 0;   // 0 standing .. 1 legs folded under, lying down
  double haze = 0;      // 0 near .. 1 lost in the distance's haze
};

struct Anatomy {
  QRectF trunk;
  QRectF hump;
  QRectF head;
  QPolygonF neck;
  std::array<QLineF, 4> legs;
  QRectF headgear;  // empty when the animal has none
  QRectF vital;     // heart and lungs behind the shoulder
  QRectF gut;
  QPointF tailBase;
  double legWidth = 2;
  // Where an authored outline's shapes are placed; its trunk, head and headgear boxes above
  // are then the bounds of those shapes.
  struct Frames {
    QRectF trunk, neck, head, headgear, tail;
  } frames;
};

struct HitZone {
  int16_t left = 0, top = 0, right = 0, bottom = 0, code = 0;
};
using HitRecord = std::array<HitZone, 5>;

inline constexpr int kVitalZone = 7;
inline constexpr int kBodyZone = 4;
inline constexpr int kLegZone = 1;
inline constexpr int kHeadZone = 8;
inline constexpr int kGutZone = 9;
inline constexpr int kHeadgearZone = 10;

Anatomy anatomyOf(const AnimalLook& look, const Pose& pose);
void drawAnimal(QPainter& p, const AnimalLook& look, const Pose& pose);
// Most telling zone first, as the shot tests them in order.
HitRecord hitZonesOf(const AnimalLook& look, const Pose& pose);

// The parts of an animal in frame pixels, as one record; headgear may be empty.
struct ZoneBoxes {
  QRectF headgear, vital, head, gut, body, legs;
};
HitRecord zoneRecord(const ZoneBoxes& boxes);

}  // namespace worldgen
