// SPDX-License-Identifier: GPL-2.0-or-later
// A save killed between any two of its file-system calls leaves the old game or the new one,
// whole, and the next save takes away any temporary file the kill left.
#include "game_fixture.h"
#include "platform/durable_file.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "support/kill_points.h"

#include <QDir>

using testing_support::KillPoints;

TEST_F(GameFixture, AKilledSaveLeavesTheOldGameOrTheNewOneAndNoStrayFile) {
  Game.Money = 1234;
  ASSERT_EQ(saveNamedFile("CAMP", kGameKind), SaveOutcome::Saved);
  const QByteArray old = saves.read("saves/CAMP.VNG");
  Game.Money = 99;
  saves.write("fresh/.keep", "");
  ASSERT_TRUE(writeSaveFile("C:\\fresh\\CAMP.VNG", kGameKind));
  const QByteArray fresh = saves.read("fresh/CAMP.VNG");
  ASSERT_NE(old, fresh);

  const auto save = [] { writeSaveFile("C:\\saves\\CAMP.VNG", kGameKind); };
  int call = 0;
  int status = KillPoints::kKilled;
  bool leftATemporaryFile = false;
  for (; (status = KillPoints::runKilledAt(call, save)) == KillPoints::kKilled; ++call) {
    const QByteArray now = saves.read("saves/CAMP.VNG");
    EXPECT_TRUE(now == old || now == fresh) << "killed before call " << call;
    leftATemporaryFile |=
        std::filesystem::exists(platform::durableTempPath(saves.root() / "saves" / "CAMP.VNG"));
    const GameState playing = Game;
    EXPECT_EQ(listSaveNames(kGameKind), QStringList{"CAMP"});
    ASSERT_EQ(loadNamedFile(QStringLiteral("CAMP"), kGameKind), LoadOutcome::Loaded);
    EXPECT_TRUE(Game.Money == 1234 || Game.Money == 99) << "killed before call " << call;
    Game = playing;
    saves.write("saves/CAMP.VNG", old);
  }
  EXPECT_EQ(status, KillPoints::kFinished);
  EXPECT_GE(call, 8) << "the writer's file-system calls were not each a kill point";
  EXPECT_TRUE(leftATemporaryFile);
  EXPECT_EQ(saves.read("saves/CAMP.VNG"), fresh);

  ASSERT_TRUE(writeSaveFile("C:\\saves\\CAMP.VNG", kGameKind));
  EXPECT_EQ(saves.read("saves/CAMP.VNG"), fresh);
  const QDir folder(QString::fromStdString((saves.root() / "saves").string()));
  EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden), (QStringList{".keep", "CAMP.VNG"}));
}
