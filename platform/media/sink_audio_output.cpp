// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/sink_audio_output.h"

#include "platform/media/audio_track.h"
#include "platform/media/media_log.h"

#include <QMediaDevices>

namespace platform {
namespace {

QAudioFormat trackFormat() {
  QAudioFormat format;
  format.setSampleRate(AudioTrack::kRate);
  format.setChannelCount(AudioTrack::kChannels);
  format.setSampleFormat(QAudioFormat::Int16);
  return format;
}

}  // namespace

SinkAudioOutput::SinkAudioOutput(const QAudioDevice& device) : sink_(device, trackFormat()) {}

SinkAudioOutput::~SinkAudioOutput() {
  stop();
}

void SinkAudioOutput::start(QIODevice* source) {
  stop();
  sink_.start(source);
  if (sink_.error() != QAudio::NoError)
    qCDebug(mediaLog) << "sound device refused to start:" << sink_.error();
}

void SinkAudioOutput::pause() {
  sink_.suspend();
}
void SinkAudioOutput::resume() {
  sink_.resume();
}

void SinkAudioOutput::stop() {
  sink_.stop();
}

std::unique_ptr<AudioOutput> SystemAudioDevice::open() {
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull() || !device.isFormatSupported(trackFormat()))
    return std::make_unique<SilentAudioOutput>();
  return std::make_unique<SinkAudioOutput>(device);
}

template <>
std::unique_ptr<AudioDevice> Service<AudioDevice>::makeDefault() {
  return std::make_unique<SystemAudioDevice>();
}

}  // namespace platform
