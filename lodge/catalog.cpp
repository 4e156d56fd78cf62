// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/catalog.h"

#include "lodge/catalog_items.h"
#include "lodge/catalog_rules.h"
#include "lodge/lodge_frame.h"
#include "lodge/logging.h"
#include "lodge/speech.h"
#include "platform/dialogs.h"
#include "platform/media/media_window.h"
#include "platform/picture_box.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>

namespace {

QTabBar* categoryTabs(QWidget* parent) {
  auto* tabs = new QTabBar(parent);
  for (int tab = 0; tab < lodge::kCategoryCount; ++tab) tabs->addTab(lodge::CatnumtoStr(tab));
  tabs->setExpanding(true);
  tabs->setDrawBase(false);
  return tabs;
}

}  // namespace

Catalog::Catalog()
    : Background(new platform::PictureBox(this)),
      Itempic(new platform::PictureBox(this)),
      Itemname(new QLabel(this)),
      Itemdesc(new QLabel(this)),
      Itemcost(new QLabel(this)),
      Moneylab(new QLabel(this)),
      Owntitle(new QLabel(QStringLiteral("Your gear"), this)),
      TabCat(categoryTabs(this)),
      TabInv(categoryTabs(this)),
      Invlist(new QListWidget(this)),
      resize_(new platform::ReSize(this, lodge::kLodgeDesign)) {
  lodge::prepareLodgeScreen(*this, QStringLiteral("Outfitter"));
  for (QLabel* l : {Itemname, Itemdesc, Itemcost, Moneylab, Owntitle}) lodge::onPaper(*l);
  Itemdesc->setWordWrap(true);
  Itemdesc->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Itemname->setWordWrap(true);
  Itemcost->setAlignment(Qt::AlignCenter);
  Moneylab->setAlignment(Qt::AlignCenter);
  Itempic->setFrameShape(QFrame::Box);
  connect(TabCat, &QTabBar::currentChanged, this, &Catalog::TabCat_Click);
  connect(TabInv, &QTabBar::currentChanged, this, &Catalog::TabInv_Click);
  placeWidgets();
}

QPushButton* Catalog::button(const QString& caption, QRect designRect, void (Catalog::*handler)()) {
  auto* b = new QPushButton(caption, this);
  resize_->place(b, designRect, 12);
  connect(b, &QPushButton::clicked, this, handler);
  return b;
}

void Catalog::placeWidgets() {
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  // The catalogue's left page offers the item, the right page holds the hunter's own gear.
  resize_->place(TabCat, {68, 146, 394, 32}, 9);
  resize_->place(Itemname, {68, 186, 300, 40}, 13);
  resize_->place(Itemcost, {376, 186, 86, 40}, 13);
  resize_->place(Itempic, {145, 234, 240, 180});
  resize_->place(Itemdesc, {68, 420, 394, 66}, 10);
  catback = button(QStringLiteral("<< Back"), {68, 496, 120, 38}, &Catalog::catback_Click);
  Catnext = button(QStringLiteral("Next >>"), {198, 496, 120, 38}, &Catalog::Catnext_Click);
  Buybutton = button(QStringLiteral("Buy"), {342, 496, 120, 38}, &Catalog::Buybutton_Click);
  resize_->place(Owntitle, {556, 100, 180, 32}, 12);
  resize_->place(TabInv, {556, 140, 392, 32}, 9);
  resize_->place(Invlist, {556, 172, 392, 300}, 11);
  SellButton = button(QStringLiteral("Sell"), {556, 496, 120, 38}, &Catalog::SellButton_Click);
  resize_->place(Moneylab, {686, 496, 130, 38}, 14);
  Closebox = button(QStringLiteral("Close"), {828, 496, 120, 38}, &Catalog::Closebox_Click);
}

void Catalog::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("catalog.bmp")));
  data1_.SetDatabaseName(lodge::catalogPath());
  Moneylab->setText(lodge::moneyText(Game.Money));
  {
    const QSignalBlocker quiet(TabCat);
    TabCat->setCurrentIndex(0);
  }
  TabCat_Click();
  showOwnedTab(0);
}

void Catalog::findInCategory(void (platform::RecordData::*find)(),
                             void (platform::RecordData::*otherwise)()) {
  try {
    data1_.SetOrderBy(QStringLiteral("sequence"));
    data1_.SetCriteria(QStringLiteral("Field(\"Category\") = \"") +
                       lodge::CatnumtoStr(TabCat->currentIndex()).trimmed() + u'"');
    (data1_.*find)();
    if (data1_.NoMatch() && otherwise) (data1_.*otherwise)();
  } catch (const platform::RecordError& e) {
    qCWarning(lodgeLog) << "catalogue unreadable:" << e.what();
  }
  FormatCat();
}

void Catalog::TabCat_Click() {
  findInCategory(&platform::RecordData::FindFirst, nullptr);
}

