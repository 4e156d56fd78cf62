// SPDX-License-Identifier: GPL-2.0-or-later
// A sound device that takes what a play offers at once, as a fast card would, so tests and fuzz
// targets decode the sound the silent device never asks for. It keeps only a count.
#pragma once

#include "platform/media/audio_output.h"

#include <algorithm>

namespace platform {

class DrainingAudioDevice final : public AudioDevice {
 public:
  // Each play is drained up to `limitBytes`, so a sound claiming hours cannot hold a fuzz run.
  explicit DrainingAudioDevice(qint64 limitBytes = qint64(1) << 20) : limit_(limitBytes) {}

  std::unique_ptr<AudioOutput> open() override { return std::make_unique<Output>(*this); }
  qint64 pulled() const { return pulled_; }

 private:
  class Output final : public AudioOutput {
   public:
    explicit Output(DrainingAudioDevice& device) : device_(device) {}
    void start(QIODevice* source) override {
      char chunk[4096];
      for (qint64 taken = 0, got = 0; taken < device_.limit_; taken += got) {
        got = source->read(chunk, std::min<qint64>(sizeof chunk, device_.limit_ - taken));
        if (got <= 0) break;
        device_.pulled_ += got;
      }
    }
    void pause() override {}
    void resume() override {}
    void stop() override {}

   private:
    DrainingAudioDevice& device_;
  };

  qint64 limit_;
  qint64 pulled_ = 0;
};

}  // namespace platform
