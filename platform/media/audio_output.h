// SPDX-License-Identifier: GPL-2.0-or-later
// Where decoded sound goes: the system's sound device, or nowhere when there is none. Time is
// kept by the playback clock, never by the device, so both behave the same to the game.
#pragma once

#include "platform/service.h"

#include <QIODevice>

#include <memory>

namespace platform {

// One stream of 16-bit stereo samples at the audio track's rate, pulled from `source` as the
// device needs them; the source outlives the play.
class AudioOutput {
 public:
  virtual ~AudioOutput() = default;
  virtual void start(QIODevice* source) = 0;
  virtual void pause() = 0;
  virtual void resume() = 0;
  virtual void stop() = 0;
};

class SilentAudioOutput final : public AudioOutput {
 public:
  void start(QIODevice*) override {}
  void pause() override {}
  void resume() override {}
  void stop() override {}
};

// Hands out outputs; the real one falls back to silence when no device is there.
class AudioDevice {
 public:
  virtual ~AudioDevice() = default;
  virtual std::unique_ptr<AudioOutput> open() = 0;
};

class SystemAudioDevice final : public AudioDevice {
 public:
  std::unique_ptr<AudioOutput> open() override;
};

class SilentAudioDevice final : public AudioDevice {
 public:
  std::unique_ptr<AudioOutput> open() override { return std::make_unique<SilentAudioOutput>(); }
};

template <>
std::unique_ptr<AudioDevice> Service<AudioDevice>::makeDefault();

inline AudioDevice& audioDevice() {
  return Service<AudioDevice>::get();
}

}  // namespace platform
