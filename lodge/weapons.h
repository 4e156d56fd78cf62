// SPDX-License-Identifier: GPL-2.0-or-later
// The lodge's gun rack: one weapon of the world group a page, with its picture, ballistics
// and the game it is lawful for. Choosing one arms the hunter; leaving by Cancel disarms him.
#pragma once

#include "platform/records/record_data.h"

#include <QDialog>

#include <array>
#include <cstdint>

class QLabel;
class QPushButton;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Weapons : public QDialog {
  Q_OBJECT

 public:
  Weapons();

  void Form_Load();
  void LookupWep(int id);
  void FormatCat();
  void catback_Click();
  void Catnext_Click();
  void selwep_Click();
  void Cancelbox_Click();

  int16_t page() const { return page_; }

  platform::PictureBox* Background;
  platform::PictureBox* Wepimage;
  QLabel* lbWeaponName;
  QLabel* lbwepLength;
  QLabel* lbwepWeight;
  QLabel* lbwepAmmo;
  QLabel* lbwepvelo;
  QLabel* lbGame;
  QLabel* lbwepTraj;
  QLabel* lbweppoa;
  QLabel* lbwepenergy;
  QLabel* lbWepDesc;
  QPushButton* catback;
  QPushButton* Catnext;
  QPushButton* selwep;
  QPushButton* Cancelbox;

 protected:
  // Escape leaves as the screen's own button does, with what that button does on the way out.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // The record on show; kept when a page's record is missing.
  struct WeaponRecord {
    int16_t id = 0;
    QString weapon, description, length, weight, ammunition, velocity, game, trajectory, poa, energy;
  };

  QPushButton* button(const QString& caption, QRect designRect, void (Weapons::*handler)());
  void placeWidgets();
  void showPage(int16_t page);
  void readRecord();

  platform::ReSize* resize_;
  platform::RecordData data1_;
  WeaponRecord record_;
  std::array<QString, 10> pictureCodes_;
  int16_t page_ = 1;
};
