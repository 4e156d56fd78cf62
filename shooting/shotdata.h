// SPDX-License-Identifier: GPL-2.0-or-later
// The trophy page after a lawful kill: settles the trophy's size and weight, shows the
// kill's details and photograph, may pay a sponsor's award, and prints itself.
#pragma once

#include <QDialog>

#include <array>
#include <cstdint>

class QLabel;
class QPushButton;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Shotdata : public QDialog {
  Q_OBJECT

 public:
  Shotdata();

  void Form_Load();
  void Examineshot();
  void printbut_Click();
  void Closebox_Click();

  platform::PictureBox* Awardpic;   // the page itself
  platform::PictureBox* Logopic;    // the sponsor's logo
  platform::PictureBox* Trophypic;  // the photograph of the kill
  QLabel* Takenlab;
  QLabel* Specieslab;
  QLabel* Sizelab;
  QLabel* Weightlab;
  QLabel* Weaponlab;
  QLabel* Arealab;
  QLabel* Rangelab;
  QLabel* Timelab;
  QLabel* Skilllab;
  QLabel* Awardlab;
  QPushButton* printbut;
  QPushButton* Closebox;

  double award() const { return award_; }
  const std::array<int16_t, 17>& awardBases() const { return awardBases_; }

 private:
  void placeWidgets();
  void readAwardBases();
  void payAward(double weightBefore);

  platform::ReSize* resize_;
  std::array<int16_t, 17> awardBases_{};
  double award_ = 0;
};
