// SPDX-License-Identifier: GPL-2.0-or-later
#include "game_fixture.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/picture_box.h"
#include "shell/aviplay.h"
#include "shell/loadingsrn.h"
#include "shell/shared_procedures.h"

#include <QLabel>

using platform::kModePaused;
using platform::kModeStopped;

namespace {

class AviplayTest : public GameFixture {
 protected:
  AviplayTest() {
    setHuntMediaCloser([this] { ++huntMediaClosed; });
  }
  ~AviplayTest() override { setHuntMediaCloser(nullptr); }
  platform::FakeMediaWindow& window() { return *windows->last(); }

  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows;
  int huntMediaClosed = 0;
  Aviplay player;
};

}  // namespace

TEST_F(AviplayTest, PlaysTheClipTheHandOverWordNamesTrimmed) {
  Game.ScreenState = "  Ptrak1 ";
  player.Form_Activate();
  EXPECT_EQ(window().fileName(), "D:\\art\\Ptrak1.avi");
  EXPECT_EQ(window().commands(), (QStringList{"play ", "pause wait", "resume"}));
  EXPECT_EQ(Game.VideoBusy, -1);
  EXPECT_EQ(huntMediaClosed, 1);
}

TEST_F(AviplayTest, AStopBeforeTheFirstPauseIsIgnored) {
  Game.ScreenState = "Dmovie";
  player.show();
  window().raiseModeChange(kModeStopped);
  EXPECT_TRUE(player.isVisible());
  EXPECT_EQ(Game.VideoBusy, -1);
  window().raiseModeChange(kModePaused);
  EXPECT_TRUE(player.hasPaused());
  window().raiseModeChange(kModeStopped);
  EXPECT_FALSE(player.isVisible());
  EXPECT_EQ(Game.VideoBusy, 0);
}

TEST_F(AviplayTest, ClosingStopsTheClipAndTheStopThatFollowsClearsTheBusyFlag) {
  Game.ScreenState = "Ymovie";
  player.show();
  window().raiseModeChange(kModePaused);
  player.Closebut_Click();
  EXPECT_EQ(window().commands().last(), "Stop");
  EXPECT_FALSE(player.isVisible());
  EXPECT_EQ(Game.VideoBusy, -1);
  window().raiseModeChange(kModeStopped);
  EXPECT_EQ(Game.VideoBusy, 0);
}

TEST_F(AviplayTest, ATrackingFilmShowsItsOwnCaption) {
  Game.AviTracking = 1;
  player.Form_Activate();
  EXPECT_FALSE(player.Trackinglab->isHidden());
  EXPECT_TRUE(player.Hintlab->isHidden());
  Game.AviTracking = 0;
  player.Form_Activate();
  EXPECT_TRUE(player.Trackinglab->isHidden());
}

TEST_F(AviplayTest, AClipErrorIsIgnoredAndTheScreenStays) {
  player.show();
  window().raiseError(275);
  EXPECT_TRUE(player.isVisible());
  EXPECT_TRUE(dialogs->shown().empty());
}

TEST_F(GameFixture, LoadingScreenShowsItsPictureAtTheStoredSize) {
  Game.ScreenWidth = 1024 * 15;
  Game.ScreenHeight = 768 * 15;
  Loadingsrn screen;
  screen.Form_Load();
  EXPECT_EQ(screen.size(), QSize(1024, 768));
  EXPECT_EQ(screen.Picture->picturePath(), "D:\\art\\load.bmp");
}
