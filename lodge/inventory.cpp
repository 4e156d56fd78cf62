// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/inventory.h"

#include "lodge/catalog_items.h"
#include "lodge/catalog_rules.h"
#include "lodge/equipment_slots.h"
#include "lodge/lodge_frame.h"
#include "platform/picture_box.h"
#include "platform/pictures.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/names.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

namespace {

constexpr int kSlotColumns = 3;
constexpr QSize kIconSize{32, 32};
const char* const kPageNames[lodge::kSlotPageCount] = {"Clothing", "Gear", "Camp"};

}  // namespace

Inventory::Inventory()
    : Background(new platform::PictureBox(this)),
      tabinvent(new QTabBar(this)),
      dwMList(new QListWidget(this)),
      sstabequp(new QTabWidget(this)),
      wepicon(new platform::PictureBox(this)),
      Weaponlab(new QLabel(this)),
      Wallet1(new QLabel(this)),
      Closebox(new QPushButton(QStringLiteral("Exit"), this)),
      resize_(new platform::ReSize(this, lodge::kLodgeDesign)) {
  lodge::prepareLodgeScreen(*this, QStringLiteral("Inventory"));
  for (int tab = 0; tab < lodge::kCategoryCount; ++tab) tabinvent->addTab(lodge::CatnumtoStr(tab));
  tabinvent->setExpanding(true);
  tabinvent->setDrawBase(false);
  dwMList->setIconSize(kIconSize);
  for (QLabel* l : {Weaponlab, Wallet1}) lodge::onPaper(*l);
  Wallet1->setAlignment(Qt::AlignCenter);
  Weaponlab->setWordWrap(true);
  wepicon->setScaledContents(true);
  buildSlotPages();
  connect(tabinvent, &QTabBar::currentChanged, this, [this] { Tabinvent_Click(tabinvent->currentIndex()); });
  connect(dwMList, &QListWidget::itemDoubleClicked, this, &Inventory::dwMList_DblClick);
  connect(Closebox, &QPushButton::clicked, this, &Inventory::Closebox_Click);
  placeWidgets();
}

void Inventory::buildSlotPages() {
  std::array<QWidget*, lodge::kSlotPageCount> pages{};
  for (int page = 0; page < lodge::kSlotPageCount; ++page) {
    pages[page] = new QWidget;
    pages[page]->setObjectName(QStringLiteral("slotpage"));
    sstabequp->addTab(pages[page], QString::fromLatin1(kPageNames[page]));
  }
  sstabequp->setStyleSheet(QStringLiteral("QWidget#slotpage { background: rgba(250, 243, 226, 200); }"));
  for (int slot = lodge::kFirstSlot; slot <= lodge::kLastSlot; ++slot) {
    QWidget* page = pages[lodge::slotPage(slot)];
    invequip[slot] = new platform::PictureBox(page);
    invequip[slot]->setFrameShape(QFrame::Box);
    invequip[slot]->setCursor(Qt::PointingHandCursor);
    invequip[slot]->onClick([this, slot] { invequip_Click(slot); });
    InvEqupLabel[slot] = new QLabel(lodge::initialSlotName(slot), page);
    InvEqupLabel[slot]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    InvEqupLabel[slot]->setWordWrap(true);
    InvEqupLabel[slot]->installEventFilter(this);
  }
}

void Inventory::placeWidgets() {
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  // Between the pack's two straps: the owned gear and the slots; the weapon on the left
  // flap, the wallet and the way out on the right one.
  resize_->place(tabinvent, {198, 84, 334, 32}, 9);
  resize_->place(dwMList, {198, 116, 334, 460}, 11);
  resize_->place(sstabequp, {542, 84, 278, 492}, 10);
  // Slots sit in rows of three on their page, picture over name.
  std::array<int, lodge::kSlotPageCount> placed{};
  for (int slot = lodge::kFirstSlot; slot <= lodge::kLastSlot; ++slot) {
    const int n = placed[lodge::slotPage(slot)]++;
    const int left = 2 + 91 * (n % kSlotColumns);
    const int top = 16 + 150 * (n / kSlotColumns);
    resize_->place(invequip[slot], {left + 15, top, 60, 60});
    resize_->place(InvEqupLabel[slot], {left, top + 66, 90, 56}, 9);
  }
  resize_->place(wepicon, {58, 90, 80, 80});
  resize_->place(Weaponlab, {44, 178, 104, 84}, 9);
  resize_->place(Wallet1, {868, 90, 102, 40}, 13);
  resize_->place(Closebox, {868, 534, 102, 40}, 12);
}

