// SPDX-License-Identifier: GPL-2.0-or-later
// The outfitter's shop at the lodge: a paged catalogue in five categories to buy from with
// the shared wallet, and the hunter's own gear by category to sell back at a loss.
#pragma once

#include "platform/records/record_data.h"

#include <QDialog>

#include <cstdint>

class QLabel;
class QListWidget;
class QPushButton;
class QTabBar;
namespace platform {
class PictureBox;
class ReSize;
}  // namespace platform

class Catalog : public QDialog {
  Q_OBJECT

 public:
  Catalog();

  void Form_Load();
  void Buybutton_Click();
  void SellButton_Click();
  void catback_Click();
  void Catnext_Click();
  void TabCat_Click();
  void TabInv_Click();
  void FormatCat();
  void Closebox_Click();

  // The item on show.
  int16_t currentItem() const { return item_; }

  platform::PictureBox* Background;
  platform::PictureBox* Itempic;
  QLabel* Itemname;
  QLabel* Itemdesc;
  QLabel* Itemcost;
  QLabel* Moneylab;
  QLabel* Owntitle;
  QTabBar* TabCat;
  QTabBar* TabInv;
  QListWidget* Invlist;
  QPushButton* Buybutton;
  QPushButton* SellButton;
  QPushButton* catback;
  QPushButton* Catnext;
  QPushButton* Closebox;

 protected:
  // Escape leaves as the screen's own button does, with what that button does on the way out.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPushButton* button(const QString& caption, QRect designRect, void (Catalog::*handler)());
  void placeWidgets();
  // Points the record control at the current category and moves with `find`, falling back
  // on `otherwise` when nothing matched: so paging wraps at both ends.
  void findInCategory(void (platform::RecordData::*find)(), void (platform::RecordData::*otherwise)());
  void showOwnedTab(int tab);
  void chargeAndStore(int16_t cost);

  platform::ReSize* resize_;
  platform::RecordData data1_;
  int16_t item_ = 0;
  int16_t cost_ = 0;
  QString name_;
  QString description_;
};
