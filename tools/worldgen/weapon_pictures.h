// SPDX-License-Identifier: GPL-2.0-or-later
// The gun rack's pictures of the nine weapons in profile on green felt: scoped rifles, the
// handgun, the shotgun, the muzzle-loader and the two bows.
#pragma once

#include <QImage>
#include <QSize>

namespace worldgen {

// Weapon 1..9 of the standard or the special-permit rack drawn at 300 x 100 scaled to `size`.
QImage weaponPicture(int n, QSize size, bool permit = false);

}  // namespace worldgen
