// SPDX-License-Identifier: GPL-2.0-or-later
// The new-hunt postcard: its front offers a new hunt or a saved one; its back picks the
// world, the skill level, the hunter's name and a quick hunt, and starts the hunt.
#pragma once

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTextEdit;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Postcard : public QDialog {
  Q_OBJECT

 public:
  Postcard();

  void Form_Load();
  void Nextbox_Click();
  void Selectworld_Click(int index);
  void Diffbutton_Click(int index);
  void Image2_Click();
  void Loadgamebut_Click();
  void setbox();

  platform::PictureBox* Picture;  // the postcard itself
  platform::PictureBox* Image2;   // the world picture that starts the hunt
  QLineEdit* Namebox;
  std::array<QRadioButton*, 3> Diffbutton{};
  std::array<QPushButton*, 4> Selectworld{};
  QPushButton* Nextbox;
  QPushButton* loadgamebut;
  QPushButton* qhunt;
  QTextEdit* Description;
  QLabel* Starthint;

  bool turnedOver() const { return turned_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void placeWidgets();
  void styleQuickHuntToggle();
  void finish();

  platform::ReSize* resize_;
  std::array<QString, 4> descriptions_;
  bool turned_ = false;
};
