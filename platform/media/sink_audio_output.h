// SPDX-License-Identifier: GPL-2.0-or-later
// Sound through the system's default output device with QAudioSink.
#pragma once

#include "platform/media/audio_output.h"

#include <QAudioDevice>
#include <QAudioSink>

namespace platform {

class SinkAudioOutput final : public AudioOutput {
 public:
  explicit SinkAudioOutput(const QAudioDevice& device);
  ~SinkAudioOutput() override;

  void start(QIODevice* source) override;
  void pause() override;
  void resume() override;
  void stop() override;

 private:
  QAudioSink sink_;
};

}  // namespace platform
