// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/shotdata.h"

#include "platform/dialogs.h"
#include "platform/error_box.h"
#include "platform/files.h"
#include "platform/picture_box.h"
#include "platform/printer.h"
#include "platform/random.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "platform/text_file.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shooting/scene_layout.h"
#include "shooting/trophy_bonus.h"
#include "shooting/trophy_record.h"

#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize kDesign{640, 480};
const QString kTitle = QStringLiteral("Trophy Page");

double rnd() {
  return platform::Rnd();
}

}  // namespace

Shotdata::Shotdata()
    : Awardpic(new platform::PictureBox(this)),
      Logopic(new platform::PictureBox(this)),
      Trophypic(new platform::PictureBox(this)),
      Takenlab(new QLabel(this)),
      Specieslab(new QLabel(this)),
      Sizelab(new QLabel(this)),
      Weightlab(new QLabel(this)),
      Weaponlab(new QLabel(this)),
      Arealab(new QLabel(this)),
      Rangelab(new QLabel(this)),
      Timelab(new QLabel(this)),
      Skilllab(new QLabel(this)),
      Awardlab(new QLabel(this)),
      printbut(new QPushButton(QStringLiteral("Print"), this)),
      Closebox(new QPushButton(QStringLiteral("Close"), this)),
      resize_(new platform::ReSize(this, kDesign, platform::ReSize::Fit::KeepShape)) {
  setWindowTitle(kTitle);
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  // The page keeps its shape between dark bars; parchment behind the artwork, dark ink on it.
  setStyleSheet(QStringLiteral("Shotdata { background: #1b140c; } QLabel { color: #2a1e10; }"));
  Awardpic->setStyleSheet(QStringLiteral("background: #efe4c8;"));
  Trophypic->setFrameShape(QFrame::Box);
  Trophypic->setLineWidth(3);
  Specieslab->setAlignment(Qt::AlignCenter);
  Awardlab->setAlignment(Qt::AlignCenter);
  Awardlab->setWordWrap(true);
  Arealab->setWordWrap(true);
  Arealab->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  QFont bold = Specieslab->font();
  bold.setBold(true);
  Specieslab->setFont(bold);
  Awardlab->setFont(bold);
  connect(printbut, &QPushButton::clicked, this, &Shotdata::printbut_Click);
  connect(Closebox, &QPushButton::clicked, this, &Shotdata::Closebox_Click);
  placeWidgets();
  resize(kDesign);
}

void Shotdata::placeWidgets() {
  resize_->place(Awardpic, QRect(QPoint(0, 0), kDesign));
  resize_->place(Specieslab, {40, 24, 560, 36}, 20);
  resize_->place(Trophypic, {40, 72, 280, 210});
  QLabel* const column[] = {Takenlab, Sizelab, Weightlab, Weaponlab, Rangelab, Timelab, Skilllab};
  for (int i = 0; i < 7; ++i) resize_->place(column[i], {340, 82 + 28 * i, 270, 26}, 11);
  // A place's description is a whole phrase: its line runs the page's width and may wrap.
  resize_->place(Arealab, {40, 290, 560, 46}, 11);
  resize_->place(Awardlab, {40, 344, 420, 60}, 12);
  resize_->place(Logopic, {470, 338, 130, 70});
  resize_->place(printbut, {180, 420, 120, 34}, 11);
  resize_->place(Closebox, {340, 420, 120, 34}, 11);
}

void Shotdata::Form_Load() {
  placeFullScreenScene(*this);
  Awardpic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + Game.AreaLetter +
                           QStringLiteral("award.bmp"));
  Logopic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\mdnlogo.bmp"));
  readAwardBases();
  unsetCursor();
  Examineshot();
}

void Shotdata::readAwardBases() {
  // A short or missing table leaves the rest of the bases as they were.
  try {
    rt::ListInput table(platform::files().resolve(Game.MediaRoot + QStringLiteral("data\\tagcost.csv")));
    for (int16_t& base : awardBases_) base = table.inputInt16();
  } catch (const std::exception&) {
  }
}

void Shotdata::Examineshot() {
  const double weightBefore = Game.TrophyWeight;
  const TrophyMeasure after = withTrophyBonus(Game.CurAnimal, {Game.TrophySize, Game.TrophyWeight}, rnd);
  Game.TrophySize = after.size;
  Game.TrophyWeight = after.weight;
  Takenlab->setText(QStringLiteral("Taken by: ") + Game.HunterName);
  Specieslab->setText(SpeciesName(Game.CurAnimal));
  Sizelab->setText(QStringLiteral("Size: ") + trophySizeText(Game.TrophySize));
  Weightlab->setText(QStringLiteral("Weight: ") + trophyWeightText(Game.TrophyWeight));
  Weaponlab->setText(QStringLiteral("Weapon: ") + WeaponName(Game.CurWeapon));
  Arealab->setText(QStringLiteral("In the ") + WorldName(Game.WorldNum) + QStringLiteral(" at the ") +
                   Game.CurLocation);
  Rangelab->setText(QStringLiteral("Range: ") + trophyRangeText(Game.ShotYards));
  Timelab->setText(QStringLiteral("Time: ") + trophyTimeText(Game.GameDate));
  Skilllab->setText(QStringLiteral("Skill: ") + SkillName());
  const QString photo = Game.MediaRoot + QStringLiteral("trophy\\") + Game.VideoName + QStringLiteral(".jpg");
  if (platform::files().exists(photo)) Trophypic->setPicturePath(photo);
  payAward(weightBefore);
}

void Shotdata::payAward(double weightBefore) {
  award_ = 0;
  Awardlab->clear();
  if (!awardDue(weightBefore, Game.TrophyWeight, Game.DamagedTrophy != 0)) return;
  const int species = Game.CurAnimal >= 0 && Game.CurAnimal < 17 ? Game.CurAnimal : 0;
  award_ = awardAmount(awardBases_[species], rnd);
  // An overflowing wallet is reported, and the kill is still recorded and tagged.
  try {
    Game.Money = rt::add16(Game.Money, rt::to16(award_));
  } catch (const rt::OverflowError&) {
    platform::ReportEscapedError(std::current_exception(), QStringLiteral("Shotdata Examineshot"));
    award_ = 0;
    return;
  }
  Awardlab->setText(awardMessage(Game.SponsorOn, award_));
}

void Shotdata::printbut_Click() {
  platform::printer().setPdfFolder(Game.Fileloc);
  const platform::PrintResult result = platform::printer().PrintImage(grab().toImage(), kTitle);
  if (!result.printed)
    platform::MsgBox(QStringLiteral("The Trophy page can't be printed."));
  else if (!result.pdfPath.isEmpty())
    platform::MsgBox(
        QStringLiteral("There is no printer; the trophy page was saved as ") + result.pdfPath + u'.',
        platform::Buttons::Ok, platform::Icon::Information, kTitle);
}

void Shotdata::Closebox_Click() {
  close();
}
