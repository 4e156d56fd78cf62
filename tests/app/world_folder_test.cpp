// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/world_folder.h"

#include "platform/fakes/memory_settings.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A file tree of build folders and installs in a temporary folder.
class WorldFolders : public ::testing::Test {
 protected:
  QTemporaryDir tree;
  QString at(const QString& relative) const { return QDir::cleanPath(tree.filePath(relative)); }
  QString makeWorld(const QString& relative) {
    QDir().mkpath(at(relative + QStringLiteral("/data")));
    return at(relative);
  }
};

}  // namespace

TEST_F(WorldFolders, ARunFromTheBuildFolderPlaysTheBuildsWorld) {
  const QString built = makeWorld("build/world");
  makeWorld("home/.local/share/games/hunt/world");
  EXPECT_EQ(findWorld(at("build/bin"), {at("home/.local/share")}), built);
}

TEST_F(WorldFolders, AnInstalledGameTakesTheFirstWorldOfTheDataFolders) {
  makeWorld("usr/share/games/hunt/world");
  const QString local = makeWorld("usr/local/share/games/hunt/world");
  QDir().mkpath(at("home/.local/share/games/hunt/world"));  // left empty: not a world
  EXPECT_EQ(findWorld(at("usr/games"), {at("home/.local/share"), at("usr/local/share"), at("usr/share")}),
            local);
}

TEST_F(WorldFolders, AnInstallOutsideTheDataFoldersFindsTheWorldBesideItsProgram) {
  const QString staged = makeWorld("stage/usr/share/games/hunt/world");
  EXPECT_EQ(findWorld(at("stage/usr/games"), {at("usr/share")}), staged);
}

TEST_F(WorldFolders, WithoutAWorldTheBuildsPlaceIsNamed) {
  EXPECT_EQ(findWorld(at("build/bin"), {at("usr/share")}), at("build/world"));
}

TEST(WorldDrive, TheMediaDriveFollowsTheWorldFound) {
  platform::ScopedService<platform::SettingsStore, platform::MemorySettings> stored;
  stored->SaveSetting(platform::kDriveSection, QStringLiteral("D"),
                      QStringLiteral("/home/me/hunt/build/world"));
  mapMediaDriveTo(QStringLiteral("/usr/share/games/hunt/world"));
  EXPECT_EQ(stored->GetSetting(platform::kDriveSection, QStringLiteral("D"), {}),
            QStringLiteral("/usr/share/games/hunt/world"));
}
