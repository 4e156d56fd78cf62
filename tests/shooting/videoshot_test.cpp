// SPDX-License-Identifier: GPL-2.0-or-later
// The video shot on hand-made clips and hit-zone files: layout, the one shot, the record of
// the clip time, follow-up clips, the end of the scene and clicks that come too early.
#include "shooting/videoshot.h"
#include "platform/fakes/media_test_clips.h"
#include "platform/mixer/active_rdx.h"
#include "shooting/hit_zone_file.h"
#include "shooting/shot_outcome.h"
#include "shooting_fixture.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// A body zone per record, each in its own place, so a click tells which record was read.
constexpr HitZone kFirstHeart{100, 50, 120, 70, 3};
constexpr HitZone kSecondHeart{200, 100, 220, 120, 3};

class VideoshotTest : public ShootingFixture {
 protected:
  VideoshotTest() {
    writeClip("Vmain/deer1.avi", 20);  // 800 ms
    writeClip("VEscapes/deer1e.avi", 5);
    writeClip("VHits/deer1h.avi", 5);
    HitZoneRecord first{}, second{};
    first[0] = kFirstHeart;
    second[0] = kSecondHeart;
    media.write("Vmain/deer1.dat", hitZoneRecordBytes(first) + hitZoneRecordBytes(second));
    Game.VideoName = QStringLiteral("deer1");
    Game.EscapeVideoName = QStringLiteral("deer1e");
    Game.HitVideoName = QStringLiteral("deer1h");
    Game.CurAnimal = 9;
    Game.TagsOwned[9] = kTagHeld;
    Game.CurWeapon = 3;
    Game.CurWeaponPic = QStringLiteral("rifle0");
    Game.ClothesScore = 60;
    Game.WeaponRating = 6;
  }

  void writeClip(const std::string& relative, int frames) {
    std::filesystem::create_directories((media.root() / relative).parent_path());
    writeTestClip(media.root() / relative, platform::TestClip{.frames = frames, .fps = 25, .size = {64, 48}});
  }

  Videoshot& load() {
    Videoshot& shot = ScreenInstance<Videoshot>::get();
    shot.Form_Load();
    return shot;
  }

  void frameAfter(Videoshot& shot, int ms) {
    clock->advance(ms);
    shot.ActiveRDX1->frame();
  }

  // A click at a pixel of the 320 x 240 clip, shown three times as big from (32, 24).
  static void clickOnClip(Videoshot& shot, QPoint clip) {
    const QPoint screen = QPoint(32, 24) + clip * 3;
    shot.ActiveRDX1_MouseDown(1, 0, screen.x() * 15.0, screen.y() * 15.0);
  }
};

TEST_F(VideoshotTest, TheClipIsBlownUpByAWholeScaleAndCentred) {
  const struct {
    QSize screen;
    int scale;
    QPoint origin;
  } cases[] = {{{1024, 768}, 3, {32, 24}},
               {{1920, 1080}, 4, {320, 60}},  // 4.5 rounds to even
               {{800, 600}, 2, {80, 60}},     // 2.5 likewise
               {{1280, 1024}, 4, {0, 32}},
               {{640, 480}, 2, {0, 0}}};
  for (const auto& c : cases) {
    Game.ScreenWidth = c.screen.width() * 15;
    Game.ScreenHeight = c.screen.height() * 15;
    Videoshot& shot = load();
    EXPECT_EQ(shot.displayScale(), c.scale) << c.screen.width();
    EXPECT_EQ(shot.displayOrigin(), c.origin) << c.screen.width();
    EXPECT_EQ(shot.size(), c.screen);
    EXPECT_EQ(shot.ActiveRDX1->geometry(), QRect(QPoint(0, 0), c.screen));
    ScreenInstance<Videoshot>::unload();
  }
}

TEST_F(VideoshotTest, TheSmallVideoSettingKeepsTheClipAtItsOwnSize) {
  settings->SaveSetting(QStringLiteral("Hunt"), QStringLiteral("SMAVI"), QStringLiteral("1"));
  Videoshot& shot = load();
  EXPECT_EQ(shot.displayScale(), 1);
  EXPECT_EQ(shot.displayOrigin(), QPoint(352, 264));
}

