// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/playback_clock.h"

namespace platform {

template <>
std::unique_ptr<PlaybackClock> Service<PlaybackClock>::makeDefault() {
  return std::make_unique<SteadyPlaybackClock>();
}

}  // namespace platform
