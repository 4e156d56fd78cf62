// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes opening and playing arbitrary bytes as a sound or a clip, in the media window and in
// the mixer's clip source: the first byte picks WAV or AVI, the rest is the file. A device that
// drains each play decodes the sound; the clock is moved by hand.
#include "fuzz_support.h"
#include "platform/fakes/media_draining_audio.h"
#include "platform/fakes/media_manual_clock.h"
#include "platform/media/audio_output.h"
#include "platform/media/ffmpeg_media_window.h"
#include "platform/mixer/av_source.h"

namespace {

constexpr int kPolls = 8;
constexpr int kPollMs = 250;

void playInWindow(const QString& path, platform::ManualPlaybackClock& clock) {
  platform::FfmpegMediaWindow window;
  window.setFileName(path);
  window.command(QStringLiteral("Play "));
  for (int i = 0; i < kPolls; ++i) {
    clock.advance(kPollMs);
    window.poll();
  }
  window.command(QStringLiteral("PLAY From 100 to 900"));
  window.poll();
  window.command(QStringLiteral("Stop"));
  window.command(QStringLiteral("Close"));
}

void playInMixer(const QString& path, platform::ManualPlaybackClock& clock) {
  platform::AVSource source;
  if (!source.Load(path)) return;
  source.Play();
  for (int i = 0; i < kPolls; ++i) {
    clock.advance(kPollMs);
    source.advance(clock.nowMs());
  }
  source.Stop();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  fuzzing::ensureApplication();
  static platform::ScopedService<platform::AudioDevice, platform::DrainingAudioDevice> device;
  static platform::ScopedService<platform::PlaybackClock, platform::ManualPlaybackClock> clock;
  const QString name = data[0] % 2 ? QStringLiteral("input.avi") : QStringLiteral("input.wav");
  const QString path = fuzzing::writeInput(data + 1, size - 1, name);
  playInWindow(path, *clock);
  playInMixer(path, *clock);
  return 0;
}
