// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/animal_view.h"

#include "tools/worldgen/animal_look.h"
#include "tools/worldgen/photo_figure.h"

#include <QRadialGradient>

#include <algorithm>

namespace worldgen {

namespace {

QRectF boxOf(const HitZone& z) {
  return QRectF(QPointF(z.left, z.top), QPointF(z.right + 1, z.bottom + 1));
}

// A soft dark patch where the animal meets the ground, so it stands on it rather than over it.
void contactShadow(QPainter& p, const HitRecord& zones, const Pose& pose) {
  QRectF body;
  for (const HitZone& z : zones)
    if (z.code == kBodyZone && z.left >= 0) body = boxOf(z);
  if (body.isEmpty() || pose.tilt > 30) return;
  const QRectF patch(body.left() - body.width() * 0.05, pose.ground - body.height() * 0.12,
                     body.width() * 1.1, body.height() * 0.24);
  QRadialGradient g(patch.center(), patch.width() / 2);
  g.setColorAt(0, QColor(10, 8, 5, 110));
  g.setColorAt(1, QColor(10, 8, 5, 0));
  p.save();
  p.setPen(Qt::NoPen);
  p.setBrush(g);
  p.translate(patch.center());
  p.scale(1, patch.height() / patch.width());
  p.translate(-patch.center());
  p.drawEllipse(QRectF(patch.center().x() - patch.width() / 2, patch.center().y() - patch.width() / 2,
                       patch.width(), patch.width()));
  p.restore();
}

}  // namespace

void drawAnimal(QPainter& p, int animal, const Pose& pose) {
  const AnimalPhoto* photo = photoOf(animal);
  contactShadow(p, hitZonesOf(animal, pose), pose);
  const QRect frame = p.device() ? QRect(0, 0, p.device()->width(), p.device()->height()) : QRect();
  QImage layer(frame.size(), QImage::Format_ARGB32_Premultiplied);
  layer.fill(Qt::transparent);
  {
    QPainter l(&layer);
    l.setRenderHint(QPainter::Antialiasing);
    if (photo)
      drawPhotoAnimal(l, *photo, pose);
    else
      drawAnimal(l, lookOf(animal), pose);
    // Far animals take on the pale blue of the air between.
    l.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    l.fillRect(layer.rect(), QColor(196, 206, 218, int(255 * std::clamp(pose.haze, 0.0, 0.6))));
  }
  p.drawImage(0, 0, layer);
}

QSizeF animalExtent(int animal) {
  if (const AnimalPhoto* photo = photoOf(animal))
    return {photo->metres, photo->metres * photo->image.height() / photo->image.width()};
  const AnimalLook& l = lookOf(animal);
  return {l.metres * 1.3, l.metres * (l.legLength + l.bodyHeight + l.neckLength * 0.6 + 0.2)};
}

HitRecord hitZonesOf(int animal, const Pose& pose) {
  if (const AnimalPhoto* photo = photoOf(animal)) return photoHitZones(*photo, pose);
  return hitZonesOf(lookOf(animal), pose);
}

}  // namespace worldgen
