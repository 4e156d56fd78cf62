// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/command_line.h"

#include "platform/fakes/memory_settings.h"
#include "shell/game_state.h"
#include "shell/run_settings.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

using platform::kDriveSection;
using platform::kSettingsSection;

CommandLineReading read(QStringList arguments) {
  arguments.prepend(QStringLiteral("/usr/games/hunt"));
  return readCommandLine(arguments);
}

void expectRefused(const QStringList& arguments, const QString& why) {
  const CommandLineReading reading = read(arguments);
  EXPECT_FALSE(reading.run) << qPrintable(arguments.join(u' '));
  EXPECT_EQ(reading.exitCode, 2) << qPrintable(arguments.join(u' '));
  EXPECT_TRUE(reading.text.startsWith(QStringLiteral("hunt: ") + why)) << qPrintable(reading.text);
  EXPECT_TRUE(reading.text.endsWith(QStringLiteral("Try 'hunt --help' for more information.\n")));
}

}  // namespace

TEST(CommandLineAnswers, HelpNamesEveryOptionAndStartsNothing) {
  for (const QString& asked : {QStringLiteral("--help"), QStringLiteral("-h")}) {
    const CommandLineReading reading = read({asked, QStringLiteral("--window")});
    EXPECT_FALSE(reading.run);
    EXPECT_EQ(reading.exitCode, 0);
    EXPECT_TRUE(reading.text.startsWith(QStringLiteral("Usage: hunt [options]\n")))
        << qPrintable(reading.text);
    for (const char* option : {"--help", "--version", "--media <folder>", "--window", "--size <size>"})
      EXPECT_TRUE(reading.text.contains(QLatin1String(option))) << option;
  }
}

TEST(CommandLineAnswers, VersionIsTheProgramAndItsNumber) {
  QCoreApplication::setApplicationVersion(QStringLiteral("4.2"));
  const CommandLineReading reading = read({QStringLiteral("--version")});
  EXPECT_FALSE(reading.run);
  EXPECT_EQ(reading.exitCode, 0);
  EXPECT_EQ(reading.text, QStringLiteral("hunt 4.2\n"));
}

TEST(CommandLineAnswers, HelpWinsOverAMistake) {
  EXPECT_EQ(read({QStringLiteral("--fullscreen"), QStringLiteral("--help")}).exitCode, 0);
}

TEST(CommandLineMistakes, AreRefusedWithTheReasonAndAPointerToHelp) {
  expectRefused({QStringLiteral("--fullscreen")}, QStringLiteral("Unknown option 'fullscreen'."));
  expectRefused({QStringLiteral("world")}, QStringLiteral("unexpected argument 'world'"));
  expectRefused({QStringLiteral("--media")}, QStringLiteral("Missing value after '--media'."));
  expectRefused({QStringLiteral("--media"), QStringLiteral("/no/such/folder")},
                QStringLiteral("no media folder '/no/such/folder'"));
}

TEST(CommandLineMistakes, ASizeMustBeWidthByHeightWithinTheScreensTheGameLaysOut) {
  for (const char* size : {"1280", "1280x", "x720", "1280*720", "1280x720x2", "-1280x720", "639x480",
                           "640x479", "7681x4320", "7680x4321", "99999x99999"})
    expectRefused({QStringLiteral("--size"), QLatin1String(size)}, QStringLiteral("the size '%1'").arg(size));
}

TEST(CommandLineRun, TakesEveryChoiceOfARun) {
  QTemporaryDir media;
  const CommandLineReading reading =
      read({QStringLiteral("-w"), QStringLiteral("--size=640x480"), QStringLiteral("--media"), media.path()});
  ASSERT_TRUE(reading.run);
  EXPECT_TRUE(reading.text.isEmpty());
  EXPECT_TRUE(reading.run->windowed);
  EXPECT_EQ(reading.run->size, QSize(640, 480));
  EXPECT_EQ(reading.run->media, media.path());
  EXPECT_EQ(read({QStringLiteral("-s"), QStringLiteral("7680x4320")}).run->size, QSize(7680, 4320));
}

TEST(CommandLineRun, NoOptionsIsFullScreenOnTheStoredMedia) {
  const CommandLineReading reading = read({});
  ASSERT_TRUE(reading.run);
  EXPECT_FALSE(reading.run->windowed);
  EXPECT_FALSE(reading.run->size.isValid());
  EXPECT_TRUE(reading.run->media.isEmpty());
}

class AppliedCommandLine : public ::testing::Test {
 protected:
  platform::ScopedService<platform::SettingsStore, platform::MemorySettings> stored;
  QTemporaryDir media;
};

TEST_F(AppliedCommandLine, TheGameReadsTheRunsChoicesAndTheStoreKeepsItsOwn) {
  stored->SaveSetting(kSettingsSection, QStringLiteral("CDloc"), QStringLiteral("e:\\hunting"));
  stored->SaveSetting(kDriveSection, QStringLiteral("E"), QStringLiteral("/old/world"));
  stored->SaveSetting(kSettingsSection, QStringLiteral("SW"), QStringLiteral("15360"));
  applyCommandLine({media.path(), false, QSize(1280, 720)});

  platform::SettingsStore& seen = platform::settings();
  EXPECT_EQ(seen.GetSetting(kDriveSection, QStringLiteral("E"), {}), media.path());
  EXPECT_FALSE(seen.HasSetting(kDriveSection, QStringLiteral("D")));
  const RunSettings run = loadRunSettings();
  EXPECT_EQ(Game.ScreenWidth, 1280 * 15);
  EXPECT_EQ(run.storedHeight, 720 * 15);

  seen.SaveSetting(kSettingsSection, QStringLiteral("SW"), QStringLiteral("9600"));
  EXPECT_EQ(seen.GetSetting(kSettingsSection, QStringLiteral("SW"), {}), QStringLiteral("19200"))
      << "for this run";
  EXPECT_EQ(stored->GetSetting(kSettingsSection, QStringLiteral("SW"), {}), QStringLiteral("9600"));
  EXPECT_EQ(stored->GetSetting(kDriveSection, QStringLiteral("E"), {}), QStringLiteral("/old/world"));
}

TEST_F(AppliedCommandLine, WithoutChoicesTheStoredSettingsStand) {
  stored->SaveSetting(kDriveSection, QStringLiteral("D"), QStringLiteral("/usr/share/games/hunt/world"));
  applyCommandLine({});
  EXPECT_EQ(platform::settings().GetSetting(kDriveSection, QStringLiteral("D"), {}),
            QStringLiteral("/usr/share/games/hunt/world"));
  EXPECT_FALSE(platform::settings().HasSetting(kSettingsSection, QStringLiteral("SW")));
}

TEST_F(AppliedCommandLine, ScreensOpenFullScreenUnlessAWindowWasAskedFor) {
  for (const bool windowed : {false, true}) {
    applyCommandLine({{}, windowed, {}});
    QWidget screen;
    showGameScreen(screen);
    EXPECT_EQ(screen.isFullScreen(), !windowed);
  }
}
