// SPDX-License-Identifier: GPL-2.0-or-later
// What the hunter owns and what he has on: the owned gear by category with its icons, and
// sixteen equipment slots on three pages. A double click on owned gear puts it on; a double
// click on a slot's name, or a click on its picture, takes it off.
#pragma once

#include <QDialog>

#include <array>
#include <cstdint>

class QLabel;
class QListWidget;
class QPushButton;
class QTabBar;
class QTabWidget;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Inventory : public QDialog {
  Q_OBJECT

 public:
  Inventory();

  void Form_Load();
  void fillboxes();
  void Tabinvent_Click(int previousTab);
  void dwMList_DblClick();
  void InvEqupLabel_DblClick(int index);
  void invequip_Click(int index);
  void Closebox_Click();

  platform::PictureBox* Background;
  QTabBar* tabinvent;
  QListWidget* dwMList;
  QTabWidget* sstabequp;
  std::array<platform::PictureBox*, 17> invequip{};  // slots 1..16; entry 0 is not used
  std::array<QLabel*, 17> InvEqupLabel{};
  platform::PictureBox* wepicon;
  QLabel* Weaponlab;
  QLabel* Wallet1;
  QPushButton* Closebox;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void placeWidgets();
  void buildSlotPages();
  void showSlot(int slot, int16_t item);
  QString iconPath(int item) const;

  platform::ReSize* resize_;
};
