// SPDX-License-Identifier: GPL-2.0-or-later
// The media window on real files with no sound device: errors, modes, ranges and pictures,
// timed by a hand-driven clock.
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/media_test_clips.h"
#include "platform/media/audio_output.h"
#include "platform/media/ffmpeg_media_window.h"
#include "platform/media/media_errors.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace platform {
namespace {

class MediaWindowTest : public ::testing::Test {
 protected:
  MediaWindowTest() : modes(&window, &MCIWnd::ExtendedModeChange), errors(&window, &MCIWnd::Error) {}

  QString path(const char* name) const { return dir.filePath(name); }
  QString wav(int ms) {
    const QString file = path("tone.wav");
    writeTestWav(file.toStdString(), ms);
    return file;
  }
  std::vector<int> modesSeen() const {
    std::vector<int> seen;
    for (const QList<QVariant>& change : modes) seen.push_back(change.at(0).toInt());
    return seen;
  }

  QTemporaryDir dir;
  ScopedService<PlaybackClock, ManualPlaybackClock> clock;
  ScopedService<AudioDevice, SilentAudioDevice> silence;
  FfmpegMediaWindow window;
  QSignalSpy modes;
  QSignalSpy errors;
};

TEST_F(MediaWindowTest, MissingFileRaisesOneReadableErrorAndStaysClosed) {
  window.setFileName(path("nothere.wav"));
  ASSERT_EQ(errors.count(), 1);
  EXPECT_EQ(errors.at(0).at(0).toInt(), kMediaFileNotFound);
  EXPECT_TRUE(errors.at(0).at(1).toString().contains("cannot be found"));
  EXPECT_EQ(window.mode(), kModeNotReady);
  // Commands on the closed window fail quietly: the open already told the player.
  EXPECT_EQ(window.command("Play"), kMediaDeviceNotReady);
  EXPECT_EQ(errors.count(), 1);
  EXPECT_TRUE(modes.isEmpty());
}

TEST_F(MediaWindowTest, FileThatWillNotDecodeIsAnInvalidFile) {
  QFile junk(path("junk.wav"));
  ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
  junk.write("RIFF\x10\0\0\0WAVEjunkjunkjunk");
  junk.close();
  window.setFileName(junk.fileName());
  ASSERT_EQ(errors.count(), 1);
  EXPECT_EQ(errors.at(0).at(0).toInt(), kMediaInvalidFile);
}

TEST_F(MediaWindowTest, AdpcmSoundOpensWithItsLengthAndPlaysToItsEnd) {
  const QString file = path("call.wav");
  writeTestAdpcmWav(file.toStdString(), 1000);
  window.setFileName(file);
  ASSERT_EQ(errors.count(), 0);
  EXPECT_GE(window.length(), 1000);
  EXPECT_LT(window.length(), 1100);  // padded to whole blocks
  window.command("play");
  clock->advance(window.length());
  window.poll();
  EXPECT_EQ(window.mode(), kModeStopped);
}

TEST_F(MediaWindowTest, UnknownCommandIsReportedAsAnError) {
  window.setFileName(wav(500));
  EXPECT_EQ(window.command("rewind"), kMediaUnrecognizedCommand);
  ASSERT_EQ(errors.count(), 1);
  EXPECT_EQ(errors.at(0).at(0).toInt(), kMediaUnrecognizedCommand);
}

TEST_F(MediaWindowTest, ClipPlayerSequenceRaisesModesInDeviceOrder) {
  window.setFileName(wav(1500));
  EXPECT_EQ(window.length(), 1500);
  window.command("play ");
  window.command("pause wait");
  window.command("resume");
  clock->advance(1499);
  window.poll();
  EXPECT_EQ(window.mode(), kModePlaying);
  clock->advance(1);
  window.poll();
  EXPECT_EQ(modesSeen(),
            (std::vector<int>{kModeStopped, kModePlaying, kModePaused, kModePlaying, kModeStopped}));
  EXPECT_EQ(window.position(), 1500);
}

TEST_F(MediaWindowTest, PausedTimeDoesNotCountAndStopKeepsThePosition) {
  window.setFileName(wav(2000));
  window.command("Play");
  clock->advance(300);
  window.command("pause wait");
  clock->advance(5000);
  window.poll();
  EXPECT_EQ(window.position(), 300);
  window.command("resume");
  clock->advance(200);
  window.command("Stop");
  EXPECT_EQ(window.position(), 500);
  EXPECT_EQ(modesSeen().back(), kModeStopped);
}

TEST_F(MediaWindowTest, PlayOnAPausedWindowGoesOnFromThereAndSeekGoesBack) {
  window.setFileName(wav(2000));
  window.command("Play");
  clock->advance(400);
  window.command("pause wait");
  window.command("play");
  EXPECT_EQ(window.position(), 400);
  clock->advance(100);
  EXPECT_EQ(window.position(), 500);
  window.command("seek to start");
  EXPECT_EQ(window.mode(), kModeStopped);
  EXPECT_EQ(window.position(), 0);
}

TEST_F(MediaWindowTest, RangePlaysExactlyToItsEnd) {
  window.setFileName(wav(3000));
  window.command("PLAY From 200 to 700");
  EXPECT_EQ(window.position(), 200);
  clock->advance(499);
  window.poll();
  EXPECT_EQ(window.mode(), kModePlaying);
  EXPECT_EQ(window.position(), 699);
  clock->advance(1);
  window.poll();
  EXPECT_EQ(window.mode(), kModeStopped);
  EXPECT_EQ(window.position(), 700);
}

TEST_F(MediaWindowTest, NewPlayCutsTheOldOneOff) {
  window.setFileName(wav(3000));
  window.command("PLAY From 0 to 2000");
  clock->advance(300);
  window.command("PLAY From 1000 to 1100");
  EXPECT_EQ(window.position(), 1000);
  clock->advance(100);
  window.poll();
  EXPECT_EQ(window.mode(), kModeStopped);
  EXPECT_EQ(window.position(), 1100);
}

TEST_F(MediaWindowTest, RangeBeyondTheEndIsCutOrRefused) {
  window.setFileName(wav(1000));
  EXPECT_EQ(window.command("PLAY From 1200 to 1300"), kMediaOutOfRange);
  window.command("PLAY From 900 to 5000");
  clock->advance(100);
  window.poll();
  EXPECT_EQ(window.mode(), kModeStopped);
  EXPECT_EQ(window.position(), 1000);
}

TEST_F(MediaWindowTest, PlayWaitReturnsWhenTheSoundHasEndedWithoutADevice) {
  window.setFileName(wav(400));
  clock->setStep(50);
  EXPECT_EQ(window.command("Play wait"), 0);
  EXPECT_EQ(window.mode(), kModeStopped);
  EXPECT_EQ(modesSeen(), (std::vector<int>{kModeStopped, kModePlaying, kModeStopped}));
}

TEST_F(MediaWindowTest, PlayAfterTheEndStartsOverAndCloseReportsNotReady) {
  window.setFileName(wav(300));
  window.command("Play");
  clock->advance(300);
  window.poll();
  window.command("Play");
  EXPECT_EQ(window.position(), 0);
  window.command("Close");
  EXPECT_EQ(window.mode(), kModeNotReady);
  EXPECT_EQ(modesSeen().back(), kModeNotReady);
  EXPECT_TRUE(window.fileName().isEmpty());
}

TEST_F(MediaWindowTest, ClipShowsThePictureDueAndPlaysItsSound) {
  const QString clip = path("clip.avi");
  writeTestClip(clip.toStdString(), TestClip{.frames = 10, .fps = 25, .size = {64, 48}, .withSound = true});
  window.setFileName(clip);
  EXPECT_EQ(window.length(), 400);
  window.resize(64, 48);
  window.command("play");
  clock->advance(130);
  window.poll();
  EXPECT_EQ(testClipIndex(window.grab().toImage().pixelColor(32, 24)), 3);
  clock->advance(270);
  window.poll();
  EXPECT_EQ(window.mode(), kModeStopped);
  EXPECT_EQ(testClipIndex(window.grab().toImage().pixelColor(32, 24)), 9);
}

TEST(FakeMediaWindows, ScreensGetFakesThatRecordWhatTheySend) {
  ScopedService<MediaWindows, FakeMediaWindows> windows;
  std::unique_ptr<MCIWnd> made(createMediaWindow(nullptr));
  ASSERT_EQ(made.get(), windows->last());
  QSignalSpy modes(made.get(), &MCIWnd::ExtendedModeChange);
  made->setFileName("D:\\art\\intro.avi");
  made->command("PLAY From 0 to 10");
  windows->last()->raiseModeChange(kModePaused);
  EXPECT_EQ(windows->last()->log(), (QStringList{"file D:\\art\\intro.avi", "PLAY From 0 to 10"}));
  EXPECT_EQ(windows->last()->commands(), QStringList{"PLAY From 0 to 10"});
  ASSERT_EQ(modes.count(), 1);
  EXPECT_EQ(made->mode(), kModePaused);
}

}  // namespace
}  // namespace platform
