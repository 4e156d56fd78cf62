// SPDX-License-Identifier: GPL-2.0-or-later
// The start screen: reads the stored settings and the screen's size, repairs a known system
// configuration fault, asks which group of worlds to play, plays the intro and loads the
// defaults of a new game before handing over to the new-hunt postcard.
#pragma once

#include "shell/run_settings.h"

#include <QDialog>
#include <QStringList>

namespace platform {
class MCIWnd;
class PictureBox;
}  // namespace platform

class Gamestart : public QDialog {
  Q_OBJECT

 public:
  Gamestart();

  void Form_Load();
  // Runs the start-up sequence; returns false when the program is to end.
  bool Form_Activate();

  void CheckSystemConfig();
  bool CheckNOIDEExist();
  void DeleteNoIde();
  void DeleteMSCDEX();
  void MCIWnd1_Error(int error, const QString& text);
  void MCIWnd1_ExtendedModeChange(int mode);

  // Pixels of the intro: 320 x 240 times Int(screen height / 240), or 1 when kept natural.
  static int introScale(int screenHeightPixels, bool naturalSize);

  platform::MCIWnd* MCIWnd1;
  platform::PictureBox* Titlepic;  // the title picture behind the questions
  int screenHeightTwips() const { return screenHeight_; }
  bool programEnded() const { return ended_; }
  bool introFinished() const { return introFinished_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void readScreenGeometry();
  void playIntro();
  void endProgram() { ended_ = true; }
  void restartOrEnd(const QString& failureTitle);

  RunSettings run_;
  int screenHeight_ = 0;
  bool introStarted_ = false;
  bool introFinished_ = false;
  bool ended_ = false;
};

// The lines of a multi-line message, joined as the game joins them: line feed, then
// carriage return.
QString joinMessageLines(const QStringList& lines);
