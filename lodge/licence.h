// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting licence: sixteen tag pictures, one per game species. At the lodge the hunter
// buys tags on it (screen mode 1); in the field he picks the species he hunts (mode 2).
#pragma once

#include <QDialog>

#include <array>
#include <cstdint>

class QFrame;
class QLabel;
class QPushButton;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Licence : public QDialog {
  Q_OBJECT

 public:
  static constexpr int16_t kBuyMode = 1;
  static constexpr int16_t kQuarryMode = 2;

  Licence();

  void Form_Load();
  void Tagpic_Click(int index);
  void setbox(QWidget* picture);
  void Closebox_Click();

  int16_t tagPrice(int species) const { return tagCost_[species]; }

  platform::PictureBox* Background;
  std::array<platform::PictureBox*, 17> Tagpic{};  // species 1..16; entry 0 is not used
  QFrame* Shape1;                                  // the highlight frame
  QLabel* Promptlab;
  QLabel* Namelab;
  QLabel* Moneylab;
  QPushButton* Closebox;

 private:
  void placeWidgets();
  void readTables();
  void showTag(int species);
  void buyTag(int species);
  void chooseQuarry(int species);

  platform::ReSize* resize_;
  std::array<int16_t, 17> tagCost_{};
  std::array<int16_t, 17> habitat_{};  // species 1..16; 0 = the species does not live here
};
