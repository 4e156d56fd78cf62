// SPDX-License-Identifier: GPL-2.0-or-later
// A clip on the mixer, timed by a hand-driven clock: the picture on screen and its time,
// pausing, the end of the clip, the frame and mouse events, and calls by member name.
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/media_test_clips.h"
#include "platform/media/audio_output.h"
#include "platform/mixer/active_rdx.h"
#include "platform/mixer/av_source.h"
#include "platform/mixer/data_sprite.h"
#include "platform/mixer/member_call.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace platform {
namespace {

class MixerClipTest : public ::testing::Test {
 protected:
  void SetUp() override {
    clipPath = dir.filePath("deer.avi");
    writeTestClip(clipPath.toStdString(),
                  TestClip{.frames = 10, .fps = 25, .size = {32, 24}, .withSound = true});
    mixer.resize(100, 80);
    clip = mixer.create<AVSource>("RDXCOM.AVSource");
    auto* sprite = mixer.create<DataSprite>("RDXCOM.DynamicDataSprite");
    sprite->SetData(clip);
    sprite->setDestination(2, 4, 96, 72);
  }
  // The picture the mixer has on screen, by the colour it was encoded with.
  int pictureOnScreen() const { return testClipIndex(mixer.surface().pixelColor(10, 10)); }
  void frameAfter(int64_t ms) {
    clock->advance(ms);
    mixer.frame();
  }

