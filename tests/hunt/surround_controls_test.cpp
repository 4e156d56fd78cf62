// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen's head box: item buttons, the main menu's return, the partner pages,
// starting again and closing.
#include "surround_fixture.h"

#include "platform/fakes/recording_shell.h"
#include "platform/shell_open.h"
#include "shell/loadingsrn.h"
#include "shell/shared_procedures.h"

#include <QCoreApplication>
#include <QPushButton>

#include <filesystem>

namespace {

TEST_F(SurroundTest, ItemButtonsFollowWhatTheHunterCarries) {
  Game.EquipSlots[8] = 25;
  screen().SetItembuttons();
  EXPECT_TRUE(screen().Callbutton->isEnabled());
  EXPECT_FALSE(screen().Scope->isEnabled());
  EXPECT_FALSE(screen().Windbut->isEnabled());
  Game.EquipSlots[7] = 2;
  Game.EquipSlots[11] = 40;
  Game.EquipSlots[8] = 0;
  screen().SetItembuttons();
  EXPECT_FALSE(screen().Callbutton->isEnabled());
  EXPECT_TRUE(screen().Scope->isEnabled());
  EXPECT_TRUE(screen().Windbut->isEnabled());
}

TEST_F(SurroundTest, TheInventoryCoversTheViewAndGivesItBackWithTheOpticsDown) {
  placeAt(3, QStringLiteral("3Dstnd1"));
  Game.EquipSlots[7] = 2;
  screen().Scopeon();
  screen().Timer2->start();
  bool covered = false;
  screens->on(QStringLiteral("Inventory"), [&](QWidget&) {
    covered = screen().frmBlank->isVisibleTo(&screen()) && !screen().Timer2->isActive();
    return 0;
  });
  screen().butInv_Click();
  EXPECT_TRUE(covered);
  EXPECT_TRUE(screen().Huntbox->isVisibleTo(&screen()));
  EXPECT_FALSE(screen().frmBlank->isVisibleTo(&screen()));
  EXPECT_EQ(Game.OpticsUp, 0);
}

TEST_F(SurroundTest, AGameLoadedFromTheMenuReopensItsPlaceAndOneSavedAtTheRangeTheLodge) {
  placeAt(3, QStringLiteral("3Dstnd1"));
  const auto loadFromMenu = [&](int16_t place, int16_t stand) {
    screens->on(QStringLiteral("Filer"), [=](QWidget&) {
      EXPECT_EQ(Game.ScreenState, QStringLiteral("MAINMENU"));
      Game.ScreenState = QStringLiteral("LOADED");
      Game.PlaceMode = place;
      Game.StandNum = stand;
      return 0;
    });
    screen().Mainmenu_Click();
    return view().loaded();
  };
  EXPECT_EQ(loadFromMenu(5, 0), QStringLiteral("D:\\surnd\\13lodge.svh"));
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_TRUE(screen().frmLodge->isVisibleTo(&screen()));
  EXPECT_EQ(loadFromMenu(3, 2), QStringLiteral("D:\\surnd\\13Dstnd2.svh"));
  EXPECT_EQ(loadFromMenu(1, 0), QStringLiteral("D:\\surnd\\1Dcamp.svh"));
}

TEST_F(SurroundTest, ARestartAskedForInTheMenuGoesBackToTheStartOnce) {
  placeAt(0, QStringLiteral("3lodge"));
  int restarts = 0;
  surround::setRestartHandler([&] { ++restarts; });
  screens->on(QStringLiteral("Filer"), [](QWidget&) {
    Game.ScreenState = QStringLiteral("RESTART");
    return 0;
  });
  screen().Mainmenu_Click();
  screen().CHKRestartGame();
  surround::setRestartHandler(nullptr);
  EXPECT_EQ(restarts, 1);
  EXPECT_TRUE(Game.ScreenState.isEmpty());
}

TEST_F(SurroundTest, ClosingTheWindowAsksFirstAndStaysOpenOnNo) {
  placeAt(0, QStringLiteral("3lodge"));
  screen().show();
  dialogs->answer(platform::Answer::No);
  EXPECT_FALSE(screen().close());
  EXPECT_TRUE(screen().isVisible());
  EXPECT_EQ(dialogs->last().text, QStringLiteral("Do you want to exit the program."));
  EXPECT_EQ(dialogs->last().title, QStringLiteral("Quit Program"));
  EXPECT_EQ(dialogs->last().buttons, platform::Buttons::YesNo);
  EXPECT_EQ(dialogs->last().icon, platform::Icon::None);
  dialogs->answer(platform::Answer::Yes);
  EXPECT_TRUE(screen().close());
}

TEST_F(SurroundTest, QuittingFromTheMenuClosesWithoutAskingAgain) {
  placeAt(0, QStringLiteral("3lodge"));
  screen().show();
  screens->on(QStringLiteral("Filer"), [](QWidget&) {
    Game.ScreenState = QStringLiteral("QUIT GAME");
    return 0;
  });
  screen().Mainmenu_Click();
  EXPECT_FALSE(screen().isVisible());
  EXPECT_TRUE(dialogs->shown().empty());
}

TEST_F(SurroundTest, ThePartnerPagesOpenFromTheWorld) {
  platform::ScopedService<platform::ShellOpener, platform::RecordingShell> shell;
  screen().btnRedfern_Click();
  screen().btnMdnweb_Click();
  screen().btnQuillonweb_Click();
  // The publisher's pages are there when their folder is, whatever it holds.
  std::filesystem::create_directories(media.root() / "qlpage");
  screen().btnQuillonweb_Click();
  ASSERT_EQ(shell->opened().size(), 4);
  EXPECT_EQ(shell->opened()[0], QStringLiteral("D:\\redfern\\index.htm"));
  EXPECT_EQ(shell->opened()[1], QStringLiteral("D:\\mardens\\index.htm"));
  EXPECT_TRUE(shell->opened()[2].startsWith(QStringLiteral("https://")));
  EXPECT_EQ(shell->opened()[3], QStringLiteral("D:\\qlpage\\index.htm"));
}

TEST_F(SurroundTest, SwitchingTheHuntTimerLoadsTheHuntingScreenFirst) {
  ScreenInstance<surround>::unload();
  StopHuntTimer();
  ASSERT_TRUE(ScreenInstance<surround>::exists());
  EXPECT_FALSE(ScreenInstance<surround>::get().Timer2->isActive());
  ScreenInstance<surround>::unload();
  StartHuntTimer();
  ASSERT_TRUE(ScreenInstance<surround>::exists());
  EXPECT_TRUE(ScreenInstance<surround>::get().Timer2->isActive());
  EXPECT_EQ(ScreenInstance<surround>::get().Timer2->interval(), 5500);  // loaded, not only made
}

TEST_F(SurroundTest, StartUpLoadsTheHuntingScreenAndOpensThePlace) {
  ScreenInstance<surround>::unload();
  Game.StartPano = QStringLiteral("3lodge");
  LoadHuntScreen(true);
  ASSERT_TRUE(ScreenInstance<surround>::exists());
  EXPECT_EQ(view().loaded(), QStringLiteral("D:\\surnd\\13lodge.svh"));
  EXPECT_FALSE(screen().Timer2->isActive());
}

TEST_F(SurroundTest, TheLoadingScreenGoesOnceTheHuntingScreenPaints) {
  ScreenInstance<Loadingsrn>::get().show();
  placeAt(0, QStringLiteral("3lodge"));
  EXPECT_TRUE(ScreenInstance<Loadingsrn>::exists());
  screen().grab();  // draws the hunting screen as showing it would
  QCoreApplication::processEvents();
  EXPECT_FALSE(ScreenInstance<Loadingsrn>::exists());
}

TEST_F(SurroundTest, ReadsTheTagLimitsOfTheWorld) {
  screen();
  EXPECT_EQ(Game.TagLimit[1], 2);
  EXPECT_EQ(Game.TagLimit[16], 1);
  EXPECT_EQ(Game.TagLimit[0], 0);
}

}  // namespace
