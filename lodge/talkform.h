// SPDX-License-Identifier: GPL-2.0-or-later
// The conversation box: the speaker's picture and the line's text over the world's talk
// background, with paging through a key's lines when the speech service opens it for that.
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
namespace platform {
class PictureBox;
}

class Talkform : public QDialog {
  Q_OBJECT

 public:
  Talkform();

  void Form_Load();
  // Form_Load without playing: for a line that is already sounding.
  void dress();
  void Soundplay();
  void Nextconv_Click();
  void Prevconv_Click();
  void Closeframe_Click();

  // Shows a line: the speaker's picture and the text (its pieces joined by line breaks).
  void showLine(const QString& picturePath, const QString& text);

  platform::PictureBox* Background;
  platform::PictureBox* Whopic;
  QLabel* Convtext;
  QPushButton* Prevconv;
  QPushButton* Nextconv;
  QPushButton* Closeframe;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void placeOverHuntingScreen();
};
