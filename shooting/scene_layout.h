// SPDX-License-Identifier: GPL-2.0-or-later
// Where the shooting scenes sit: full screen over the hunting screen, and the clip blown up
// by a whole factor and centred on it.
#pragma once

#include <QPoint>
#include <QSize>

class QWidget;

inline constexpr QSize kClipFrame{320, 240};

// The clip's whole-number scale on a screen `heightPx` high; 1 with the small-video setting.
int clipDisplayScale(int heightPx, bool smallVideo);
// The clip's top-left corner when blown up by `scale` and centred on `screenPx`.
QPoint clipDisplayOrigin(QSize screenPx, int scale);

// The shared screen size in pixels (the screen's own where none is stored).
QSize sharedScreenPixels();
// Full size, at the hunting screen's left edge plus the shared offset and its top plus 60
// twips, kept on that screen where the offset would push a full-size scene off it.
void placeFullScreenScene(QWidget& scene);
// Whether the stored small-video setting keeps clips at their own size.
bool smallVideoSetting();
