// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/filer.h"

#include "game_fixture.h"
#include "platform/fakes/recording_shell.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/shared_procedures.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <filesystem>

using platform::Answer;

namespace {

class FilerTest : public GameFixture {
 protected:
  void saveGame(const QString& name, char kind = kGameKind) {
    ASSERT_TRUE(writeSaveFile(saveFilePath(name, kind), kind));
  }
  void select(const QString& name) {
    const auto found = filer.List1->findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    filer.List1->setCurrentItem(found.front());
    filer.List1_Click();
  }
  static bool shown(const QWidget* w) { return !w->isHidden(); }

  Filer filer;
};

}  // namespace

TEST_F(FilerTest, TypingTurnsLettersToUpperCaseAndSwallowsTheRest) {
  EXPECT_EQ(filer.Usename_KeyPress('a'), 'A');
  EXPECT_EQ(filer.Usename_KeyPress('Z'), 'Z');
  EXPECT_EQ(filer.Usename_KeyPress('7'), '7');
  EXPECT_EQ(filer.Usename_KeyPress(' '), ' ');
  EXPECT_EQ(filer.Usename_KeyPress('-'), 0);
  EXPECT_EQ(filer.Usename_KeyPress(','), 0);
  EXPECT_EQ(filer.Usename_KeyPress(0xE9), 0);  // é
  EXPECT_EQ(filer.Usename_KeyPress(8), 8);
}

TEST_F(FilerTest, TheNameBoxStopsAt128Characters) {
  filer.Usename->setText(QString(127, u'X'));
  EXPECT_EQ(filer.Usename_KeyPress('b'), 'B');
  filer.Usename->setText(QString(128, u'X'));
  EXPECT_EQ(filer.Usename_KeyPress('b'), 0);
  EXPECT_EQ(filer.Usename_KeyPress(8), 8);
}

TEST_F(FilerTest, RealKeystrokesFollowTheTypingRules) {
  filer.Savegamebut_Click();
  filer.Usename->clear();
  QTest::keyClicks(filer.Usename, "ab-c,1 d");
  EXPECT_EQ(filer.Usename->text(), "ABC1 D");
  QTest::keyClick(filer.Usename, Qt::Key_Backspace);
  EXPECT_EQ(filer.Usename->text(), "ABC1 ");
}

TEST_F(FilerTest, EnterInAnEmptyNameBoxAsksForAName) {
  filer.Savegamebut_Click();
  filer.Usename->clear();
  EXPECT_EQ(filer.Usename_KeyPress(13), 0);
  EXPECT_EQ(dialogs->last().text, "You must enter a Save name");
  EXPECT_TRUE(listSaveNames(kGameKind).isEmpty());
}

TEST_F(FilerTest, SavingProposesTheHuntersNameAndReturnsToTheMainButtons) {
  Game.HunterName = "  JANE  ";
  filer.Form_Load();
  filer.Savegamebut_Click();
  EXPECT_EQ(filer.MainLab->text(), "Enter a Save game Name");
  EXPECT_EQ(filer.Usename->text(), "JANE");
  EXPECT_FALSE(shown(filer.Loadgamebut));
  EXPECT_TRUE(shown(filer.SaveOK));
  filer.Saveok_Click();
  EXPECT_EQ(dialogs->last().text, "Game Saved.");
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"JANE"});
  EXPECT_TRUE(shown(filer.Loadgamebut));
  EXPECT_FALSE(shown(filer.SaveOK));
  EXPECT_EQ(filer.MainLab->text(), "Select Item");
}

TEST_F(FilerTest, LoadButtonsShowOnlyWhenThereIsSomethingToLoad) {
  filer.Form_Load();
  EXPECT_FALSE(shown(filer.Loadgamebut));
  EXPECT_FALSE(shown(filer.Loadequipbut));
  saveGame("KIT", kEquipmentKind);
  filer.Form_Load();
  EXPECT_FALSE(shown(filer.Loadgamebut));
  EXPECT_TRUE(shown(filer.Loadequipbut));
}

TEST_F(FilerTest, OpenedFromTheNewHuntScreenItGoesStraightToTheGamesAndCancelCloses) {
  saveGame("ONE");
  Game.ScreenState = "POSTCARD";
  filer.Form_Load();
  EXPECT_EQ(filer.MainLab->text(), "Select a game to load");
  EXPECT_EQ(filer.List1->count(), 1);
  EXPECT_TRUE(shown(filer.LoadOK));
  filer.Cancelbut_Click();
  EXPECT_EQ(Game.ScreenState, "CANCEL");
  EXPECT_EQ(filer.result(), QDialog::Accepted);
}

TEST_F(FilerTest, CancelFromTheHuntReturnsToTheMainButtons) {
  filer.Form_Load();
  filer.loadequipbut_Click();
  filer.Cancelbut_Click();
  EXPECT_EQ(Game.ScreenState, "");
  EXPECT_EQ(filer.MainLab->text(), "Select Item");
  EXPECT_TRUE(shown(filer.Pausegame));
}

TEST_F(FilerTest, EscapeOrTheCloseButtonLeaveCancelFromEitherFace) {
  for (const QString& opener : {QStringLiteral("MAINMENU"), QStringLiteral("POSTCARD")}) {
    Game.ScreenState = opener;
    filer.Form_Load();
    filer.show();
    QTest::keyClick(&filer, Qt::Key_Escape);
    EXPECT_FALSE(filer.isVisible()) << opener.toStdString();
    EXPECT_EQ(Game.ScreenState, "CANCEL") << opener.toStdString();
  }
  Game.ScreenState = "MAINMENU";
  filer.show();
  filer.close();
  EXPECT_EQ(Game.ScreenState, "CANCEL");
}

