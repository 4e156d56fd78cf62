// SPDX-License-Identifier: GPL-2.0-or-later
// The target range: the target of each weapon set at the screen's scale, holes where the
// sight settings put them, the magazine, reloading and the four sight buttons.
#include "shooting/trange.h"
#include "platform/mixer/active_rdx.h"
#include "platform/mixer/data_sprite.h"
#include "shooting_fixture.h"

#include <QPushButton>

namespace {

class TrangeTest : public ShootingFixture {
 protected:
  TrangeTest() {
    Game.CurWeapon = 3;
    Game.CurWeaponPic = QStringLiteral("rifle0");
    Game.SightZ = 3;
    Game.AreaLetter = QStringLiteral("P");
    Game.ScreenState = QStringLiteral("3");
  }

  Trange& load() {
    Trange& range = ScreenInstance<Trange>::get();
    range.Form_Load();
    return range;
  }

  static void fireAt(Trange& range, QPoint px) {
    range.ActiveRDX1_MouseDown(1, 0, px.x() * 15.0, px.y() * 15.0);
  }

  static int visibleHoles(const Trange& range) {
    int shown = 0;
    for (int i = 0; i < kHoleCount; ++i) shown += range.hole(i)->visible() ? 1 : 0;
    return shown;
  }
};

TEST_F(TrangeTest, TheTargetIsScaledFromThe640PixelPicture) {
  Trange& range = load();
  EXPECT_DOUBLE_EQ(range.sceneScale(), 1.6);
  const TargetRect t = range.target();
  EXPECT_EQ(QRect(QPoint(t.left, t.top), QPoint(t.right, t.bottom)),
            QRect(QPoint(403, 70), QPoint(1021, 592)));
  EXPECT_EQ(range.holeOffset(), QPoint(-5, -5));
}

TEST_F(TrangeTest, TheSpecialPermitBowHasItsOwnTarget) {
  Game.XpackMode = -1;
  Game.CurWeapon = 8;
  Game.ScreenWidth = 640 * 15;
  Game.ScreenHeight = 480 * 15;
  Trange& range = load();
  EXPECT_EQ(range.target().left, 259);
  EXPECT_EQ(range.target().bottom, 204);
  EXPECT_EQ(range.holeOffset(), QPoint(-21, -33));
}

TEST_F(TrangeTest, NoWeaponKeepsTheLastTarget) {
  Trange& range = load();
  Game.CurWeapon = 0;
  range.RDXInit();
  EXPECT_EQ(range.target().left, 403);
  EXPECT_EQ(range.holeOffset(), QPoint(-5, -5));
}

TEST_F(TrangeTest, TheRangePictureOfTheTargetsClassFillsTheScreen) {
  QImage picture(640, 480, QImage::Format_RGB32);
  picture.fill(qRgb(200, 30, 30));
  std::filesystem::create_directories(media.root() / "pict");
  ASSERT_TRUE(picture.save(QString::fromStdString((media.root() / "pict" / "Prange3.bmp").string())));
  Game.ScreenState = QStringLiteral(" 3 ");
  Trange& range = load();
  range.ActiveRDX1->frame();
  EXPECT_EQ(range.ActiveRDX1->surface().pixel(1000, 700), qRgb(200, 30, 30));
}

TEST_F(TrangeTest, AShotOnTheTargetsEdgeLeavesAHoleWhereTheSightSettingsPutIt) {
  Game.SightElev[3] = 2;
  Game.SightWind[3] = -4;
  Trange& range = load();
  fireAt(range, {403, 70});
  EXPECT_TRUE(range.hole(0)->visible());
  EXPECT_EQ(range.hole(0)->position(), QPoint(403 + 6 - 5, 70 - 12 - 5));
  EXPECT_EQ(range.hole(0)->z(), 25);
  EXPECT_EQ(huntWindow().log(), QStringList({"file D:\\sound\\wepsnd3.wav", "Play "}));
}

TEST_F(TrangeTest, AShotOffTheTargetLeavesNoHoleButUsesARound) {
  Trange& range = load();
  fireAt(range, {402, 300});
  fireAt(range, {600, 593});
  EXPECT_EQ(visibleHoles(range), 0);
  EXPECT_EQ(range.shotCount(), 2);
  fireAt(range, {600, 300});
  EXPECT_TRUE(range.hole(2)->visible());
  EXPECT_EQ(range.hole(2)->z(), 27);
}

TEST_F(TrangeTest, AnEmptyMagazineShowsReloadAndIgnoresClicks) {
  Trange& range = load();
  for (int i = 0; i < 3; ++i) fireAt(range, {600, 300});
  EXPECT_TRUE(range.magazineEmpty());
  EXPECT_FALSE(range.Reloadbut->isHidden());
  EXPECT_FALSE(range.sightSprite()->visible());
  fireAt(range, {600, 300});
  EXPECT_EQ(range.shotCount(), 3);
  EXPECT_EQ(huntWindow().commands().size(), 3);
}

TEST_F(TrangeTest, ReloadingClearsTheHolesAndPlaysTheReloadSound) {
  Trange& range = load();
  for (int i = 0; i < 3; ++i) fireAt(range, {600, 300});
  range.Reloadbut_Click();
  EXPECT_EQ(visibleHoles(range), 0);
  EXPECT_EQ(range.shotCount(), 0);
  EXPECT_FALSE(range.magazineEmpty());
  EXPECT_TRUE(range.Reloadbut->isHidden());
  EXPECT_TRUE(range.sightSprite()->visible());
  const QStringList log = huntWindow().log();
  EXPECT_EQ(log.mid(log.size() - 3), QStringList({"file D:\\sound\\reload3.wav", "Play wait", "Close"}));
  fireAt(range, {600, 300});
  EXPECT_TRUE(range.hole(0)->visible());
}

TEST_F(TrangeTest, SightButtonsStepTheSelectedWeaponAndStopAtTen) {
  Game.SightElev[3] = -10;
  Game.SightWind[3] = 10;
  Trange& range = load();
  range.Dup_Click();
  range.Dright_Click();
  EXPECT_EQ(Game.SightElev[3], -10);
  EXPECT_EQ(Game.SightWind[3], 10);
  range.Ddown_Click();
  range.Ddown_Click();
  range.Dleft_Click();
  EXPECT_EQ(Game.SightElev[3], -8);
  EXPECT_EQ(Game.SightWind[3], 9);
  EXPECT_EQ(Game.SightElev[2], 0);
  Game.CurWeapon = 11;
  range.Ddown_Click();
  range.Dleft_Click();
  EXPECT_EQ(Game.SightElev, (std::array<int16_t, kSightCount>{0, 0, 0, -8}));
}

TEST_F(TrangeTest, BuildingTheSceneTwiceLeavesOneScene) {
  Trange& range = load();
  fireAt(range, {600, 300});
  range.RDXInit();
  EXPECT_EQ(range.shotCount(), 0);
  EXPECT_EQ(visibleHoles(range), 0);
  EXPECT_EQ(range.ActiveRDX1->findChildren<platform::DataSprite*>().size(), 1 + kHoleCount + 1 + 1);
}

}  // namespace
