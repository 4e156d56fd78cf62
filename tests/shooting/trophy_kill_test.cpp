// SPDX-License-Identifier: GPL-2.0-or-later
// A kill written to the record book while the game is killed between any two of the book's
// file-system calls leaves the book readable, with the trophy or without it.
#include "platform/records/record_data.h"
#include "platform/records/record_file.h"
#include "shooting/trophy_book.h"
#include "shooting/trophy_record.h"
#include "shooting_fixture.h"
#include "support/kill_points.h"

#include <QDir>

using testing_support::KillPoints;

TEST_F(ShootingFixture, AKilledTrophyAppendLeavesTheBookWhole) {
  Game.HunterName = QStringLiteral("Ann");
  Game.CurAnimal = 9;
  saves.write("saves/Dbase/.keep", "");
  platform::RecordData data;
  appendTrophyTo(data);
  appendTrophyTo(data);
  data.Close();
  const auto bookFile = saves.root() / "saves" / "Dbase" / "trophy.isd";
  const platform::RecordTable before = platform::readRecordFile(bookFile);
  ASSERT_EQ(before.rows.size(), 2);

  const auto append = [] {
    keepTrophyBookUsable();
    platform::RecordData child;
    appendTrophyTo(child);
  };
  int call = 0;
  int status = KillPoints::kKilled;
  for (; (status = KillPoints::runKilledAt(call, append)) == KillPoints::kKilled; ++call) {
    platform::RecordTable now;
    ASSERT_NO_THROW(now = platform::readRecordFile(bookFile)) << "killed before call " << call;
    EXPECT_TRUE(now.rows.size() == 2 || now.rows.size() == 3) << "killed before call " << call;
    EXPECT_EQ(now.rows.mid(0, 2), before.rows);
    EXPECT_EQ(keepTrophyBookUsable(), std::nullopt) << "killed before call " << call;
    platform::writeRecordFile(bookFile, before);
  }
  EXPECT_EQ(status, KillPoints::kFinished);
  EXPECT_GE(call, 5) << "the book's file-system calls were not each a kill point";
  EXPECT_EQ(platform::readRecordFile(bookFile).rows.size(), 3);
  EXPECT_TRUE(dialogs->shown().empty());
  const QDir folder(QString::fromStdString(bookFile.parent_path().string()));
  EXPECT_EQ(folder.entryList({QStringLiteral("trophy.isd*")}, QDir::Files), QStringList{"trophy.isd"});
}
