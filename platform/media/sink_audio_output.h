// SPDX-License-Identifier: GPL-2.0-or-later
// Sound through the system's default output device with QAudioSink.
#pragma once

#include "platform/media/audio_output.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>

namespace platform {

class SinkAudioOutput final : public AudioOutput {
 public:
  explicit SinkAudioOutput(const QAudioDevice& device);
  ~SinkAudioOutput() override;

  void start(const QByteArray& pcm) override;
  void pause() override;
  void resume() override;
  void stop() override;

 private:
  QAudioSink sink_;
  QByteArray pcm_;
  QBuffer buffer_;
};

}  // namespace platform
