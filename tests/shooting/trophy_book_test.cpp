// SPDX-License-Identifier: GPL-2.0-or-later
// A damaged record book is kept aside and a new one started, so that no later trophy is lost.
#include "shooting/trophy_book.h"
#include "platform/records/record_file.h"
#include "shooting/record_book.h"
#include "shooting_fixture.h"

#include <QDir>

namespace {

enum class Damage { Text, TruncatedHeader, WrongTable };

std::string damageName(Damage damage) {
  switch (damage) {
    case Damage::Text: return "Text";
    case Damage::TruncatedHeader: return "TruncatedHeader";
    case Damage::WrongTable: return "WrongTable";
  }
  return {};
}

// A record file of another table: the right kind of file, but no trophy fits in it.
QByteArray recordFileWithTheWrongTable() {
  testing_support::TempDrive scratch{u'S'};
  platform::writeRecordFile(scratch.root() / "other.isd", {{"Code", "Price"}, {{"1", "2"}}});
  return scratch.read("other.isd");
}

QByteArray damagedBytes(Damage damage) {
  switch (damage) {
    case Damage::Text: return "not a record file at all";
    case Damage::TruncatedHeader: return QByteArray("SQLite format 3") + QByteArray(200, '\0');
    case Damage::WrongTable: return recordFileWithTheWrongTable();
  }
  return {};
}

class DamagedBookTest : public ShootingFixture, public ::testing::WithParamInterface<Damage> {
 protected:
  DamagedBookTest() { Game.HunterName = QStringLiteral("Ann"); }

  void recordKill(int16_t species) {
    ScreenInstance<RecordBook>::unload();
    Game.CurAnimal = species;
    Game.ScreenMode = RecordBook::kAppendMode;
    ScreenInstance<RecordBook>::get().Form_Load();
  }

  std::filesystem::path folder() const { return saves.root() / "saves" / "Dbase"; }
  QStringList keptAside() const {
    return QDir(QString::fromStdString(folder().string()))
        .entryList({QStringLiteral("trophy.isd.damaged-*")}, QDir::Files);
  }
};

}  // namespace

TEST_P(DamagedBookTest, BothLaterTrophiesAreKeptAndTheOldBookIsKeptAside) {
  const QByteArray damaged = damagedBytes(GetParam());
  saves.write("saves/Dbase/trophy.isd", damaged);
  recordKill(16);
  recordKill(3);

  const auto book = platform::readRecordFile(folder() / "trophy.isd");
  ASSERT_EQ(book.rows.size(), 2);
  EXPECT_EQ(book.rows[0][0], "Whitetail Deer");
  EXPECT_EQ(book.rows[1][0], "Black Bear");
  const QStringList kept = keptAside();
  ASSERT_EQ(kept.size(), 1);
  EXPECT_EQ(saves.read("saves/Dbase/" + kept[0].toStdString()), damaged);

  ASSERT_EQ(dialogs->shown().size(), 1u);
  const QString bookFile = QString::fromStdString((folder() / "trophy.isd").string());
  const QString keptFile = QString::fromStdString((folder() / kept[0].toStdString()).string());
  EXPECT_EQ(dialogs->last().text, damagedBookMessage(bookFile, keptFile));
  EXPECT_TRUE(dialogs->last().text.contains(bookFile) && dialogs->last().text.contains(keptFile));
}

INSTANTIATE_TEST_SUITE_P(EachDamage, DamagedBookTest,
                         ::testing::Values(Damage::Text, Damage::TruncatedHeader, Damage::WrongTable),
                         [](const auto& info) { return damageName(info.param); });

TEST_F(ShootingFixture, AGoodBookIsLeftAsItIs) {
  saves.write("saves/Dbase/.keep", "");
  EXPECT_EQ(keepTrophyBookUsable(), std::nullopt);
  Game.CurAnimal = 9;
  Game.ScreenMode = RecordBook::kAppendMode;
  ScreenInstance<RecordBook>::get().Form_Load();
  EXPECT_EQ(keepTrophyBookUsable(), std::nullopt);
  EXPECT_TRUE(dialogs->shown().empty());
  EXPECT_EQ(platform::readRecordFile(saves.root() / "saves" / "Dbase" / "trophy.isd").rows.size(), 1);
}