QString Inventory::iconPath(int item) const {
  return Game.MediaRoot + QStringLiteral("invpics\\icon") + QString::number(item) + QStringLiteral(".bmp");
}

void Inventory::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("invent.bmp")));
  Wallet1->setText(lodge::moneyText(Game.Money));
  Weaponlab->setText(WeaponName(Game.CurWeapon));
  if (Game.CurWeapon > 0)
    wepicon->setPicturePath(Game.MediaRoot + QStringLiteral("pict\\wicon") + QString::number(Game.CurWeapon) +
                            QStringLiteral(".bmp"));
  fillboxes();
  tabinvent->setCurrentIndex(0);
  Tabinvent_Click(0);
}

void Inventory::showSlot(int slot, int16_t item) {
  invequip[slot]->setPicturePath(iconPath(item));
  const lodge::ItemTables& tables = lodge::itemTables();
  InvEqupLabel[slot]->setText(item >= 0 && item < kOwnedItemCount ? tables.names[item] : QString());
}

void Inventory::fillboxes() {
  for (int slot = lodge::kFirstSlot; slot <= lodge::kLastSlot; ++slot)
    if (Game.EquipSlots[slot] != 0) showSlot(slot, Game.EquipSlots[slot]);
}

void Inventory::Tabinvent_Click(int /*previousTab*/) {
  dwMList->clear();
  const lodge::ItemTables& tables = lodge::itemTables();
  for (int entry = 1; entry < kOwnedItemCount; ++entry) {
    const int16_t item = Game.OwnedItems[entry];
    if (item <= 0 || item >= kOwnedItemCount || tables.tabs[item] != tabinvent->currentIndex()) continue;
    auto* row =
        new QListWidgetItem(QIcon(platform::LoadPicture(iconPath(item))), tables.names[item], dwMList);
    row->setData(Qt::UserRole, item);
  }
}

void Inventory::dwMList_DblClick() {
  const QListWidgetItem* row = dwMList->currentItem();
  if (!row) return;
  const auto item = static_cast<int16_t>(row->data(Qt::UserRole).toInt());
  const auto record = lodge::Lookupitem(item);
  if (!record) return;
  const int slot = record->subCatNumber;
  // A slot the hunter does not have is the runtime's subscript error, raised before anything
  // is stored.
  if (slot < 0 || slot > lodge::kLastSlot) throw rt::SubscriptOutOfRange();
  // Whatever the slot held is replaced; it stays owned.
  Game.EquipSlots[slot] = item;
  if (slot >= lodge::kFirstSlot) {
    invequip[slot]->setPicturePath(iconPath(item));
    InvEqupLabel[slot]->setText(record->name);
  }
  sstabequp->setCurrentIndex(lodge::slotPage(slot));
}

void Inventory::InvEqupLabel_DblClick(int index) {
  if (index < lodge::kFirstSlot || index > lodge::kLastSlot) return;
  invequip[index]->setPicturePath(QString());
  Game.EquipSlots[index] = 0;
  InvEqupLabel[index]->setText(lodge::slotName(index));
}

void Inventory::invequip_Click(int index) {
  InvEqupLabel_DblClick(index);
}

void Inventory::Closebox_Click() {
  close();
}

bool Inventory::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) {
    for (int slot = lodge::kFirstSlot; slot <= lodge::kLastSlot; ++slot) {
      if (watched == InvEqupLabel[slot]) {
        InvEqupLabel_DblClick(slot);
        return true;
      }
    }
  }
  return QDialog::eventFilter(watched, event);
}
