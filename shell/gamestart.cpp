// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/gamestart.h"

#include "platform/dialogs.h"
#include "platform/media/media_window.h"
#include "platform/picture_box.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/loadingsrn.h"
#include "shell/postcard.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/screen_instance.h"
#include "shell/screen_layout.h"
#include "shell/shared_procedures.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QScreen>

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

const QString kIgnoreTitle = QStringLiteral("Ignore Error Condition");
const QString kIgnoreLine = QStringLiteral("WARNING- You have chosen to ignore a reported error condition.");

}  // namespace

QString joinMessageLines(const QStringList& lines) {
  return lines.join(QStringLiteral("\n\r"));
}

Gamestart::Gamestart()
    : MCIWnd1(platform::createMediaWindow(this)), Titlepic(new platform::PictureBox(this)) {
  setWindowTitle(QStringLiteral("Hunting"));
  setStyleSheet(QStringLiteral("Gamestart { background: black; }"));
  // The game's name stands behind the first questions and the intro.
  Titlepic->setKeepShape(true);
  Titlepic->lower();
  MCIWnd1->hide();
  MCIWnd1->installEventFilter(this);
  installEventFilter(this);
  connect(MCIWnd1, &platform::MCIWnd::Error, this, &Gamestart::MCIWnd1_Error);
  connect(MCIWnd1, &platform::MCIWnd::ExtendedModeChange, this, &Gamestart::MCIWnd1_ExtendedModeChange);
}

int Gamestart::introScale(int screenHeightPixels, bool naturalSize) {
  return naturalSize ? 1 : std::max(1, static_cast<int>(rt::Int(screenHeightPixels / 240.0)));
}

void Gamestart::readScreenGeometry() {
  Game.TwipsPerPixel = 15;
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QSize pixels = screen ? screen->size() : QSize(1024, 768);
  screenHeight_ = run_.storedHeight != 0 ? run_.storedHeight : pixels.height() * Game.TwipsPerPixel;
  if (Game.ScreenWidth == 0) Game.ScreenWidth = pixels.width() * Game.TwipsPerPixel;
  Game.ScreenHeight = screenHeight_;
}

void Gamestart::Form_Load() {
  run_ = loadRunSettings();
  CheckSystemConfig();
  if (ended_) return;
  readScreenGeometry();
  const int twips = Game.TwipsPerPixel;
  const int scale = introScale(screenHeight_ / twips, run_.naturalSizeIntro);
  const QSize video(320 * scale, 240 * scale);
  resize(Game.ScreenWidth / twips, screenHeight_ / twips);
  MCIWnd1->setGeometry((width() - video.width()) / 2, (height() - video.height()) / 2, video.width(),
                       video.height());
  Game.HelpFile = Game.MediaRoot + QStringLiteral("varnholt.hlp");
  SetScreenLayout();
  Titlepic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + Game.ResCode +
                           QStringLiteral("splash.bmp"));
  ScreenInstance<Postcard>::get();
  ScreenInstance<Loadingsrn>::get();
}

bool Gamestart::Form_Activate() {
  if (ended_) return false;
  const Answer permit =
      platform::MsgBox(QStringLiteral("Would you like to play the Special Permit Expansion Pack?"),
                       Buttons::YesNo, Icon::Information, QStringLiteral("Play Expansion Pack?"));
  Game.XpackMode = permit == Answer::Yes ? -1 : 0;
  Game.DbaseDir = Game.XpackMode != 0 ? QStringLiteral("Xdbase\\") : QStringLiteral("Dbase\\");
  Game.SaveExt = Game.XpackMode != 0 ? QStringLiteral(".VX") : QStringLiteral(".VN");
  if (!run_.skipIntro) playIntro();
  if (ended_) return false;
  Loadingsrn& loading = ScreenInstance<Loadingsrn>::get();
  loading.Form_Load();
  loading.show();
  QApplication::processEvents();
  ReadSaveFile(Game.MediaRoot + QStringLiteral("data\\newgam.csv"), kGameKind);
  ScreenInstance<Postcard>::get().Form_Load();
  ScreenInstance<Loadingsrn>::unload();
  LoadHuntScreen(true);
  unsetCursor();
  close();
  return true;
}

void Gamestart::playIntro() {
  Game.VideoBusy = -1;
  introFinished_ = false;
  MCIWnd1->setFileName(Game.MediaRoot + QStringLiteral("art\\vrnIntro.avi"));
  introStarted_ = true;
  MCIWnd1->command(QStringLiteral("Play"));
  MCIWnd1->command(QStringLiteral("pause wait"));
  MCIWnd1->show();
  MCIWnd1->setFocus();
  MCIWnd1->command(QStringLiteral("resume"));
  if (!introFinished_ && !ended_) {
    QEventLoop wait;
    connect(MCIWnd1, &platform::MCIWnd::ExtendedModeChange, &wait, [this, &wait] {
      if (introFinished_ || ended_) wait.quit();
    });
    connect(MCIWnd1, &platform::MCIWnd::Error, &wait, &QEventLoop::quit);
    wait.exec();
  }
  introStarted_ = false;
  MCIWnd1->command(QStringLiteral("Stop"));
  Game.VideoBusy = 0;
  MCIWnd1->command(QStringLiteral("Close"));
  MCIWnd1->hide();
}

void Gamestart::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  Titlepic->setGeometry(rect());
}

bool Gamestart::eventFilter(QObject* watched, QEvent* event) {
  // A key or a click ends the intro early.
  const bool ends = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
  if (introStarted_ && ends && (watched == MCIWnd1 || watched == this)) {
    MCIWnd1->command(QStringLiteral("Stop"));
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void Gamestart::MCIWnd1_ExtendedModeChange(int mode) {
  // The device reports a stop while a clip opens; only a stop after Play ends the intro.
  if (mode != platform::kModeStopped || !introStarted_) return;
  MCIWnd1->hide();
  introFinished_ = true;
}

void Gamestart::MCIWnd1_Error(int, const QString& text) {
  platform::MsgBox(text, Buttons::Ok, Icon::None, QStringLiteral("Video Playback Error Code"));
  const QStringList lines{
      QStringLiteral("Error: Video playback error."),
      QStringLiteral("If so, your system may not be configured to correctly playback WAV and/or AVI files."),
      QStringLiteral("View the README.TXT file for more information."),
      QStringLiteral("Pressing OK will exit the program."),
      QStringLiteral("Pressing Cancel will ignore this error and run the program."),
  };
  QString text2;
  for (const QString& line : lines) text2 += line + QStringLiteral("\n\r");
  if (platform::MsgBox(text2, Buttons::OkCancel, Icon::Critical, QStringLiteral("Video Playback Error.")) ==
      Answer::Ok) {
    endProgram();
    return;
  }
  platform::MsgBox(
      joinMessageLines({kIgnoreLine, QStringLiteral("You may experience runtime or video playback "
                                                    "errors when running this program.")}),
      Buttons::Ok, Icon::Exclamation, kIgnoreTitle);
  introFinished_ = true;
}
