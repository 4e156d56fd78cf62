// SPDX-License-Identifier: GPL-2.0-or-later
// Faults from outside: a disk that fills while a game is saved or a trophy is written leaves
// the old save and the record book as they were; a world missing a whole kind of media file
// still plays.
#include "hunt_robot.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/records/record_data.h"
#include "platform/records/record_file.h"
#include "robot_world.h"
#include "shell/game_state.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shooting/trophy_record.h"
#include "support/temp_drive.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <csignal>

namespace {

// While it lives, no file of this process may grow past `bytes`: a write across that size
// fails part-way, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &previous_);
    previousSignal_ = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = previous_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &previous_);
    std::signal(SIGXFSZ, previousSignal_);
  }

 private:
  rlimit previous_{};
  void (*previousSignal_)(int) = nullptr;
};

class DiskFaultTest : public ::testing::Test {
 protected:
  DiskFaultTest() {
    Game = GameState{};
    Game.Fileloc = QStringLiteral("C:\\saves\\");
    saves.write("saves/Dbase/.keep", "");
  }
  ~DiskFaultTest() override { Game = GameState{}; }

  testing_support::TempDrive saves{u'C'};
  platform::ScopedService<platform::Dialogs, platform::ScriptedDialogs> dialogs;
};

}  // namespace

TEST_F(DiskFaultTest, ASaveThatFailsHalfwayLeavesTheOldSave) {
  const QString path = saveFilePath(QStringLiteral("CAMP"), kGameKind);
  Game.Money = 1234;
  Game.HunterName = QStringLiteral("Old");
  ASSERT_TRUE(writeSaveFile(path, kGameKind));
  const QByteArray old = saves.read("saves/CAMP.VNG");
  ASSERT_GT(old.size(), 200);

  Game.Money = 99;
  Game.HunterName = QString(2000, u'N');  // the new file is larger than the old
  {
    FileSizeLimit full(rlim_t(old.size() / 2));
    EXPECT_FALSE(writeSaveFile(path, kGameKind));
  }
  EXPECT_EQ(saves.read("saves/CAMP.VNG"), old);
  Game = GameState{};
  Game.Fileloc = QStringLiteral("C:\\saves\\");
  ReadSaveFile(path, kGameKind);
  EXPECT_EQ(Game.Money, 1234);
  EXPECT_EQ(Game.HunterName, "Old");
}

TEST_F(DiskFaultTest, ATrophyThatFailsHalfwayLeavesTheRecordBook) {
  const auto bookFile = saves.root() / "saves" / "Dbase" / "trophy.isd";
  platform::RecordTable book{{"Species", "Hunter", "Notes"}, {}};
  for (int i = 0; i < 40; ++i) book.rows.append({"Elk", "Hunter " + QString::number(i), QString(300, u'x')});
  platform::writeRecordFile(bookFile, book);
  const auto sizeBefore = std::filesystem::file_size(bookFile);

  const auto append = [] {
    platform::RecordData data;
    data.SetDatabaseName(trophyBookPath());
    data.Refresh();
    data.AddNew();
    data.SetField(QStringLiteral("Species"), QStringLiteral("Moose"));
    data.SetField(QStringLiteral("Hunter"), QStringLiteral("Late"));
    data.SetField(QStringLiteral("Notes"), QString(20000, u'y'));  // several new pages
    data.Update();
  };
  {
    FileSizeLimit full(rlim_t(sizeBefore + 4096));
    EXPECT_ANY_THROW(append());
  }
  EXPECT_EQ(platform::readRecordFile(bookFile), book);
  append();
  EXPECT_EQ(platform::readRecordFile(bookFile).rows.size(), book.rows.size() + 1);
}

class MissingMediaTest : public ::testing::TestWithParam<const char*> {};

TEST_P(MissingMediaTest, TheGamePlaysOnWithoutThem) {
  const robot_testing::WorldWithout world(GetParam());
  ASSERT_GT(world.removed(), 0) << "the sample world has no " << GetParam() << " files";
  robot::RobotOptions options;
  options.hunts = 3;
  options.seed = 5;
  options.world = world.root();
  options.stepsPerHunt = 700;
  robot::HuntRobot robot(options);
  const robot::Tally& tally = robot.run();
  EXPECT_EQ(tally.hunts, 3);
  EXPECT_EQ(tally.huntEnds.count(QStringLiteral("thrown")), 0u) << tally.summary().toStdString();
  for (const QString& note : tally.breakNotes) {
    EXPECT_FALSE(note.contains(u"stayed open") || note.contains(u"never ended") ||
                 note.contains(u"still running"))
        << note.toStdString();
  }
}

// Clips, sounds, pictures, hit zones, panoramas.
INSTANTIATE_TEST_SUITE_P(EachKind, MissingMediaTest,
                         ::testing::Values(".avi", ".wav", ".bmp", ".jpg", ".dat", ".svh"),
                         [](const auto& info) { return std::string(info.param + 1); });
