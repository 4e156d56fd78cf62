// SPDX-License-Identifier: GPL-2.0-or-later
// How fast the view turns by itself: while the pointer rests near a side edge, and for a
// moment after a drag is let go, slowing smoothly to a stop.
#pragma once

namespace platform {

// Heading units (1/3600 degree) per second for a pointer at `x` in a view `width` wide:
// zero away from the edges, growing to full speed at the edge itself; negative turns left.
double edgePanSpeed(double x, double width);

// A turn that carries on after a drag and dies away.
class Glide {
 public:
  void start(double headingPerSecond);
  void stop() { velocity_ = 0; }
  bool moving() const { return velocity_ != 0; }
  // The heading change over `seconds`, slowing as it goes.
  double advance(double seconds);

 private:
  double velocity_ = 0;
};

}  // namespace platform
