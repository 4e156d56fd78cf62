// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/weapons.h"

#include "lodge/lodge_frame.h"
#include "lodge/logging.h"
#include "lodge/speech.h"
#include "lodge/weapon_rack.h"
#include "platform/picture_box.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shell/screen_layout.h"
#include "shell/shared_procedures.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace {

// A busy pause between pages, so the rack cannot be flicked through.
constexpr int kPagePauseTicks = 5;

}  // namespace

Weapons::Weapons()
    : Background(new platform::PictureBox(this)),
      Wepimage(new platform::PictureBox(this)),
      lbWeaponName(new QLabel(this)),
      lbwepLength(new QLabel(this)),
      lbwepWeight(new QLabel(this)),
      lbwepAmmo(new QLabel(this)),
      lbwepvelo(new QLabel(this)),
      lbGame(new QLabel(this)),
      lbwepTraj(new QLabel(this)),
      lbweppoa(new QLabel(this)),
      lbwepenergy(new QLabel(this)),
      lbWepDesc(new QLabel(this)),
      resize_(new platform::ReSize(this, lodge::kLodgeDesign)) {
  lodge::prepareLodgeScreen(*this, QStringLiteral("Weapons"));
  for (QLabel* l : {lbWeaponName, lbwepLength, lbwepWeight, lbwepAmmo, lbwepvelo, lbGame, lbwepTraj, lbweppoa,
                    lbwepenergy, lbWepDesc}) {
    lodge::onPaper(*l);
    l->setWordWrap(true);
  }
  lbWepDesc->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lbGame->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Wepimage->setScaledContents(true);
  placeWidgets();
}

QPushButton* Weapons::button(const QString& caption, QRect designRect, void (Weapons::*handler)()) {
  auto* b = new QPushButton(caption, this);
  resize_->place(b, designRect, 12);
  connect(b, &QPushButton::clicked, this, handler);
  return b;
}

void Weapons::placeWidgets() {
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  // The weapon hangs on the rack's board, its papers lie on the sheet beside it, and the
  // buttons stand between the window and the sheet; the brass plate above stays clear.
  resize_->place(lbWeaponName, {56, 92, 560, 46}, 20);
  resize_->place(Wepimage, {66, 150, 540, 180});
  resize_->place(lbGame, {686, 380, 280, 62}, 9);
  resize_->place(lbWepDesc, {686, 448, 280, 124}, 10);
  const std::array<QLabel*, 7> ballistics{lbwepLength, lbwepWeight, lbwepAmmo,  lbwepvelo,
                                          lbwepTraj,   lbweppoa,    lbwepenergy};
  for (int row = 0; row < static_cast<int>(ballistics.size()); ++row)
    resize_->place(ballistics[row], {686, 88 + 41 * row, 280, 38}, 9);
  catback = button(QStringLiteral("<< Back"), {338, 404, 150, 42}, &Weapons::catback_Click);
  Catnext = button(QStringLiteral("Next >>"), {500, 404, 150, 42}, &Weapons::Catnext_Click);
  selwep = button(QStringLiteral("Select Weapon"), {338, 466, 312, 44}, &Weapons::selwep_Click);
  Cancelbox = button(QStringLiteral("Cancel"), {338, 530, 312, 42}, &Weapons::Cancelbox_Click);
}

void Weapons::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  data1_.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + QStringLiteral("weapon.isd"));
  data1_.Refresh();
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("weapon.bmp")));
  page_ = 1;
  for (int n = 1; n < static_cast<int>(pictureCodes_.size()); ++n)
    pictureCodes_[n] = lodge::weaponPictureCode(n);
  unsetCursor();
  LookupWep(1);
  FormatCat();
  talk::Saynotext(QStringLiteral("chweap"));
}

void Weapons::LookupWep(int id) {
  try {
    data1_.SetCriteria(QStringLiteral("Field(\"ID\") = ") + rt::numberText(id));
    data1_.FindFirst();
    if (data1_.NoMatch()) return;
    readRecord();
  } catch (const platform::RecordError& e) {
    qCWarning(lodgeLog) << "weapon records unreadable:" << e.what();
    return;
  }
  Wepimage->setPicturePath(Game.MediaRoot + QStringLiteral("pict\\weapon") + QString::number(id) +
                           QStringLiteral(".bmp"));
}

void Weapons::readRecord() {
  const auto field = [this](const char* name) { return data1_.Field(QString::fromLatin1(name)).trimmed(); };
  bool number = false;
  record_.id = static_cast<int16_t>(field("ID").toShort(&number));
  record_.weapon = field("Weapon");
  record_.description = field("Description");
  record_.length = field("Length");
  record_.weight = field("Weight");
  record_.ammunition = field("Ammunition");
  record_.velocity = field("Velocity");
  record_.game = field("Game");
  record_.trajectory = field("Trajectory");
  record_.poa = field("POA");
  record_.energy = field("Energy");
}

void Weapons::FormatCat() {
  lbWeaponName->setText(record_.weapon);
  lbwepLength->setText(QStringLiteral("L: ") + record_.length);
  lbwepWeight->setText(QStringLiteral("W: ") + record_.weight);
  lbwepAmmo->setText(QStringLiteral("Ammo: ") + record_.ammunition);
  lbwepvelo->setText(QStringLiteral("V: ") + record_.velocity);
  lbGame->setText(record_.game);
  lbwepTraj->setText(QStringLiteral("T: ") + record_.trajectory);
  lbweppoa->setText(QStringLiteral("POA: ") + record_.poa);
  lbwepenergy->setText(QStringLiteral("E: ") + record_.energy);
  lbWepDesc->setText(record_.description);
}

void Weapons::showPage(int16_t page) {
  page_ = page;
  LookupWep(page_);
  FormatCat();
  WaitTicks(kPagePauseTicks);
}

void Weapons::catback_Click() {
  showPage(lodge::previousRackPage(page_));
}

void Weapons::Catnext_Click() {
  showPage(lodge::nextRackPage(page_));
}

void Weapons::selwep_Click() {
  Game.CurWeapon = page_;
  Game.CurWeaponPic = pictureCodes_[page_];
  SetWeaponSight();
  data1_.Close();
  close();
}

void Weapons::Cancelbox_Click() {
  // A hunter who opens the rack must choose again.
  Game.CurWeapon = 0;
  data1_.Close();
  close();
}

void Weapons::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Cancelbox_Click();
    return;
  }
  QDialog::keyPressEvent(event);
}
