// SPDX-License-Identifier: GPL-2.0-or-later
// Blending two paint colours, for haze, shading and light in the painted scenes.
#pragma once

#include <QColor>

#include <algorithm>

namespace worldgen {

inline QColor mixColour(const QColor& a, const QColor& b, double t, int alpha = 255) {
  t = std::clamp(t, 0.0, 1.0);
  return QColor(int(a.red() + (b.red() - a.red()) * t), int(a.green() + (b.green() - a.green()) * t),
                int(a.blue() + (b.blue() - a.blue()) * t), alpha);
}

inline QColor withAlpha(QColor c, int alpha) {
  c.setAlpha(alpha);
  return c;
}

}  // namespace worldgen