TEST_F(VideoshotTest, LoadingClearsTheLastOutcome) {
  Game.ShotOutcome = kBodyHit;
  load();
  EXPECT_EQ(Game.ShotOutcome, kNoShot);
}

TEST_F(VideoshotTest, AClickBeforeTheClipStartsDoesNothing) {
  Videoshot& shot = load();
  clickOnClip(shot, {110, 60});
  EXPECT_FALSE(shot.shotFired());
  EXPECT_EQ(Game.ShotOutcome, kNoShot);
  EXPECT_EQ(shot.state(), Videoshot::kNotStarted);
  EXPECT_TRUE(huntWindow().log().isEmpty());
}

TEST_F(VideoshotTest, AHeartShotReadsTheRecordOfTheClipTimeAndPlaysTheHitClip) {
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 760);
  clickOnClip(shot, {210, 110});
  EXPECT_EQ(shot.recordNumber(), 2);
  EXPECT_EQ(Game.HitZoneResult, 64);
  EXPECT_EQ(Game.ZoneValue, 3);
  EXPECT_EQ(Game.ShotQuality, 5);
  EXPECT_EQ(Game.ShotOutcome, kBodyHit);
  EXPECT_EQ(shot.state(), Videoshot::kHitClip);
  EXPECT_EQ(LastHitZoneRecord[0].left, kSecondHeart.left);
  EXPECT_EQ(huntWindow().log(), QStringList({"file D:\\sound\\wepsnd3.wav", "Play "}));
}

TEST_F(VideoshotTest, EarlyInTheClipTheFirstRecordServes) {
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 400);
  clickOnClip(shot, {120, 70});  // the far corner of the first record's zone
  EXPECT_EQ(shot.recordNumber(), 1);
  EXPECT_EQ(Game.HitZoneResult, 64);
}

TEST_F(VideoshotTest, AMissPlaysTheEscapeClipWithTheMissDirection) {
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {99, 71});
  EXPECT_EQ(Game.HitZoneResult, 1 + 8);
  EXPECT_EQ(Game.ShotOutcome, kCleanMiss);
  EXPECT_EQ(shot.state(), Videoshot::kMissClip);
}

TEST_F(VideoshotTest, ASecondClickDoesNothing) {
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {110, 60});
  clickOnClip(shot, {0, 0});
  EXPECT_EQ(Game.HitZoneResult, 64);
  EXPECT_EQ(Game.ShotOutcome, kBodyHit);
  EXPECT_EQ(huntWindow().commands(), QStringList({"Play "}));
}

TEST_F(VideoshotTest, APoorHitMayStillBeAMissByChance) {
  Game.WeaponRating = 0;
  Game.ClothesScore = 0;  // quality 1: a poor hit
  random->push(0.2);
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {110, 60});
  EXPECT_EQ(shot.state(), Videoshot::kMissClip);
  EXPECT_EQ(Game.HitZoneResult, 0);
  EXPECT_EQ(Game.ShotOutcome, kCleanMiss);
  EXPECT_EQ(random->randomizeCalls(), 1);
}

TEST_F(VideoshotTest, NoTagHeldOverridesTheHit) {
  Game.TagsOwned[9] = kTagNone;
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {110, 60});
  EXPECT_EQ(Game.ShotOutcome, kNoTagHeld);
  EXPECT_EQ(shot.state(), Videoshot::kHitClip);
}

TEST_F(VideoshotTest, AMissingHitZoneFileLeavesTheResultsAsTheyWere) {
  Game.VideoName = QStringLiteral("deer2");
  writeClip("Vmain/deer2.avi", 10);
  Game.HitZoneResult = 3;
  Game.ZoneValue = 4;
  Videoshot& shot = load();
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {110, 60});
  EXPECT_EQ(Game.HitZoneResult, 3);
  EXPECT_EQ(Game.ZoneValue, 4);
  EXPECT_EQ(Game.ShotOutcome, kCleanMiss);
}

