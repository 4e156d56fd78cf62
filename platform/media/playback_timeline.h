// SPDX-License-Identifier: GPL-2.0-or-later
// Where in a sound or clip playback stands, from a range and the clock: the one piece of
// arithmetic that both the media window and the mixer's clip sources keep time with.
#pragma once

#include <cstdint>

namespace platform {

class PlaybackTimeline {
 public:
  // Plays [fromMs, toMs) starting at the clock reading `now`.
  void start(int64_t fromMs, int64_t toMs, int64_t now);
  void pause(int64_t now);
  void resume(int64_t now);
  // Back to the start of the range, not running.
  void stop();

  // The media position at clock reading `now`, held at the end of the range.
  int64_t position(int64_t now) const;
  bool running() const { return running_; }
  bool paused() const { return paused_; }
  bool reachedEnd(int64_t now) const { return running_ && position(now) >= to_; }
  int64_t from() const { return from_; }
  int64_t to() const { return to_; }

 private:
  int64_t from_ = 0;
  int64_t to_ = 0;
  int64_t startedAt_ = 0;  // clock reading at which the position was `from_`
  int64_t pausedAt_ = 0;
  bool running_ = false;
  bool paused_ = false;
};

}  // namespace platform
