// SPDX-License-Identifier: GPL-2.0-or-later
// A photographed animal in a pose: its legs swing by a shear under the cut-out's mask, its head
// bends about the neck, its legs fold as it goes down; the hit zones follow the same placing.
#pragma once

#include "tools/worldgen/animal_figure.h"
#include "tools/worldgen/animal_photos.h"

#include <QPainter>

namespace worldgen {

void drawPhotoAnimal(QPainter& p, const AnimalPhoto& photo, const Pose& pose);
HitRecord photoHitZones(const AnimalPhoto& photo, const Pose& pose);

}  // namespace worldgen
