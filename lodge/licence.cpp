// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/licence.h"

#include "lodge/lodge_frame.h"
#include "lodge/speech.h"
#include "lodge/tag_rules.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/picture_box.h"
#include "platform/pictures.h"
#include "platform/resize_widget.h"
#include "platform/runtime.h"
#include "platform/text_file.h"
#include "shell/data_tables.h"
#include "shell/game_state.h"
#include "shell/names.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kColumns = 4;
const QString kLineBreak = QStringLiteral("\n\r");  // message lines join with LF CR

// Reads numbers into `values` from entry `first` on; a short or missing file leaves the rest
// as they were.
template <size_t N>
void readNumbers(const QString& gamePath, std::array<int16_t, N>& values, size_t first) {
  try {
    rt::ListInput in(platform::files().resolve(gamePath));
    for (size_t i = first; i < N; ++i) values[i] = in.inputInt16();
  } catch (const std::exception&) {
    // What was read stays; the board opens with it.
  }
}

// The tag's picture as a tag the hunter does not hold: the species' own tag, paled.
QPixmap ownTagPicture(int species) {
  QPixmap tag = platform::LoadPicture(Game.MediaRoot + QStringLiteral("licnpics\\tag") +
                                      QString::number(species) + QStringLiteral(".bmp"));
  if (tag.isNull()) return tag;
  QImage pale = tag.toImage().convertToFormat(QImage::Format_Grayscale8);
  return QPixmap::fromImage(pale);
}

}  // namespace

Licence::Licence()
    : Background(new platform::PictureBox(this)),
      Shape1(new QFrame(this)),
      Promptlab(new QLabel(this)),
      Namelab(new QLabel(this)),
      Moneylab(new QLabel(this)),
      Closebox(new QPushButton(QStringLiteral("Close"), this)),
      resize_(new platform::ReSize(this, lodge::kLodgeDesign)) {
  lodge::prepareLodgeScreen(*this, QStringLiteral("Hunting License"));
  for (int species = 1; species <= kSpeciesCount; ++species) {
    Tagpic[species] = new platform::PictureBox(this);
    Tagpic[species]->setCursor(Qt::PointingHandCursor);
    Tagpic[species]->onClick([this, species] { Tagpic_Click(species); });
  }
  Shape1->setFrameShape(QFrame::Box);
  Shape1->setStyleSheet(QStringLiteral("QFrame { border: 4px solid #e03020; background: transparent; }"));
  Shape1->setAttribute(Qt::WA_TransparentForMouseEvents);
  Shape1->hide();
  for (QLabel* l : {Promptlab, Namelab, Moneylab}) lodge::onPaper(*l);
  Promptlab->setWordWrap(true);
  Moneylab->setAlignment(Qt::AlignCenter);
  connect(Closebox, &QPushButton::clicked, this, &Licence::Closebox_Click);
  placeWidgets();
}

void Licence::placeWidgets() {
  resize_->place(Background, QRect(QPoint(0, 0), lodge::kLodgeDesign));
  // Tags pinned to the cork board in rows of four; the words under the season's note.
  for (int species = 1; species <= kSpeciesCount; ++species) {
    const int column = (species - 1) % kColumns;
    const int row = (species - 1) / kColumns;
    resize_->place(Tagpic[species], {62 + 172 * column, 106 + 116 * row, 160, 80});
  }
  resize_->place(Promptlab, {750, 258, 212, 84}, 14);
  resize_->place(Namelab, {750, 352, 212, 34}, 12);
  resize_->place(Moneylab, {750, 396, 212, 40}, 16);
  resize_->place(Closebox, {790, 522, 172, 40}, 12);
}

void Licence::readTables() {
  readNumbers(Game.MediaRoot + QStringLiteral("data\\tagcost.csv"), tagCost_, 0);
  readNumbers(Game.MediaRoot + QStringLiteral("data\\H") + Game.AreaCode + QStringLiteral(".csv"), habitat_,
              1);
}

void Licence::showTag(int species) {
  const lodge::TagView view = lodge::tagView(Game.TagsOwned[species], habitat_[species]);
  Game.TagsOwned[species] = view.value;
  const QString pictures = Game.MediaRoot + QStringLiteral("licnpics\\");
  switch (view.picture) {
    case lodge::TagPicture::Own: Tagpic[species]->setPixmap(ownTagPicture(species)); break;
    case lodge::TagPicture::Held:
      Tagpic[species]->setPicturePath(pictures + QStringLiteral("tag") + QString::number(species) +
                                      QStringLiteral(".bmp"));
      break;
    case lodge::TagPicture::Filled:
      Tagpic[species]->setPicturePath(pictures + QStringLiteral("ftag.bmp"));
      break;
    case lodge::TagPicture::NotAvailable:
      Tagpic[species]->setPicturePath(pictures + QStringLiteral("natag.bmp"));
      break;
  }
  Tagpic[species]->setEnabled(view.enabled);
}