void Catalog::Catnext_Click() {
  findInCategory(&platform::RecordData::FindNext, &platform::RecordData::FindFirst);
}

void Catalog::catback_Click() {
  findInCategory(&platform::RecordData::FindPrevious, &platform::RecordData::FindLast);
}

void Catalog::FormatCat() {
  if (!data1_.HasRecord()) return;
  const lodge::CatalogItem item = lodge::itemFromRecord(data1_);
  item_ = item.id;
  cost_ = item.cost;
  name_ = item.name;
  description_ = item.description;
  Itemname->setText(name_);
  Itemdesc->setText(description_);
  Itemcost->setText(QStringLiteral("$") + QString::number(cost_));
  Itempic->setPicturePath(Game.MediaRoot + QStringLiteral("invpics\\image") + QString::number(item_) +
                          QStringLiteral(".bmp"));
}

void Catalog::Buybutton_Click() {
  const QString caption = Itemname->text();
  if (lodge::findOwned(Game.OwnedItems, item_)) {
    talk::Saynotext(QStringLiteral("already"));
    platform::MsgBox(QStringLiteral("You already own ") + caption + u'.', platform::Buttons::Ok,
                     platform::Icon::Exclamation, QStringLiteral("Have Item"));
    return;
  }
  if (platform::MsgBox(QStringLiteral("Do you want to buy ") + caption + u'?', platform::Buttons::YesNo,
                       platform::Icon::None, QStringLiteral("Buy Item")) != platform::Answer::Yes)
    return;
  const auto item = lodge::Lookupitem(item_);
  if (!item) return;
  if (!lodge::canAfford(Game.Money, item->cost)) {
    talk::Saynotext(QStringLiteral("nomoney"));
    platform::MsgBox(QStringLiteral("You don't have enough money."), platform::Buttons::Ok,
                     platform::Icon::None, QStringLiteral("Not Enough Money"));
    return;
  }
  chargeAndStore(item->cost);
  showOwnedTab(item->catNumber - 1);
  if (const auto slot = lodge::autoEquipSlot(Game.EquipSlots, item->subCatNumber))
    Game.EquipSlots[*slot] = item_;
}

// Takes the money with the till's ring and puts the item on the owned list.
void Catalog::chargeAndStore(int16_t cost) {
  Game.Money = rt::sub16(Game.Money, cost);
  Moneylab->setText(lodge::moneyText(Game.Money));
  Game.MediaBusy = -1;
  platform::MCIWnd& media = huntMediaWindow();
  media.setFileName(Game.MediaRoot + QStringLiteral("sound\\cregstr.wav"));
  media.command(QStringLiteral("Play "));
  lodge::AddtoInv(Game.OwnedItems, item_);
  QCoreApplication::processEvents();
}

void Catalog::SellButton_Click() {
  const QListWidgetItem* row = Invlist->currentItem();
  if (!row || !row->isSelected()) {
    platform::MsgBox(QStringLiteral("You need to select an item to sell"), platform::Buttons::Ok,
                     platform::Icon::None, QStringLiteral("Select Item"));
    return;
  }
  const auto number = static_cast<int16_t>(row->data(Qt::UserRole).toInt());
  const auto item = lodge::Lookupitem(number);
  if (!item) return;
  const int16_t price = lodge::sellBackPrice(item->cost);
  talk::Saynotext(QStringLiteral("oconfirm"));
  if (platform::MsgBox(QStringLiteral("Do you want to sell ") + item->name + QStringLiteral(" for $") +
                           QString::number(price) + u'?',
                       platform::Buttons::YesNo, platform::Icon::None,
                       QStringLiteral("Sell Item")) != platform::Answer::Yes)
    return;
  Game.Money = rt::add16(Game.Money, price);
  lodge::Removefrominv(Game.OwnedItems, Game.EquipSlots, number);
  Moneylab->setText(lodge::moneyText(Game.Money));
  TabInv_Click();
}

void Catalog::showOwnedTab(int tab) {
  {
    const QSignalBlocker quiet(TabInv);
    TabInv->setCurrentIndex(tab);
  }
  TabInv_Click();
}

void Catalog::TabInv_Click() {
  Invlist->clear();
  const lodge::ItemTables& tables = lodge::itemTables();
  for (int entry = 1; entry < kOwnedItemCount; ++entry) {
    const int16_t item = Game.OwnedItems[entry];
    if (item <= 0 || item >= kOwnedItemCount || tables.tabs[item] != TabInv->currentIndex()) continue;
    auto* row = new QListWidgetItem(tables.names[item], Invlist);
    row->setData(Qt::UserRole, item);
  }
}

void Catalog::Closebox_Click() {
  talk::Saynotext(QStringLiteral("thankyou"));
  close();
}

void Catalog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Closebox_Click();
    return;
  }
  QDialog::keyPressEvent(event);
}