TEST_F(FilerTest, TheFileFacesHideTheElevenMainButtonsAndNothingElse) {
  filer.Form_Load();
  filer.Savegamebut_Click();
  for (const QPushButton* b : {filer.Loadgamebut, filer.Loadequipbut, filer.Savegamebut, filer.Saveequipbut,
                               filer.Aboutbox, filer.Pausegame, filer.Resgamebut, filer.Exitgamebut,
                               filer.Returnbut, filer.btnColdwater, filer.btnTamsin})
    EXPECT_FALSE(shown(b)) << b->text().toStdString();
  EXPECT_TRUE(shown(filer.btnHelp));
  // Help keeps a corner of its own, clear of the list and the file buttons.
  for (const QWidget* w : std::initializer_list<const QWidget*>{filer.List1, filer.SaveOK, filer.Cancelbut,
                                                                filer.deluser, filer.Usename})
    EXPECT_FALSE(filer.btnHelp->geometry().intersects(w->geometry()));
}

TEST_F(FilerTest, LoadingAGameRefreshesTheHuntClockAndHandsOverLoaded) {
  Game.Money = 777;
  saveGame("HUNT");
  Game.Money = 1;
  int refreshed = 0;
  setHuntClockDisplay([&] { ++refreshed; });
  filer.Form_Load();
  filer.Loadgamebut_Click();
  filer.LoadOK_Click();
  EXPECT_EQ(dialogs->last().text, "No Save Game Selected.");
  select("HUNT");
  EXPECT_EQ(filer.Usename->text(), "HUNT");
  filer.LoadOK_Click();
  setHuntClockDisplay(nullptr);
  EXPECT_EQ(Game.Money, 777);
  EXPECT_EQ(refreshed, 1);
  EXPECT_EQ(Game.ScreenState, "LOADED");
}

TEST_F(FilerTest, DeletingRemovesTheEntryFromTheList) {
  saveGame("A");
  saveGame("B");
  filer.Loadgamebut_Click();
  select("A");
  dialogs->answer(Answer::Ok);
  filer.Deluser_Click();
  EXPECT_EQ(filer.List1->count(), 1);
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"B"});
}

TEST_F(FilerTest, RestartAndQuitAskFirst) {
  dialogs->answer(Answer::No);
  filer.Resgamebut_Click();
  EXPECT_EQ(Game.ScreenState, "");
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"Do you want to restart game?", platform::Buttons::YesNo,
                                                   platform::Icon::None, "Restart Game"}));
  dialogs->answer(Answer::Yes);
  filer.Exitgamebut_Click();
  EXPECT_EQ(Game.ScreenState, "QUIT GAME");
  EXPECT_EQ(dialogs->last().title, "Quit Game");
  dialogs->answer(Answer::Yes);
  filer.Resgamebut_Click();
  EXPECT_EQ(Game.ScreenState, "RESTART");
  filer.Returnbut_Click();
  EXPECT_EQ(Game.ScreenState, "GOBACK");
}

TEST_F(FilerTest, PauseAndAboutShowTheirTexts) {
  filer.Pausegame_Click();
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"Game Paused", platform::Buttons::Ok, platform::Icon::None,
                                                   "Game Paused"}));
  filer.Aboutbox_Click();
  EXPECT_TRUE(filer.MainLab->text().startsWith("Ver 1.43"));
}

TEST_F(FilerTest, PartnerPagesPreferTheLocalCopy) {
  platform::ScopedService<platform::ShellOpener, platform::RecordingShell> shell;
  filer.btnTamsin_Click();
  media.write("devpage/index.htm", "<html></html>");
  filer.btnTamsin_Click();
  filer.btnColdwater_Click();
  ASSERT_EQ(shell->opened().size(), 3);
  EXPECT_TRUE(shell->opened()[0].startsWith("https://"));
  EXPECT_EQ(shell->opened()[1], "D:\\devpage\\index.htm");
  EXPECT_EQ(shell->opened()[2], "D:\\coldwater\\index.htm");
}

// However a name reaches the save box, only the save alphabet stays in it.
TEST_F(FilerTest, PastedDroppedAndFilledInNamesFollowTheTypingRules) {
  filer.Savegamebut_Click();
  filer.Usename->clear();
  QGuiApplication::clipboard()->setText(QStringLiteral("../../../x, y"));
  filer.Usename->paste();
  EXPECT_EQ(filer.Usename->text(), "X Y");

  filer.Usename->clear();
  QMimeData dropped;
  dropped.setText(QStringLiteral("..\\Camp-2"));
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(filer.Usename, &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(filer.Usename, &drop);
  EXPECT_EQ(filer.Usename->text(), "CAMP2");

  filer.Usename->setText(QString(300, u'z'));
  EXPECT_EQ(filer.Usename->text(), QString(128, u'Z'));

  Game.HunterName = "../../../x";
  filer.Savegamebut_Click();
  EXPECT_EQ(filer.Usename->text(), "X");
  filer.Saveok_Click();
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"X"});
  EXPECT_FALSE(std::filesystem::exists(saves.root() / "x.VNG"));
}

TEST_F(FilerTest, AFileWhoseNameDoesNotFitIsNeitherListedNorDeleted) {
  saves.write("outside.VNG", "keep");
  saves.write("saves/..\\outside.VNG", "odd");
  saveGame("REAL");
  filer.Form_Load();
  filer.Loadgamebut_Click();
  ASSERT_EQ(filer.List1->count(), 1);
  select("REAL");
  dialogs->answer(Answer::Ok);
  filer.Deluser_Click();
  EXPECT_EQ(filer.List1->count(), 0);
  EXPECT_EQ(saves.read("outside.VNG"), "keep");
  EXPECT_EQ(saves.read("saves/..\\outside.VNG"), "odd");
}
