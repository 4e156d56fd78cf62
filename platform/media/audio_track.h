// SPDX-License-Identifier: GPL-2.0-or-later
// A file's sound decoded into 16-bit stereo samples at one rate, so that any range of it can
// be handed to the sound device exactly to the millisecond. Decoding stops at a fixed length:
// a small file of compressed silence must not become gigabytes of samples.
#pragma once

#include <QByteArray>

#include <cstdint>

namespace platform {

class AvInput;

struct AudioTrack {
  static constexpr int kRate = 44100;
  static constexpr int kChannels = 2;
  static constexpr int kBytesPerFrame = kChannels * 2;
  // Ten minutes, far beyond any sound or clip of the game.
  static constexpr int64_t kMaxLengthMs = 10 * 60 * 1000;
  static constexpr qsizetype kMaxBytes = kMaxLengthMs / 1000 * kRate * kBytesPerFrame;

  QByteArray pcm;

  int64_t lengthMs() const { return pcm.size() / kBytesPerFrame * 1000 / kRate; }
  // The samples of [fromMs, toMs), cut at the end of the track.
  QByteArray slice(int64_t fromMs, int64_t toMs) const;
};

// Decodes the sound stream of `input` in packets, up to the longest track; an empty track
// when it has none or it will not decode.
AudioTrack decodeAudioTrack(AvInput& input);

}  // namespace platform
