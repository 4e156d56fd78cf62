// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files.h"

#include "support/temp_drive.h"

#include <gtest/gtest.h>

using testing_support::TempDrive;

TEST(DrivePaths, ResolveEveryComponentWithoutRegardToCase) {
  TempDrive d;
  d.write("Surnd/13Lodge.SVH", "x");
  const auto resolved = platform::files().resolve("d:\\SURND\\13lodge.svh");
  EXPECT_EQ(resolved, d.root() / "Surnd" / "13Lodge.SVH");
  EXPECT_TRUE(platform::files().exists("D:/surnd/13LODGE.svh"));
}

TEST(DrivePaths, KeepWhatDoesNotExistYetAsWritten) {
  TempDrive d;
  d.write("Saves/old.txt", "x");
  EXPECT_EQ(platform::files().resolve("D:\\saves\\NEW.VNG"), d.root() / "Saves" / "NEW.VNG");
}

TEST(DrivePaths, AnUnmappedDriveFindsNothing) {
  EXPECT_FALSE(platform::files().exists("Q:\\data\\items.csv"));
  EXPECT_TRUE(platform::files().list("Q:\\*.VNG").isEmpty());
}

TEST(DrivePaths, HostPathsWithMixedSeparatorsStillResolve) {
  TempDrive d;
  d.write("saves/A.VNG", "x");
  const QString fileloc = QString::fromStdString((d.root() / "saves").string()) + "/\\";
  EXPECT_TRUE(platform::files().exists(fileloc + "a.vng"));
}

TEST(WildcardListing, MatchesTheWholeNameWithoutRegardToCase) {
  TempDrive d;
  d.write("s/ONE.VNG", "");
  d.write("s/two.vng", "");
  d.write("s/THREE.VNE", "");
  d.write("s/FOUR.VNGX", "");
  d.write("s/sub.VNG/inner", "");
  QStringList names = platform::files().list("D:\\s\\*.VNG");
  names.sort();
  EXPECT_EQ(names, (QStringList{"ONE.VNG", "two.vng"}));
  EXPECT_EQ(platform::files().list("D:\\s\\T?REE.*"), QStringList{"THREE.VNE"});
}

TEST(FileOperations, RenameAndDeleteThroughGamePaths) {
  TempDrive d;
  d.write("s/A.VNG", "data");
  EXPECT_TRUE(platform::files().rename("D:\\S\\a.vng", "D:\\S\\B.VNG"));
  EXPECT_EQ(d.read("s/B.VNG"), "data");
  EXPECT_TRUE(platform::files().remove("d:\\s\\b.vng"));
  EXPECT_FALSE(platform::files().exists("D:\\s\\B.VNG"));
  EXPECT_FALSE(platform::files().remove("D:\\s\\B.VNG"));
}

TEST(DrivePaths, ClimbingStopsAtTheDrivesFolder) {
  TempDrive d;
  d.write("art/x.bmp", "x");
  for (const char* path : {"D:\\..\\..\\art\\x.bmp", "D:\\art\\..\\..\\..\\art\\x.bmp", "D:/../art/./x.bmp",
                           "D:\\art\\..\\..\\art\\X.BMP"})
    EXPECT_EQ(platform::files().resolve(path), d.root() / "art" / "x.bmp") << path;
}

// Whatever a save name, a list entry or a manifest holds, only a plain name inside the
// folder resolves.
TEST(FolderPaths, OnlyPlainNamesResolveInsideTheFolder) {
  TempDrive d;
  d.write("saves/Camp.VNG", "x");
  const auto folder = d.root() / "saves";
  struct Case {
    QString name;
    std::optional<std::filesystem::path> expected;
  };
  const Case cases[] = {
      {"CAMP.VNG", folder / "Camp.VNG"},
      {"NEW ONE.VNG", folder / "NEW ONE.VNG"},
      {"..", std::nullopt},
      {".", std::nullopt},
      {"", std::nullopt},
      {"..\\..\\x.VNG", std::nullopt},
      {"../x.VNG", std::nullopt},
      {"\\etc\\passwd", std::nullopt},
      {"/etc/passwd", std::nullopt},
      {"C:x.VNG", std::nullopt},
      {"sub\\x.VNG", std::nullopt},
      {"x\n.VNG", std::nullopt},
      {QString(255, u'A'), folder / std::string(255, 'A')},
      {QString(256, u'A'), std::nullopt},
  };
  for (const Case& c : cases)
    EXPECT_EQ(platform::files().resolveIn(QStringLiteral("D:\\Saves\\"), c.name), c.expected)
        << c.name.toStdString();
}

TEST(FolderPaths, AFolderClimbingOutOfItsDriveStaysOnIt) {
  TempDrive d;
  EXPECT_EQ(platform::files().resolveIn(QStringLiteral("D:\\..\\..\\"), QStringLiteral("A.VNG")),
            d.root() / "A.VNG");
}
