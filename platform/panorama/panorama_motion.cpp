// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_motion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform {
namespace {

constexpr double kEdgeBandFraction = 0.06;
constexpr double kEdgeBandLeast = 12.0;           // pixels, so small views still have a band
constexpr double kEdgeFullSpeed = 90.0 * 3600.0;  // a quarter turn a second at the very edge
constexpr double kGlideHalfLife = 0.15;           // seconds
constexpr double kGlideRest = 2.0 * 3600.0;       // below two degrees a second it stops
constexpr double kGlideFastest = 360.0 * 3600.0;

}  // namespace

double edgePanSpeed(double x, double width) {
  const double band = std::max(width * kEdgeBandFraction, kEdgeBandLeast);
  if (width < 4 * band) return 0;
  const double left = (band - x) / band;
  const double right = (x - (width - band)) / band;
  if (left > 0) return -kEdgeFullSpeed * std::min(left, 1.0);
  if (right > 0) return kEdgeFullSpeed * std::min(right, 1.0);
  return 0;
}

void Glide::start(double headingPerSecond) {
  velocity_ = std::abs(headingPerSecond) < kGlideRest
                  ? 0
                  : std::clamp(headingPerSecond, -kGlideFastest, kGlideFastest);
}

double Glide::advance(double seconds) {
  const double decay = std::exp2(-seconds / kGlideHalfLife);
  // The distance covered while the speed falls from v to v * decay.
  const double moved = velocity_ * (1 - decay) * kGlideHalfLife / std::numbers::ln2;
  velocity_ *= decay;
  if (std::abs(velocity_) < kGlideRest) velocity_ = 0;
  return moved;
}

}  // namespace platform
