// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/gamestart.h"

#include "game_fixture.h"
#include "platform/fakes/fake_system_config.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/memory_settings.h"
#include "shell/loadingsrn.h"
#include "shell/postcard.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/screen_instance.h"
#include "shell/shared_procedures.h"

#include <QFile>
#include <QTimer>

using platform::Answer;
using platform::Icon;

namespace {

const QString kIos = "System\\CurrentControlSet\\Services\\VXD\\IOS";

class GamestartTest : public GameFixture {
 protected:
  GamestartTest() {
    settings->SaveSetting(platform::kSettingsSection, "Fileloc", "C:\\saves");
    settings->SaveSetting(platform::kSettingsSection, "CDloc", "D:\\hunting");
  }
  platform::FakeMediaWindow& intro() { return *windows->made().front(); }
  void writeNewGame(int16_t flag) {
    Game.SavedFlagA = flag;
    Game.Fileloc = "D:\\data\\";
    media.write("data/.keep", "");
    ASSERT_TRUE(writeSaveFile("D:\\data\\newgam.csv", kGameKind));
    Game.SavedFlagA = 0;
  }

  platform::ScopedService<platform::SettingsStore, platform::MemorySettings> settings;
  platform::ScopedService<platform::SystemConfig, platform::FakeSystemConfig> system;
  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows;
  Gamestart start;
};

}  // namespace

TEST(IntroScale, FitsWholeTimesIntoTheScreenHeight) {
  EXPECT_EQ(Gamestart::introScale(768, false), 3);
  EXPECT_EQ(Gamestart::introScale(600, false), 2);
  EXPECT_EQ(Gamestart::introScale(1080, false), 4);
  EXPECT_EQ(Gamestart::introScale(1080, true), 1);
  EXPECT_EQ(Gamestart::introScale(200, false), 1);
}

TEST_F(GamestartTest, WithoutTheIntroNoVideoWindowIsOpenedAndTheNewGameIsRead) {
  settings->SaveSetting(platform::kSettingsSection, "VIDON", "1");
  writeNewGame(2345);
  Game.VideoBusy = 7;
  start.Form_Load();
  dialogs->answer(Answer::No);
  EXPECT_TRUE(start.Form_Activate());
  EXPECT_EQ(dialogs->last(),
            (platform::MessageBox{"Would you like to play the Special Permit Expansion Pack?",
                                  platform::Buttons::YesNo, Icon::Information, "Play Expansion Pack?"}));
  EXPECT_TRUE(intro().log().isEmpty());
  EXPECT_EQ(Game.VideoBusy, 7);
  EXPECT_EQ(Game.SavedFlagA, 2345);
  EXPECT_EQ(Game.Money, 2500);  // the postcard's own starting money
  EXPECT_EQ(Game.MediaRoot, "D:\\");
  EXPECT_EQ(Game.Fileloc, "C:\\saves\\");
  EXPECT_EQ(Game.HelpFile, "D:\\varnholt.hlp");
  EXPECT_EQ(Game.DbaseDir, "Dbase\\");
  EXPECT_EQ(Game.SaveExt, ".VN");
}

TEST_F(GamestartTest, StartUpLoadsTheHuntingScreenOnceTheLoadingScreenIsDown) {
  settings->SaveSetting(platform::kSettingsSection, "VIDON", "1");
  writeNewGame(0);
  QList<bool> opened;
  bool loadingUp = true;
  setHuntScreenLoader([&](bool openPlace) {
    opened << openPlace;
    loadingUp = ScreenInstance<Loadingsrn>::exists();
  });
  start.Form_Load();
  dialogs->answer(Answer::No);
  EXPECT_TRUE(start.Form_Activate());
  setHuntScreenLoader(nullptr);
  EXPECT_EQ(opened, QList<bool>{true});
  EXPECT_FALSE(loadingUp);
  EXPECT_TRUE(ScreenInstance<Postcard>::exists());
}

TEST_F(GamestartTest, TheSpecialPermitChoosesItsFoldersAndTheIntroPlaysToItsEnd) {
  start.Form_Load();
  dialogs->answer(Answer::Yes);
  // The device reports a stop while the clip opens, then the real one at its end.
  QTimer::singleShot(0, [this] {
    intro().raiseModeChange(platform::kModePaused);
    intro().raiseModeChange(platform::kModeStopped);
  });
  EXPECT_TRUE(start.Form_Activate());
  EXPECT_EQ(Game.XpackMode, -1);
  EXPECT_EQ(Game.DbaseDir, "Xdbase\\");
  EXPECT_EQ(Game.SaveExt, ".VX");
  EXPECT_EQ(intro().fileName(), "D:\\art\\vrnIntro.avi");
  EXPECT_EQ(intro().commands(), (QStringList{"Play", "pause wait", "resume", "Stop", "Close"}));
  EXPECT_EQ(Game.VideoBusy, 0);
}

