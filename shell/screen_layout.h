// SPDX-License-Identifier: GPL-2.0-or-later
// Fitting the screens to the display, and where the selected weapon is drawn.
#pragma once

// Sets `LayoutX`, `LayoutW`, `LayoutY`, `ResCode` and `ResCode2` from `ScreenWidth`; a width
// the game has no pictures for leaves them as they were.
void SetScreenLayout();
// Sets `SightX`, `SightY`, `SightZ` for `CurWeapon` in the active world group; no weapon
// changes nothing.
void SetWeaponSight();