  QTemporaryDir dir;
  QString clipPath;
  ScopedService<PlaybackClock, ManualPlaybackClock> clock;
  ScopedService<AudioDevice, SilentAudioDevice> silence;
  ActiveRDX mixer;
  AVSource* clip = nullptr;
};

TEST_F(MixerClipTest, TimeIsThatOfThePictureOnScreen) {
  ASSERT_TRUE(clip->Load(clipPath));
  EXPECT_EQ(clip->GetLength(), 400);
  clip->Play();
  frameAfter(130);
  EXPECT_EQ(clip->GetCurrentTime(), 120);
  EXPECT_EQ(pictureOnScreen(), 3);
  frameAfter(29);
  EXPECT_EQ(clip->GetCurrentTime(), 120);  // the next picture is due at 160
  frameAfter(1);
  EXPECT_EQ(clip->GetCurrentTime(), 160);
  EXPECT_EQ(pictureOnScreen(), 4);
}

TEST_F(MixerClipTest, PauseHoldsThePictureOnScreenAndPlayResumes) {
  ASSERT_TRUE(clip->Load(clipPath));
  clip->Play();
  frameAfter(90);
  clock->advance(25);  // the picture due at 120 is not drawn yet when the player clicks
  clip->Pause();
  EXPECT_EQ(clip->getstate(), AVSource::kPaused);
  frameAfter(1000);
  EXPECT_EQ(clip->GetCurrentTime(), 80);
  EXPECT_EQ(pictureOnScreen(), 2);
  clip->Play();
  frameAfter(50);
  EXPECT_EQ(clip->GetCurrentTime(), 160);
}

TEST_F(MixerClipTest, StateTurnsToFinishedWithTheLastPictureWhenTheClipEnds) {
  ASSERT_TRUE(clip->Load(clipPath));
  QList<int> statesAfterDraw;
  QObject::connect(&mixer, &ActiveRDX::AfterDraw, [&] { statesAfterDraw << clip->getstate(); });
  clip->Play();
  frameAfter(399);
  frameAfter(1);
  EXPECT_EQ(statesAfterDraw, (QList<int>{AVSource::kPlaying, AVSource::kFinished}));
  EXPECT_EQ(clip->GetCurrentTime(), 360);
  EXPECT_EQ(pictureOnScreen(), 9);
  frameAfter(500);
  EXPECT_EQ(clip->getstate(), AVSource::kFinished);
}

TEST_F(MixerClipTest, LongJumpPastEveryDecodedPictureStillLandsOnTheRightOne) {
  const QString longClip = dir.filePath("long.avi");
  writeTestClip(longClip.toStdString(), TestClip{.frames = 12, .fps = 10, .size = {32, 24}});
  ASSERT_TRUE(clip->Load(longClip));
  clip->Play();
  frameAfter(1050);  // far more pictures than are decoded ahead
  EXPECT_EQ(clip->GetCurrentTime(), 1000);
  EXPECT_EQ(pictureOnScreen(), 10);
  ASSERT_TRUE(clip->Load(clipPath));  // a new clip while one plays
  EXPECT_EQ(clip->getstate(), AVSource::kIdle);
  EXPECT_EQ(pictureOnScreen(), 10);  // the surface changes only at the next frame
  mixer.frame();
  EXPECT_EQ(pictureOnScreen(), 0);
}

TEST_F(MixerClipTest, RangeStartsAtThePictureOnScreenThere) {
  ASSERT_TRUE(clip->Load(clipPath));
  clip->Play(250, 300);
  mixer.frame();
  EXPECT_EQ(clip->GetCurrentTime(), 240);
  frameAfter(50);
  EXPECT_EQ(clip->getstate(), AVSource::kFinished);
  EXPECT_EQ(clip->GetCurrentTime(), 280);
}

TEST_F(MixerClipTest, MissingClipLoadsNothingAndNeverFinishes) {
  EXPECT_FALSE(clip->Load(dir.filePath("none.avi")));
  clip->Play();
  frameAfter(1000);
  EXPECT_EQ(clip->getstate(), AVSource::kIdle);
  EXPECT_EQ(clip->picture(), nullptr);
}

TEST_F(MixerClipTest, EachFrameRaisesBeforeDrawThenAfterDraw) {
  QStringList events;
  QObject::connect(&mixer, &ActiveRDX::BeforeDraw, [&] { events << "before"; });
  QObject::connect(&mixer, &ActiveRDX::AfterDraw, [&] { events << "after"; });
  mixer.frame();
  mixer.frame();
  EXPECT_EQ(events, (QStringList{"before", "after", "before", "after"}));
}

TEST_F(MixerClipTest, MouseIsReportedInTwips) {
  QSignalSpy downs(&mixer, &ActiveRDX::MouseDown);
  QTest::mouseClick(&mixer, Qt::LeftButton, Qt::ShiftModifier, QPoint(10, 20));
  ASSERT_EQ(downs.count(), 1);
  EXPECT_EQ(downs.at(0).at(0).toInt(), 1);
  EXPECT_EQ(downs.at(0).at(1).toInt(), 1);
  EXPECT_DOUBLE_EQ(downs.at(0).at(2).toDouble(), 150.0);
  EXPECT_DOUBLE_EQ(downs.at(0).at(3).toDouble(), 300.0);
}

TEST_F(MixerClipTest, MembersAreCalledByNameWithLooseArguments) {
  EXPECT_TRUE(callMember(clip, "load", {clipPath}).toBool());
  callMember(clip, "PLAY", {0, 200});
  frameAfter(200);
  EXPECT_EQ(callMember(clip, "GetState").toInt(), AVSource::kFinished);
  EXPECT_EQ(callMember(clip, "getcurrenttime").toInt(), 160);
  auto* hole = mixer.create<DataSprite>("RDXCOM.StaticDataSprite");
  callMember(hole, "setPosition", {QString("12"), 7.0, 26});
  EXPECT_EQ(hole->position(), QPoint(12, 7));
  EXPECT_EQ(hole->z(), 26);
  callMember(hole, "SetData", {QVariant::fromValue<QObject*>(clip)});
  EXPECT_EQ(hole->picture(), clip->picture());
  EXPECT_THROW(callMember(clip, "Rewind"), std::invalid_argument);
  EXPECT_THROW(callMember(clip, "Play", {1, 2, 3, 4}), std::invalid_argument);
}

}  // namespace
}  // namespace platform
