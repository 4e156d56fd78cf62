// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/postcard.h"

#include "platform/picture_box.h"
#include "platform/random.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "platform/screens_host.h"
#include "shell/data_tables.h"
#include "shell/file_names.h"
#include "shell/filer.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shell/panorama_names.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/screen_instance.h"
#include "shell/screen_layout.h"
#include "shell/world_descriptions.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

namespace {

constexpr QSize kDesign{640, 480};
const char* const kSkills[] = {"Beginner", "Experienced", "Advanced"};

}  // namespace

Postcard::Postcard()
    : Picture(new platform::PictureBox(this)),
      Image2(new platform::PictureBox(this)),
      Namebox(new QLineEdit(this)),
      Nextbox(new QPushButton(QStringLiteral("New Hunt"), this)),
      loadgamebut(new QPushButton(QStringLiteral("Load Game"), this)),
      qhunt(new QPushButton(QStringLiteral("Quick Hunt"), this)),
      Description(new QTextEdit(this)),
      Starthint(new QLabel(QStringLiteral("Click the picture to start your hunt"), this)),
      resize_(new platform::ReSize(this, kDesign, platform::ReSize::Fit::KeepShape)) {
  setWindowTitle(QStringLiteral("New Hunt"));
  resize(kDesign);
  qhunt->setCheckable(true);
  Description->setReadOnly(true);
  // The card keeps its shape between dark bars; paper behind its artwork, so the card reads
  // as a card even before its picture loads.
  setStyleSheet(QStringLiteral("Postcard { background: black; }"));
  Picture->setStyleSheet(QStringLiteral("background: #e9dfc6;"));
  styleQuickHuntToggle();
  Image2->setCursor(Qt::PointingHandCursor);
  Image2->setToolTip(QStringLiteral("Click the picture to start the hunt"));
  Image2->setFrameShape(QFrame::Box);
  Image2->setLineWidth(2);
  Starthint->setAlignment(Qt::AlignCenter);
  Namebox->setPlaceholderText(QStringLiteral("Hunter"));
  // However the name arrives, it holds only what a save file can give back.
  connect(Namebox, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (const QString name = hunterNameFrom(text); name != text) Namebox->setText(name);
  });
  for (int i = 0; i < 3; ++i) {
    Diffbutton[i] = new QRadioButton(QString::fromLatin1(kSkills[i]), this);
    connect(Diffbutton[i], &QRadioButton::clicked, this, [this, i] { Diffbutton_Click(i); });
  }
  for (int i = 0; i < 4; ++i) {
    Selectworld[i] = new QPushButton(WorldName(i), this);
    connect(Selectworld[i], &QPushButton::clicked, this, [this, i] { Selectworld_Click(i); });
  }
  connect(Nextbox, &QPushButton::clicked, this, &Postcard::Nextbox_Click);
  connect(loadgamebut, &QPushButton::clicked, this, &Postcard::Loadgamebut_Click);
  Image2->onClick([this] { Image2_Click(); });
  placeWidgets();
  setbox();
}

// The quick hunt is a switch, not a start button: it shows whether it is on, lit when it is.
void Postcard::styleQuickHuntToggle() {
  qhunt->setObjectName(QStringLiteral("qhunt"));
  qhunt->setStyleSheet(QStringLiteral(
      "QPushButton#qhunt { color: #3b2f1e; background: #d8ccb0; border: 2px outset #8a7a5a;"
      " border-radius: 6px; padding: 2px 8px; text-align: left; }"
      "QPushButton#qhunt:checked { color: #1d1405; background: #f2c94c; border: 2px inset #8a5a00;"
      " font-weight: bold; }"));
  const auto showState = [this](bool on) {
    qhunt->setText(on ? QStringLiteral("\u25C9  Quick Hunt: On") : QStringLiteral("\u25CB  Quick Hunt: Off"));
  };
  connect(qhunt, &QPushButton::toggled, this, showState);
  showState(qhunt->isChecked());
}

void Postcard::placeWidgets() {
  resize_->place(Picture, QRect(QPoint(0, 0), kDesign));
  resize_->place(Nextbox, {420, 330, 150, 34}, 12);
  resize_->place(loadgamebut, {420, 375, 150, 34}, 12);
  resize_->place(Image2, {40, 60, 280, 210});
  resize_->place(Starthint, {40, 272, 280, 20}, 10);
  resize_->place(Description, {40, 296, 280, 110}, 10);
  for (int i = 0; i < 4; ++i) resize_->place(Selectworld[i], {350, 60 + 38 * i, 130, 32}, 11);
  for (int i = 0; i < 3; ++i) resize_->place(Diffbutton[i], {495, 64 + 34 * i, 125, 28}, 10);
  resize_->place(Namebox, {350, 230, 270, 28}, 11);
  resize_->place(qhunt, {350, 270, 180, 32}, 11);
}

