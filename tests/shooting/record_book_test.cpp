// SPDX-License-Identifier: GPL-2.0-or-later
// The record book: appending a trophy in mode 4, the species pages with their headings,
// rows in the order taken, paging round the sixteen species.
#include "shooting/record_book.h"
#include "platform/datetime.h"
#include "platform/picture_box.h"
#include "platform/records/record_data.h"
#include "shooting_fixture.h"

#include <QLabel>
#include <QTableWidget>

namespace {

class RecordBookTest : public ShootingFixture {
 protected:
  RecordBookTest() {
    Game.HunterName = QStringLiteral("Ann");
    Game.CurWeapon = 1;
    Game.WorldNum = 0;
    Game.ShotYards = 120;
    Game.GameDate = rt::dateSerial(1997, 12, 23) + rt::timeSerial(16, 30, 0);
    Game.SkillLevel = 2;
  }

  RecordBook& open(int16_t mode) {
    ScreenInstance<RecordBook>::unload();
    Game.ScreenMode = mode;
    RecordBook& book = ScreenInstance<RecordBook>::get();
    book.Form_Load();
    return book;
  }

  // Appends a kill of `species` as the aftermath of a lawful shot does.
  RecordBook& recordKill(int16_t species, double size, double weight) {
    Game.CurAnimal = species;
    Game.TrophySize = size;
    Game.TrophyWeight = weight;
    return open(RecordBook::kAppendMode);
  }

  static QString cell(const RecordBook& book, int row, int column) {
    const QTableWidgetItem* item = book.VSFMyGrid->item(row, column);
    return item ? item->text() : QString();
  }

  static QStringList row(const RecordBook& book, int r) {
    QStringList cells;
    for (int c = 0; c < book.VSFMyGrid->columnCount(); ++c) cells << cell(book, r, c);
    return cells;
  }
};

const QStringList kHeadings = {"Type",   "Hunter", "Size", "Weight", "Location",
                               "Weapon", "Range",  "Time", "Skill"};

TEST_F(RecordBookTest, AKillIsWrittenWithItsNineFieldsAndShownOnItsPage) {
  RecordBook& book = recordKill(16, 8, 180.5);
  platform::RecordData file;
  file.SetDatabaseName(QStringLiteral("C:\\saves\\Dbase\\trophy.isd"));
  file.FindFirst();
  ASSERT_FALSE(file.NoMatch());
  EXPECT_EQ(file.FieldNames(), QStringList({"Animaltype", "Hunter", "Size", "Weight", "Area", "Weapon",
                                            "Range", "Time", "Skill"}));
  const QStringList expected = {"Whitetail Deer", "Ann",       "8.00 Points",     "180.50 lbs", "Piedmont",
                                ".257 Rifle",     "120 yards", "Tuesday 4:30 PM", "Advanced"};
  for (int field = 1; field <= 9; ++field) EXPECT_EQ(file.Field(field), expected[field - 1]);
  EXPECT_EQ(book.page(), 16);
  EXPECT_EQ(book.Specieslab->text(), QStringLiteral("Whitetail Deer"));
  EXPECT_EQ(book.Trophypic->picturePath(), QStringLiteral("D:\\art\\Trophy16.bmp"));
  EXPECT_EQ(book.VSFMyGrid->columnCount(), 9);
  EXPECT_EQ(row(book, 0), kHeadings);
  EXPECT_EQ(row(book, 2), expected);
}

TEST_F(RecordBookTest, EveryOpeningToAppendAddsOneRecordInTheOrderTaken) {
  recordKill(16, 8, 180);
  recordKill(3, 21.254, 300);
  RecordBook& book = recordKill(16, 10, 210);
  ASSERT_EQ(book.VSFMyGrid->rowCount(), 4);
  EXPECT_EQ(cell(book, 2, 2), QStringLiteral("8.00 Points"));
  EXPECT_EQ(cell(book, 3, 2), QStringLiteral("10.00 Points"));
  book.catback_Click();  // 15: no turkeys
  EXPECT_EQ(book.VSFMyGrid->rowCount(), 2);
  for (int i = 0; i < 12; ++i) book.catback_Click();
  EXPECT_EQ(book.page(), 3);
  ASSERT_EQ(book.VSFMyGrid->rowCount(), 3);
  EXPECT_EQ(cell(book, 2, 2), QStringLiteral("21.25 Sq. Ft."));
}

TEST_F(RecordBookTest, BrowsingOpensOnPageOneAndWrapsAtBothEnds) {
  recordKill(1, 36.5, 250);
  RecordBook& book = open(RecordBook::kBrowseMode);
  EXPECT_EQ(book.page(), 1);
  EXPECT_EQ(book.VSFMyGrid->rowCount(), 3);
  EXPECT_EQ(cell(book, 2, 0), QStringLiteral("Bighorn Sheep"));
  book.catback_Click();
  EXPECT_EQ(book.page(), 16);
  EXPECT_EQ(book.Specieslab->text(), QStringLiteral("Whitetail Deer"));
  EXPECT_EQ(book.Trophypic->picturePath(), QStringLiteral("D:\\art\\Trophy16.bmp"));
  book.Catnext_Click();
  EXPECT_EQ(book.page(), 1);
  EXPECT_EQ(book.Specieslab->text(), QStringLiteral("Bighorn Sheep"));
}

TEST_F(RecordBookTest, AnEmptyPageShowsOnlyItsHeadings) {
  RecordBook& book = open(RecordBook::kBrowseMode);
  ASSERT_EQ(book.VSFMyGrid->rowCount(), 2);
  EXPECT_EQ(row(book, 0), kHeadings);
  EXPECT_EQ(row(book, 1), QStringList(9, QString()));
}

TEST_F(RecordBookTest, TheSpecialPermitWorldsKeepTheirOwnBook) {
  Game.XpackMode = -1;
  Game.DbaseDir = QStringLiteral("Xdbase\\");
  recordKill(9, 6, 700);
  EXPECT_TRUE(std::filesystem::exists(saves.root() / "saves" / "Xdbase" / "trophy.isd"));
  EXPECT_FALSE(std::filesystem::exists(saves.root() / "saves" / "Dbase" / "trophy.isd"));
}

TEST_F(RecordBookTest, TheBackgroundIsTheWorldsOwn) {
  Game.AreaLetter = QStringLiteral("Y");
  EXPECT_EQ(open(RecordBook::kBrowseMode).Background->picturePath(), QStringLiteral("D:\\art\\Ytrophy.bmp"));
}

}  // namespace