TEST_F(VideoshotTest, AProtectedAnimalIsFilmedFromItsOwnFolderAndNeverHitTested) {
  writeClip("VProt/owl1.avi", 10);
  HitZoneRecord everywhere{};
  everywhere[0] = {0, 0, 320, 240, 1};
  media.write("Vmain/owl1.dat", hitZoneRecordBytes(everywhere));
  Game.VideoName = QStringLiteral("owl1");
  Game.CurAnimal = 30;
  Game.HitZoneResult = 0;
  Videoshot& shot = load();
  QSignalSpy closed(&shot, &QDialog::finished);
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {110, 60});
  EXPECT_EQ(Game.HitZoneResult, 0);
  EXPECT_EQ(LastHitZoneRecord[0].code, 0);
  EXPECT_EQ(Game.ShotOutcome, kProtectedAnimal);
  frameAfter(shot, 40);
  EXPECT_EQ(closed.count(), 1) << "with no follow-up clip the scene ends at once";
}

TEST_F(VideoshotTest, TheSceneClosesWhenTheFollowUpClipEnds) {
  Videoshot& shot = load();
  QSignalSpy closed(&shot, &QDialog::finished);
  shot.vstart();
  frameAfter(shot, 100);
  clickOnClip(shot, {110, 60});
  frameAfter(shot, 100);
  EXPECT_EQ(closed.count(), 0);
  frameAfter(shot, 200);
  EXPECT_EQ(closed.count(), 1);
  EXPECT_EQ(Game.ShotOutcome, kBodyHit) << "the results stay for the aftermath";
}

TEST_F(VideoshotTest, AClipThatEndsUnshotRunsTheEscapeClipThenCloses) {
  Videoshot& shot = load();
  QSignalSpy closed(&shot, &QDialog::finished);
  shot.vstart();
  frameAfter(shot, 900);
  EXPECT_EQ(shot.state(), Videoshot::kMissClip);
  EXPECT_EQ(closed.count(), 0);
  frameAfter(shot, 300);
  EXPECT_EQ(closed.count(), 1);
  EXPECT_EQ(Game.ShotOutcome, kNoShot);
}

TEST_F(VideoshotTest, AClipThatEndsUnshotWithNoEscapeClipCloses) {
  Game.EscapeVideoName = QStringLiteral("EMPTY");
  Videoshot& shot = load();
  QSignalSpy closed(&shot, &QDialog::finished);
  shot.vstart();
  frameAfter(shot, 900);
  EXPECT_EQ(closed.count(), 1);
}

TEST_F(VideoshotTest, ClicksBeforeTheFirstFrameAreLostAndLaterOnesFire) {
  Videoshot& shot = load();
  shot.show();  // starts the clip
  ASSERT_EQ(shot.state(), Videoshot::kMainClip);
  const QPoint heart = QPoint(32, 24) + QPoint(110, 60) * 3;
  QTest::mouseClick(shot.ActiveRDX1, Qt::LeftButton, {}, heart);
  EXPECT_FALSE(shot.shotFired());
  frameAfter(shot, 40);
  EXPECT_FALSE(shot.purging());
  QTest::mouseClick(shot.ActiveRDX1, Qt::LeftButton, {}, heart);
  EXPECT_TRUE(shot.shotFired());
  EXPECT_EQ(Game.HitZoneResult, 64);
}

TEST_F(VideoshotTest, TheSightFollowsThePointerWithItsAimPointUnderIt) {
  QImage strip(6 * 40, 30, QImage::Format_RGB32);
  strip.fill(Qt::magenta);
  for (int frame = 0; frame < 6; ++frame) strip.setPixel(frame * 40 + 10, 5, qRgb(255, 255, 0));
  std::filesystem::create_directories(media.root() / "pict");
  strip.save(QString::fromStdString((media.root() / "pict" / "rifle03.bmp").string()));
  Game.SightX = 10;
  Game.SightY = 5;
  Videoshot& shot = load();
  shot.vstart();
  shot.ActiveRDX1_MouseMove(0, 0, 500 * 15.0, 400 * 15.0);
  frameAfter(shot, 40);
  EXPECT_EQ(shot.ActiveRDX1->surface().pixel(500, 400), qRgb(255, 255, 0));
}

}  // namespace
