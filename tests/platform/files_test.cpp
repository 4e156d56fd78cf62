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