void Postcard::setbox() {
  // The front shows two buttons on the picture; the back everything that sets up a hunt.
  Nextbox->setVisible(!turned_);
  for (QWidget* w : std::initializer_list<QWidget*>{Image2, Starthint, Description, Namebox, qhunt})
    w->setVisible(turned_);
  for (QWidget* w : Selectworld) w->setVisible(turned_);
  for (QWidget* w : Diffbutton) w->setVisible(turned_);
  if (turned_) loadgamebut->hide();
}

void Postcard::Form_Load() {
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  if (Game.ScreenWidth > 0 && Game.ScreenHeight > 0)
    resize(Game.ScreenWidth / twips, Game.ScreenHeight / twips);
  Picture->setPicturePath(Game.MediaRoot + "art\\" + Game.ResCode + "splash.bmp");
  Image2->setPicturePath(Game.MediaRoot + "art\\world0.bmp");
  for (int world = 0; world < 4; ++world) {
    descriptions_[world] = worldDescription(Game.XpackMode != 0, world);
    Selectworld[world]->setText(WorldName(world));
  }
  Game.Money = 2500;
  turned_ = false;
  setbox();
  loadgamebut->setVisible(!listSaveNames(kGameKind).isEmpty());
}

void Postcard::Nextbox_Click() {
  Picture->setPicturePath(Game.MediaRoot + "art\\" + Game.ResCode + "Postcd2.bmp");
  turned_ = true;
  setbox();
  Game.WorldNum = 0;
  Description->setPlainText(descriptions_[0]);
  Diffbutton[Game.SkillLevel >= 0 && Game.SkillLevel < 3 ? Game.SkillLevel : 0]->setChecked(true);
}

void Postcard::Selectworld_Click(int index) {
  Game.WorldNum = rt::to16(index);
  Image2->setPicturePath(Game.MediaRoot + "art\\world" + QString::number(index) + ".bmp");
  Description->setPlainText(descriptions_[index]);
}

void Postcard::Diffbutton_Click(int index) {
  Game.SkillLevel = rt::to16(index);
  Game.Money = rt::to16(2500 - 500 * index);
}

void Postcard::Image2_Click() {
  Game.AreaCode = WorldName(Game.WorldNum).left(6);
  Game.AreaLetter = Game.AreaCode.left(1);
  Game.PlaceMode = 0;
  const QString name = hunterNameFrom(Namebox->text());
  Game.HunterName = name.isEmpty() ? QStringLiteral("Hunter") : name;
  Game.StartPano = lodgeLocation();
  if (qhunt->isChecked()) {
    Game.StartPano = quickHuntLocation();
    Game.PlaceMode = 2;
    ReadQuickHuntOutfit(Game.MediaRoot + "data\\q" + Game.AreaCode + ".csv");
  }
  LoadNotEquipScores();
  // Every hunt starts with sights that need zeroing at the range.
  platform::random().Randomize();
  for (int w = 0; w < 10; ++w) {
    Game.SightElev[w] = rt::to16(rt::Int(platform::Rnd() * 20 - 10));
    Game.SightWind[w] = rt::to16(rt::Int(platform::Rnd() * 20 - 10));
  }
  Game.FirstArrival = 1;
  Game.TestRewarded = false;
  finish();
}

void Postcard::Loadgamebut_Click() {
  Game.ScreenState = QStringLiteral("POSTCARD");
  Filer& menu = ScreenInstance<Filer>::get();
  menu.Form_Load();
  platform::screensHost().ShowModal(menu);
  ScreenInstance<Filer>::unload();
  if (Game.ScreenState != u"LOADED") return;
  LoadNotEquipScores();
  if (Game.PlaceMode == 5) Game.PlaceMode = 0;
  if (Game.PlaceMode == 3) SetWeaponSight();
  Game.StartPano = loadedPlaceLocation(Game.PlaceMode);
  finish();
}

void Postcard::keyPressEvent(QKeyEvent* event) {
  // Escape would reject the card, and a rejected card ends the program: a stray Escape from
  // the start-up question must not end the game.
  if (event->key() == Qt::Key_Escape) {
    event->accept();
    return;
  }
  QDialog::keyPressEvent(event);
}

void Postcard::finish() {
  done(QDialog::Accepted);
}
