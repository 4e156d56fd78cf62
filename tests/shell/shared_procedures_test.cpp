// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/shared_procedures.h"

#include "game_fixture.h"
#include "platform/fakes/fake_clock.h"
#include "platform/fakes/recording_shell.h"

using platform::Icon;
using SharedProcedures = GameFixture;

TEST_F(SharedProcedures, OpenWebPageSaysNothingWhenThePageOpens) {
  platform::ScopedService<platform::ShellOpener, platform::RecordingShell> shell(42);
  EXPECT_EQ(OpenWebPage(nullptr, "D:\\web\\index.html"), 42);
  EXPECT_EQ(shell->opened(), QStringList{"D:\\web\\index.html"});
  EXPECT_TRUE(dialogs->shown().empty());
}

TEST_F(SharedProcedures, OpenWebPageWithoutAnAssociationShowsThreeBoxes) {
  platform::ScopedService<platform::ShellOpener, platform::RecordingShell> shell(31);
  OpenWebPage(nullptr, "http://example.invalid/");
  const auto& shown = dialogs->shown();
  ASSERT_EQ(shown.size(), 3u);
  EXPECT_EQ(shown[0].text, "Internet browser not found, re-install browser and try again.");
  EXPECT_EQ(shown[1].text, "No file association exists.  Check file links in My Computer>Options>File types");
  EXPECT_EQ(shown[2].text, "Information on contacting this company can be found in the help file");
  for (const auto& box : shown) EXPECT_EQ(box.title, "Error Message");
  EXPECT_EQ(shown[1].icon, Icon::Information);
  EXPECT_EQ(shown[2].icon, Icon::None);
}

TEST_F(SharedProcedures, OpenWebPageOutOfMemoryShowsItsOwnBox) {
  platform::ScopedService<platform::ShellOpener, platform::RecordingShell> shell(0);
  OpenWebPage(nullptr, "x");
  ASSERT_EQ(dialogs->shown().size(), 3u);
  EXPECT_EQ(dialogs->shown()[1].text, "Can't load Browser. Out of system memory.");
}

TEST_F(SharedProcedures, WaitTicksWaitsUntilTheReadingPassesTheTarget) {
  // Each reading moves the clock on by one unit of 86.4 ms.
  platform::ScopedService<platform::Clock, platform::FakeClock> clock(rt::dateSerial(1997, 12, 22) + 0.5,
                                                                      0.0864);
  WaitTicks(5);
  // The first reading, then six more until one exceeds it by more than five units; a
  // rounding step may take one more.
  EXPECT_GE(clock->readings(), 7);
  EXPECT_LE(clock->readings(), 8);
}

TEST_F(SharedProcedures, WaitTicksEndsAtMidnightInsteadOfWaitingADay) {
  platform::ScopedService<platform::Clock, platform::FakeClock> clock(rt::dateSerial(1997, 12, 22) + 0.999999,
                                                                      0.0432);
  WaitTicks(100);
  EXPECT_LT(clock->readings(), 10);
}

TEST_F(SharedProcedures, HuntTimerSwitchesThroughTheRegisteredScreen) {
  std::vector<bool> calls;
  StartHuntTimer();  // nothing registered: nothing happens
  setHuntTimerSwitch([&](bool on) { calls.push_back(on); });
  StartHuntTimer();
  StopHuntTimer();
  setHuntTimerSwitch(nullptr);
  EXPECT_EQ(calls, (std::vector<bool>{true, false}));
}