TEST_F(GamestartTest, AnIntroErrorOffersToGoOn) {
  start.Form_Load();
  dialogs->answer(Answer::No);
  dialogs->answer(Answer::Cancel);
  QTimer::singleShot(0, [this] { intro().raiseError(263); });
  EXPECT_TRUE(start.Form_Activate());
  const auto& shown = dialogs->shown();
  ASSERT_GE(shown.size(), 4u);
  EXPECT_EQ(shown[1].title, "Video Playback Error Code");
  EXPECT_TRUE(shown[2].text.startsWith("Error: Video playback error.\n\r"));
  EXPECT_TRUE(shown[2].text.endsWith("Pressing Cancel will ignore this error and run the program.\n\r"));
  EXPECT_EQ(shown[2].icon, Icon::Critical);
  EXPECT_EQ(shown[3].title, "Ignore Error Condition");
}

TEST_F(GamestartTest, AnIntroErrorAnsweredOkEndsTheProgram) {
  start.Form_Load();
  dialogs->answer(Answer::No);
  dialogs->answer(Answer::Ok);
  QTimer::singleShot(0, [this] { intro().raiseError(263); });
  EXPECT_FALSE(start.Form_Activate());
  EXPECT_TRUE(start.programEnded());
}

TEST_F(GamestartTest, NoFaultNoQuestions) {
  start.CheckSystemConfig();
  EXPECT_TRUE(dialogs->shown().empty());
}

TEST_F(GamestartTest, IgnoringTheFaultWarnsAndGoesOn) {
  system->addValue(kIos, "NOIDE");
  dialogs->answer(Answer::Cancel);
  start.CheckSystemConfig();
  ASSERT_EQ(dialogs->shown().size(), 2u);
  EXPECT_EQ(
      dialogs->shown()[0].text,
      "Varnholt has detected a system configuration error.\n\rTo repair this error, click OK.\n\rTo ignore "
      "this error and run the program, click Cancel.");
  EXPECT_EQ(dialogs->shown()[1].title, "Ignore Error Condition");
  EXPECT_FALSE(start.programEnded());
}

TEST_F(GamestartTest, TheRepairRemarksTheDriverDeletesTheValueAndRestarts) {
  system->addValue(kIos, "NOIDE");
  Game.Fileloc = "C:\\saves\\";
  saves.write(
      "autoexec.bat",
      "@ECHO OFF\r\n  C:\\DOS\\MSCDEX.EXE /D:MSCD001\r\n  rem c:\\dos\\mscdex.exe\r\nlh mscdex /d:x\r\n");
  dialogs->answer(Answer::Ok);
  dialogs->answer(Answer::Ok);
  start.CheckSystemConfig();
  EXPECT_EQ(saves.read("autoexec.bat"),
            "@ECHO OFF\r\nREM   C:\\DOS\\MSCDEX.EXE /D:MSCD001\r\n  rem c:\\dos\\mscdex.exe\r\nREM lh mscdex "
            "/d:x\r\n");
  EXPECT_EQ(saves.read("autoexec.vrn").left(9), "@ECHO OFF");
  EXPECT_EQ(saves.read("saves/noide.txt"), "NoIDE\r\n");
  EXPECT_FALSE(system->HasMachineValue(kIos, "NOIDE"));
  EXPECT_EQ(system->restartRequests(), 1);
  EXPECT_EQ(dialogs->last(),
            (platform::MessageBox{"Could not close Windows. Please restart your system.",
                                  platform::Buttons::Ok, Icon::None, "Could not close Windows."}));
  EXPECT_TRUE(start.programEnded());
}

TEST_F(GamestartTest, AMissingBootFileIsReportedAndNothingChanges) {
  start.DeleteMSCDEX();
  EXPECT_EQ(dialogs->last().title, "Could not find C:\\AUTOEXEC.BAT");
  EXPECT_EQ(dialogs->last().icon, Icon::Exclamation);
  EXPECT_TRUE(dialogs->last().text.startsWith("Could not locate C:\\AUTOEXEC.BAT file. \n\rThis file"));
  EXPECT_FALSE(platform::files().exists("C:\\autoexec.vrn"));
}

TEST_F(GamestartTest, AValueThatWillNotGoIsReported) {
  system->addValue(kIos, "NOIDE");
  system->refuseDelete();
  start.DeleteNoIde();
  EXPECT_EQ(dialogs->last().title, "Error Could Not Repair");
  EXPECT_TRUE(dialogs->last().text.startsWith("Err:NODEL"));
}

TEST_F(GamestartTest, AFaultThatCameBackRestoresTheBootFileAndRestarts) {
  system->addValue(kIos, "NOIDE");
  system->acceptRestart();
  Game.Fileloc = "C:\\saves\\";
  saves.write("saves/noide.txt", "NoIDE\r\n");
  saves.write("autoexec.bat", "REM changed\r\n");
  saves.write("autoexec.vrn", "original\r\n");
  start.CheckSystemConfig();
  EXPECT_TRUE(dialogs->last().text.startsWith("Err:BADIDE"));
  EXPECT_EQ(dialogs->last().icon, Icon::Critical);
  QFile restored(QString::fromStdString(platform::files().resolve("C:\\AUTOEXEC.BAT").string()));
  ASSERT_TRUE(restored.open(QIODevice::ReadOnly));
  EXPECT_EQ(restored.readAll(), "original\r\n");
  EXPECT_FALSE(platform::files().exists("C:\\autoexec.vrn"));
  EXPECT_FALSE(platform::files().exists("C:\\saves\\noide.txt"));
  EXPECT_EQ(system->restartRequests(), 1);
  EXPECT_TRUE(start.programEnded());
}
