// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/playback_timeline.h"

#include <algorithm>

namespace platform {

void PlaybackTimeline::start(int64_t fromMs, int64_t toMs, int64_t now) {
  from_ = fromMs;
  to_ = std::max(fromMs, toMs);
  startedAt_ = now;
  running_ = true;
  paused_ = false;
}

void PlaybackTimeline::pause(int64_t now) {
  if (!running_ || paused_) return;
  pausedAt_ = now;
  paused_ = true;
}

void PlaybackTimeline::resume(int64_t now) {
  if (!running_ || !paused_) return;
  startedAt_ += now - pausedAt_;  // the paused stretch does not count
  paused_ = false;
}

void PlaybackTimeline::stop() {
  running_ = false;
  paused_ = false;
}

int64_t PlaybackTimeline::position(int64_t now) const {
  if (!running_) return from_;
  const int64_t reading = paused_ ? pausedAt_ : now;
  return std::clamp(from_ + (reading - startedAt_), from_, to_);
}

}  // namespace platform
