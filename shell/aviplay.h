// SPDX-License-Identifier: GPL-2.0-or-later
// The film player: plays the clip named by the hand-over word full-screen and closes
// itself when the clip ends or the player closes it.
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
namespace platform {
class MCIWnd;
}

class Aviplay : public QDialog {
  Q_OBJECT

 public:
  Aviplay();

  void Form_Activate();
  void Closebut_Click();
  void MCIWnd1_ExtendedModeChange(int mode);
  void MCIWnd1_Error(int error, const QString& text);

  platform::MCIWnd* MCIWnd1;
  QPushButton* Closebut;
  QLabel* Trackinglab;  // shown over a tracking film
  QLabel* Hintlab;      // shown over any other film

  bool hasPaused() const { return hasPaused_ != 0; }

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void placeWidgets();
  int hasPaused_ = 0;
};
