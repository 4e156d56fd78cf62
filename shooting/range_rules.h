// SPDX-License-Identifier: GPL-2.0-or-later
// The target range's rules: where each weapon's target lies on the range picture, where a
// hole lands for a sight setting, how far the sight may be turned.
#pragma once

#include <QPoint>
#include <QRect>

#include <cstdint>
#include <optional>

inline constexpr int kRangeDesignWidth = 640;
inline constexpr int kHoleCount = 10;
inline constexpr int16_t kSightLimit = 10;
// A hole moves this many pixels for one step of the sight.
inline constexpr int kPixelsPerSightStep = 3;

// A target's edges in pixels; the edges themselves are on the target.
struct TargetRect {
  int16_t left = 0;
  int16_t top = 0;
  int16_t right = 0;
  int16_t bottom = 0;
};

struct TargetLayout {
  TargetRect design;  // on the range picture 640 pixels wide
  QPoint holeOffset;  // from the click to the hole picture's corner
};

// The target of weapon `weapon` (1..9) of the standard or special-permit set; nothing for
// any other number.
std::optional<TargetLayout> targetLayout(bool specialPermit, int weapon);
// The design rectangle blown up by the scene scale `k`.
TargetRect scaledTarget(const TargetRect& design, double k);
bool onTarget(const TargetRect& target, QPoint click);
// Where the hole of a shot at `click` goes: the elevation setting moves it across and the
// windage setting up and down.
QPoint holePosition(QPoint click, int16_t elevation, int16_t windage, QPoint holeOffset);
// A sight setting moved by `step`; a step up stops at 10, a step down at -10.
int16_t adjustedSight(int16_t value, int step);
