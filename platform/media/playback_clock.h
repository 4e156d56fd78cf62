// SPDX-License-Identifier: GPL-2.0-or-later
// The monotonic millisecond clock that paces sounds, clips and the mixer's frames; tests put
// a hand-driven clock in its place so that no test waits in real time.
#pragma once

#include "platform/service.h"

#include <QElapsedTimer>

#include <cstdint>

namespace platform {

class PlaybackClock {
 public:
  virtual ~PlaybackClock() = default;
  virtual int64_t nowMs() = 0;
};

class SteadyPlaybackClock final : public PlaybackClock {
 public:
  SteadyPlaybackClock() { timer_.start(); }
  int64_t nowMs() override { return timer_.elapsed(); }

 private:
  QElapsedTimer timer_;
};

template <>
std::unique_ptr<PlaybackClock> Service<PlaybackClock>::makeDefault();

inline PlaybackClock& playbackClock() {
  return Service<PlaybackClock>::get();
}

}  // namespace platform
