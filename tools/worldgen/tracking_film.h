// SPDX-License-Identifier: GPL-2.0-or-later
// The tracking films: walking up a trail seen from a hunter's eyes, hoof prints in snow or
// leaf litter, and on the second film the blood a hit animal leaves.
#pragma once

#include <QImage>

namespace worldgen {

// Picture n of world `world`'s tracking film over `backdrop` (a 320 x 240 scene).
void paintTrackingFilm(QImage& picture, const QImage& backdrop, QChar world, int n, bool blood);

}  // namespace worldgen
