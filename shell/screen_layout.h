// SPDX-License-Identifier: GPL-2.0-or-later
// Fitting the screens to the display, and where the selected weapon is drawn.
#pragma once

#include <QSize>

// Sets `LayoutX`, `LayoutW`, `LayoutY`, `ResCode` and `ResCode2` from `ScreenWidth`; a width
// the game has no pictures for leaves them as they were.
void SetScreenLayout();
// The display, in pixels, that the layout values and the screens' pictures were made for:
// 640 x 480, 800 x 600 or 1024 x 768.
QSize layoutDisplayPixels();
// Sets `SightX`, `SightY`, `SightZ` for `CurWeapon` in the active world group; no weapon
// changes nothing.
void SetWeaponSight();
