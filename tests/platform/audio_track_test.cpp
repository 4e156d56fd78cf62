// SPDX-License-Identifier: GPL-2.0-or-later
// The streamed sound track: a range read after a seek is exactly that part of the sound, and an
// hour of compressed sound plays from anywhere holding no more than a frame of samples.
#include "platform/media/audio_track.h"
#include "platform/fakes/media_draining_audio.h"
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/media_test_clips.h"
#include "platform/media/audio_output.h"
#include "platform/media/ffmpeg_media_window.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace platform {
namespace {

constexpr qsizetype bytesOf(int64_t ms) {
  return qsizetype(ms * AudioTrack::kRate / 1000 * AudioTrack::kBytesPerFrame);
}

QByteArray readRange(AudioTrack& track, int64_t from, int64_t to) {
  track.setRange(from, to);
  return track.readAll();
}

TEST(AudioTrack, RangeAfterASeekIsExactlyThatPartOfTheWholeSound) {
  QTemporaryDir dir;
  const std::filesystem::path file = dir.filePath("tone.wav").toStdString();
  writeTestWav(file, 3000, AudioTrack::kRate, AudioTrack::kChannels);
  AudioTrack track(file);
  ASSERT_TRUE(track.hasSound());
  const QByteArray whole = readRange(track, 0, 3000);
  ASSERT_EQ(whole.size(), bytesOf(3000));
  EXPECT_EQ(readRange(track, 1234, 2000), whole.mid(bytesOf(1234), bytesOf(2000) - bytesOf(1234)));
  EXPECT_EQ(readRange(track, 2500, 9000), whole.mid(bytesOf(2500)));  // cut at the end
  EXPECT_EQ(readRange(track, 0, 700), whole.left(bytesOf(700)));      // and back to the start
  EXPECT_TRUE(readRange(track, 3500, 4000).isEmpty());
}

TEST(AudioTrack, HeaderWithAFalseByteRateStillSeeksToTheRightSamples) {
  QTemporaryDir dir;
  const std::filesystem::path file = dir.filePath("call.wav").toStdString();
  writeTestAdpcmWav(file, 2000);
  AudioTrack track(file);
  const QByteArray whole = readRange(track, 0, 2000);
  ASSERT_GT(whole.size(), bytesOf(1900));
  EXPECT_EQ(readRange(track, 1500, 1800), whole.mid(bytesOf(1500), bytesOf(1800) - bytesOf(1500)));
  EXPECT_EQ(readRange(track, 300, 600), whole.mid(bytesOf(300), bytesOf(600) - bytesOf(300)));
}

TEST(AudioTrack, FileWithoutSoundHasNone) {
  QTemporaryDir dir;
  const std::filesystem::path file = dir.filePath("clip.avi").toStdString();
  writeTestClip(file, TestClip{.frames = 5, .fps = 25, .size = {32, 24}});
  AudioTrack track(file);
  EXPECT_FALSE(track.hasSound());
  EXPECT_FALSE(AudioTrack(dir.filePath("nothere.wav").toStdString()).hasSound());
}

class LongSound : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    dir = new QTemporaryDir;
    writeTestAdpcmWav(file(), kHourMs, true);
  }
  static void TearDownTestSuite() { delete dir; }
  static std::filesystem::path file() { return dir->filePath("hour.wav").toStdString(); }

  static constexpr int kHourMs = 3600 * 1000;
  static inline QTemporaryDir* dir = nullptr;
};

TEST_F(LongSound, HourOfCompressedSoundPlaysFromAnywhereInBoundedMemory) {
  AudioTrack track(file());
  ASSERT_TRUE(track.hasSound());
  EXPECT_EQ(readRange(track, 0, 2000).size(), bytesOf(2000));
  const QByteArray last = readRange(track, kHourMs - 1000, kHourMs);
  EXPECT_EQ(last.size(), bytesOf(kHourMs) - bytesOf(kHourMs - 1000));
  // The tone is there: the seek landed in the sound, not past its end.
  const auto* samples = reinterpret_cast<const int16_t*>(last.constData());
  EXPECT_GT(*std::max_element(samples, samples + last.size() / 2), 1000);
  RecordProperty("peakBufferedBytes", int(track.peakBufferedBytes()));
  EXPECT_GT(track.peakBufferedBytes(), 0);
  EXPECT_LE(track.peakBufferedBytes(), bytesOf(100));
}

TEST_F(LongSound, MediaWindowReportsTheContainersLengthAndPlaysTheEnd) {
  ScopedService<PlaybackClock, ManualPlaybackClock> clock;
  ScopedService<AudioDevice, DrainingAudioDevice> device;
  FfmpegMediaWindow window;
  window.setFileName(QString::fromStdString(file().string()));
  EXPECT_GE(window.length(), kHourMs);
  EXPECT_LT(window.length(), kHourMs + 100);  // padded to whole blocks
  window.command("seek to 3599000");
  EXPECT_EQ(window.position(), 3599000);
  window.command("play");
  EXPECT_NEAR(double(device->pulled()), double(bytesOf(window.length() - 3599000)), bytesOf(1));
  clock->advance(window.length() - 3599000);
  window.poll();
  EXPECT_EQ(window.mode(), kModeStopped);
}

}  // namespace
}  // namespace platform
