// SPDX-License-Identifier: GPL-2.0-or-later
// The gun rack: paging through the weapon records, arming the hunter and leaving unarmed.
#include "lodge/weapons.h"

#include "lodge_fixture.h"
#include "platform/picture_box.h"
#include "shell/names.h"

#include <QLabel>
#include <QTest>

namespace {

class WeaponsTest : public lodge_testing::LodgeFixture {
 protected:
  WeaponsTest() {
    std::vector<QStringList> rows;
    // Weapon 4 has no record, so its page keeps what the last page showed.
    for (int id = 1; id <= 9; ++id) {
      if (id == 4) continue;
      rows.push_back({QString::number(id),
                      QStringLiteral("Gun ") + QString::number(id) + QStringLiteral("  "),
                      QStringLiteral("About gun ") + QString::number(id), QStringLiteral("42 in."),
                      QStringLiteral("7 lbs"), QStringLiteral(".257"), QStringLiteral("2780 fps"),
                      QStringLiteral("Deer"), QStringLiteral("-8 in."), QStringLiteral("2.5 in."),
                      QStringLiteral("2010 ft-lbs")});
    }
    lodge_testing::writeRecords(QStringLiteral("D:\\Dbase\\weapon.isd"),
                                {"ID", "Weapon", "Description", "Length", "Weight", "Ammunition", "Velocity",
                                 "Game", "Trajectory", "POA", "Energy"},
                                rows);
    rack.Form_Load();
  }

  Weapons rack;
};

TEST_F(WeaponsTest, OpensOnTheFirstWeaponWithItsLabelsAndSpeaks) {
  EXPECT_EQ(rack.page(), 1);
  EXPECT_EQ(rack.lbWeaponName->text(), QStringLiteral("Gun 1"));
  EXPECT_EQ(rack.lbwepLength->text(), QStringLiteral("L: 42 in."));
  EXPECT_EQ(rack.lbwepWeight->text(), QStringLiteral("W: 7 lbs"));
  EXPECT_EQ(rack.lbwepAmmo->text(), QStringLiteral("Ammo: .257"));
  EXPECT_EQ(rack.lbwepvelo->text(), QStringLiteral("V: 2780 fps"));
  EXPECT_EQ(rack.lbGame->text(), QStringLiteral("Deer"));
  EXPECT_EQ(rack.lbwepTraj->text(), QStringLiteral("T: -8 in."));
  EXPECT_EQ(rack.lbweppoa->text(), QStringLiteral("POA: 2.5 in."));
  EXPECT_EQ(rack.lbwepenergy->text(), QStringLiteral("E: 2010 ft-lbs"));
  EXPECT_EQ(rack.lbWepDesc->text(), QStringLiteral("About gun 1"));
  EXPECT_EQ(rack.Wepimage->picturePath(), QStringLiteral("D:\\pict\\weapon1.bmp"));
  EXPECT_EQ(rack.Background->picturePath(), QStringLiteral("D:\\art\\Pweapon.bmp"));
  EXPECT_EQ(spoken(), QStringList{QStringLiteral("chweap")});
}

TEST_F(WeaponsTest, PagingWrapsBothWaysAndPausesBetweenPages) {
  const int readings = clock->readings();
  rack.catback_Click();
  EXPECT_EQ(rack.page(), 9);
  EXPECT_EQ(rack.lbWeaponName->text(), QStringLiteral("Gun 9"));
  EXPECT_GT(clock->readings(), readings) << "the busy pause reads the clock";
  rack.Catnext_Click();
  EXPECT_EQ(rack.page(), 1);
  rack.Catnext_Click();
  EXPECT_EQ(rack.lbWeaponName->text(), QStringLiteral("Gun 2"));
}

TEST_F(WeaponsTest, APageWithoutARecordKeepsTheLastWeaponShown) {
  rack.Catnext_Click();
  rack.Catnext_Click();
  rack.Catnext_Click();
  EXPECT_EQ(rack.page(), 4);
  EXPECT_EQ(rack.lbWeaponName->text(), QStringLiteral("Gun 3"));
  EXPECT_EQ(rack.Wepimage->picturePath(), QStringLiteral("D:\\pict\\weapon3.bmp"));
}

TEST_F(WeaponsTest, SelectingArmsTheHunterWithPictureAndSights) {
  for (int i = 0; i < 4; ++i) rack.Catnext_Click();
  rack.selwep_Click();
  EXPECT_EQ(Game.CurWeapon, 5);
  EXPECT_EQ(Game.CurWeaponPic, QStringLiteral("hgun0"));
  EXPECT_EQ((std::array{Game.SightX, Game.SightY, Game.SightZ}), (std::array<int16_t, 3>{153, 94, 6}));
}

TEST_F(WeaponsTest, TheSpecialPermitGroupHasItsOwnSights) {
  Game.XpackMode = -1;
  for (int i = 0; i < 4; ++i) rack.catback_Click();
  EXPECT_EQ(rack.page(), 6);
  rack.selwep_Click();
  EXPECT_EQ(Game.CurWeapon, 6);
  EXPECT_EQ(Game.CurWeaponPic, QStringLiteral("12ga0"));
  EXPECT_EQ((std::array{Game.SightX, Game.SightY, Game.SightZ}), (std::array<int16_t, 3>{168, 116, 6}));
}

TEST_F(WeaponsTest, CancelLeavesTheHunterUnarmedEvenAfterAnEarlierChoice) {
  Game.CurWeapon = 3;
  Game.SightX = 159;
  rack.Cancelbox_Click();
  EXPECT_EQ(Game.CurWeapon, 0);
  EXPECT_EQ(WeaponName(Game.CurWeapon), QStringLiteral("No Weapon Selected"));
  EXPECT_EQ(Game.SightX, 159) << "no weapon leaves the sights alone";
}

TEST_F(WeaponsTest, EscapeLeavesAsCancelDoes) {
  Game.CurWeapon = 2;
  rack.show();
  QTest::keyClick(&rack, Qt::Key_Escape);
  EXPECT_EQ(Game.CurWeapon, 0);
  EXPECT_FALSE(rack.isVisible());
}

TEST_F(WeaponsTest, AMissingRecordFileLeavesTheRackEmptyAndQuiet) {
  std::filesystem::remove(drive.root() / "Dbase" / "weapon.isd");
  Weapons empty;
  empty.Form_Load();
  EXPECT_EQ(empty.lbWeaponName->text(), QString());
  EXPECT_EQ(empty.Wepimage->picturePath(), QString());
  empty.Catnext_Click();
  EXPECT_EQ(empty.page(), 2);
}

}  // namespace