void Licence::Form_Load() {
  lodge::placeOverHuntingScreen(*this);
  Background->setPicturePath(lodge::lodgeArtPath(QStringLiteral("license.bmp")));
  Game.TagSpecies = 0;
  // A short or missing world file leaves 0 for the species it does not name.
  habitat_.fill(0);
  readTables();
  for (int species = 1; species <= kSpeciesCount; ++species) showTag(species);
  if (Game.ScreenMode == kBuyMode) Promptlab->setText(QStringLiteral("What tag do you want to buy?"));
  if (Game.ScreenMode == kQuarryMode) {
    talk::Saynotext(QStringLiteral("chtag"));
    Promptlab->setText(QStringLiteral("What do you want to hunt?"));
  }
  Moneylab->setText(lodge::moneyText(Game.Money));
  Namelab->setText(Game.HunterName);
  unsetCursor();
}

void Licence::setbox(QWidget* picture) {
  Shape1->setGeometry(picture->geometry());
  Shape1->raise();
  Shape1->show();
}

void Licence::Tagpic_Click(int index) {
  if (index < 1 || index > kSpeciesCount) return;
  if (Game.ScreenMode == kBuyMode) buyTag(index);
  if (Game.ScreenMode == kQuarryMode) chooseQuarry(index);
}

void Licence::buyTag(int species) {
  const QString title = QStringLiteral("Buy Tag");
  const QString name = SpeciesName(species);
  switch (lodge::buyStep(Game.TagsOwned[species])) {
    case lodge::BuyStep::AlreadyHeld:
      talk::Saynotext(QStringLiteral("hosttag1"));
      platform::MsgBox(QStringLiteral("You already have a tag to hunt ") + name + u'.', platform::Buttons::Ok,
                       platform::Icon::None, title);
      return;
    case lodge::BuyStep::AlreadyFilled:
      talk::Saynotext(QStringLiteral("hosttag2"));
      platform::MsgBox(QStringLiteral("You have already filled that tag."), platform::Buttons::Ok,
                       platform::Icon::None, title);
      return;
    case lodge::BuyStep::Offer: break;
  }
  if (platform::MsgBox(QStringLiteral("Do you want to buy a tag to hunt ") + name + u'?',
                       platform::Buttons::YesNo, platform::Icon::None, title) != platform::Answer::Yes)
    return;
  if (Game.Money < tagCost_[species]) {
    talk::Saynotext(QStringLiteral("hnomoney"));
    platform::MsgBox(QStringLiteral("You don't have enough money."), platform::Buttons::Ok,
                     platform::Icon::None, QStringLiteral("Not Enough Money"));
    return;
  }
  const int16_t left = rt::sub16(Game.Money, tagCost_[species]);
  setbox(Tagpic[species]);
  Game.Money = left;
  Moneylab->setText(lodge::moneyText(Game.Money));
  Game.TagsOwned[species] = kTagHeld;
  showTag(species);
}

void Licence::chooseQuarry(int species) {
  const QString name = SpeciesName(species);
  switch (lodge::quarryStep(Game.TagsOwned[species])) {
    case lodge::QuarryStep::NoTag:
      talk::Saynotext(QStringLiteral("2choice"));
      platform::MsgBox(
          QStringLiteral("You don't have a tag to hunt ") + name + u'.' + kLineBreak +
              QStringLiteral("You will need to return to the Lodge and buy a tag to hunt that animal."),
          platform::Buttons::Ok, platform::Icon::None, QStringLiteral("No Tag"));
      return;
    case lodge::QuarryStep::Filled:
      talk::Saynotext(QStringLiteral("ftag"));
      talk::Saynotext(QStringLiteral("2choice"));
      platform::MsgBox(QStringLiteral("You've already filled that tag.") + kLineBreak +
                           QStringLiteral("You need to pick a different animal to hunt."),
                       platform::Buttons::Ok, platform::Icon::None, QStringLiteral("Select Tag"));
      return;
    case lodge::QuarryStep::Nothing: return;
    case lodge::QuarryStep::Confirm: break;
  }
  setbox(Tagpic[species]);
  talk::Saynotext(QStringLiteral("gconfirm"));
  if (platform::MsgBox(name + QStringLiteral(" --- are you sure?"), platform::Buttons::YesNo,
                       platform::Icon::None, QStringLiteral("Select Tag")) != platform::Answer::Yes) {
    Shape1->hide();
    return;
  }
  const int16_t before = Game.TagSpecies;
  Game.TagSpecies = static_cast<int16_t>(species);
  try {
    // The tools score depends on the quarry.
    ComputeEquipScores();
  } catch (const rt::OverflowError&) {
    Game.TagSpecies = before;
    throw;
  }
  Closebox_Click();
}

void Licence::Closebox_Click() {
  close();
}
