// SPDX-License-Identifier: GPL-2.0-or-later
// A playback clock moved by hand; a step makes every reading advance it, so loops that wait
// for a sound to end finish after a known number of readings.
#pragma once

#include "platform/media/playback_clock.h"

namespace platform {

class ManualPlaybackClock final : public PlaybackClock {
 public:
  explicit ManualPlaybackClock(int64_t stepMs = 0) : step_(stepMs) {}

  int64_t nowMs() override {
    const int64_t reading = now_;
    now_ += step_;
    return reading;
  }
  void advance(int64_t ms) { now_ += ms; }
  void setStep(int64_t ms) { step_ = ms; }

 private:
  int64_t now_ = 0;
  int64_t step_;
};

}  // namespace platform
