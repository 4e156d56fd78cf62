// SPDX-License-Identifier: GPL-2.0-or-later
// A file's sound decoded whole into 16-bit stereo samples at one rate, so that any range of
// it can be handed to the sound device exactly to the millisecond.
#pragma once

#include <QByteArray>

#include <cstdint>

namespace platform {

class AvInput;

struct AudioTrack {
  static constexpr int kRate = 44100;
  static constexpr int kChannels = 2;
  static constexpr int kBytesPerFrame = kChannels * 2;

  QByteArray pcm;

  int64_t lengthMs() const { return pcm.size() / kBytesPerFrame * 1000 / kRate; }
  // The samples of [fromMs, toMs), cut at the end of the track.
  QByteArray slice(int64_t fromMs, int64_t toMs) const;
};

// Decodes the sound stream of `input`; an empty track when it has none or it will not decode.
AudioTrack decodeAudioTrack(AvInput& input);

}  // namespace platform
