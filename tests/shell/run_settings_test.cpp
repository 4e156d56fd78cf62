// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/run_settings.h"

#include "game_fixture.h"
#include "platform/fakes/memory_settings.h"

#include <QDir>
#include <QTemporaryDir>

#include <fstream>

namespace {

class RunSettingsTest : public GameFixture {
 protected:
  platform::ScopedService<platform::SettingsStore, platform::MemorySettings> settings;
  void store(const QString& key, const QString& value) {
    settings->SaveSetting(platform::kSettingsSection, key, value);
  }
};

}  // namespace

TEST_F(RunSettingsTest, AbsentSettingsGiveTheDefaults) {
  const RunSettings run = loadRunSettings();
  EXPECT_FALSE(run.skipIntro);
  EXPECT_TRUE(Game.VideosOn);
  EXPECT_FALSE(run.naturalSizeIntro);
  EXPECT_EQ(run.storedHeight, 0);
  EXPECT_EQ(Game.ScreenWidth, 0);
  EXPECT_EQ(Game.Fileloc, "0\\");
  EXPECT_EQ(Game.MediaRoot, "d:\\");
}

TEST_F(RunSettingsTest, StoredValuesAreCutAndCompleted) {
  store("CDloc", "E:\\media\\hunting");
  store("Fileloc", "C:\\saves");
  store("VIDON", "1");
  store("SMAVI", "-1");
  store("SW", "15360");
  store("SH", "11520");
  const RunSettings run = loadRunSettings();
  EXPECT_EQ(Game.MediaRoot, "E:\\");
  EXPECT_EQ(Game.Fileloc, "C:\\saves\\");
  EXPECT_TRUE(run.skipIntro);
  EXPECT_FALSE(Game.VideosOn);
  EXPECT_TRUE(run.naturalSizeIntro);
  EXPECT_EQ(Game.ScreenWidth, 15360);
  EXPECT_EQ(run.storedHeight, 11520);
}

TEST_F(RunSettingsTest, AFreshInstallFindsTheWorldOnDAndSavesInTheUsersFolder) {
  QTemporaryDir world;
  QTemporaryDir user;
  media.write("marker", "");  // D: currently points elsewhere
  ensureInstallDefaults(world.path(), user.path());
  mapStoredDrives();
  std::ofstream(world.path().toStdString() + "/Data.txt") << "x";
  EXPECT_TRUE(platform::files().exists("d:\\DATA.TXT"));
  loadRunSettings();
  // The save folder exists, and a save path built from it resolves into the user's folder.
  EXPECT_TRUE(QDir(user.path() + "/saves").exists());
  EXPECT_EQ(platform::files().resolve(Game.Fileloc + "A.VNG"),
            std::filesystem::path(user.path().toStdString()) / "saves" / "A.VNG");
}

TEST_F(RunSettingsTest, InstallDefaultsNeverOverwriteStoredChoices) {
  store("Fileloc", "C:\\mine\\");
  settings->SaveSetting(platform::kDriveSection, "D", "/media/cdrom");
  QTemporaryDir world;
  QTemporaryDir user;
  ensureInstallDefaults(world.path(), user.path());
  EXPECT_EQ(settings->GetSetting(platform::kSettingsSection, "Fileloc", {}), "C:\\mine\\");
  EXPECT_EQ(settings->GetSetting(platform::kDriveSection, "D", {}), "/media/cdrom");
  EXPECT_EQ(settings->GetSetting(platform::kDriveSection, "C", {}), user.path());
}
