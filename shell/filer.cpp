// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/filer.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/resize_widget.h"
#include "shell/about_text.h"
#include "shell/file_names.h"
#include "shell/game_state.h"
#include "shell/help_window.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/shared_procedures.h"

#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

constexpr QSize kDesign{640, 480};
const QString kDeveloperSite = QStringLiteral("https://www.tamsin-games.example/");

}  // namespace

Filer::Filer()
    : Picture(new QLabel(this)),
      MainLab(new QLabel(this)),
      Usename(new QLineEdit(this)),
      List1(new QListWidget(this)),
      resize_(new platform::ReSize(this, kDesign)) {
  setWindowTitle(QStringLiteral("Select User"));
  setModal(true);
  resize(kDesign);
  Picture->setScaledContents(true);
  Picture->lower();
  MainLab->setAlignment(Qt::AlignCenter);
  MainLab->setWordWrap(true);
  MainLab->setStyleSheet(QStringLiteral("color: #f3e9cf; background: rgba(30, 24, 12, 170); padding: 4px;"));
  Usename->installEventFilter(this);
  Usename->setMaxLength(kMaxSaveNameLength);
  // Pasted, dropped and filled-in text passes the same rule as typed keys.
  connect(Usename, &QLineEdit::textChanged, this, &Filer::keepSaveName);
  connect(List1, &QListWidget::itemClicked, this, [this] { List1_Click(); });
  connect(List1, &QListWidget::itemDoubleClicked, this, [this] { List1_DblClick(); });
  placeWidgets();
}

QPushButton* Filer::button(const QString& caption, QRect designRect, void (Filer::*handler)()) {
  auto* b = new QPushButton(caption, this);
  resize_->place(b, designRect, 10);
  connect(b, &QPushButton::clicked, this, handler);
  return b;
}

void Filer::placeWidgets() {
  resize_->place(Picture, QRect(QPoint(0, 0), kDesign));
  resize_->place(MainLab, {120, 40, 400, 150}, 12);
  // Main face: two columns of buttons under the heading.
  Loadgamebut = button(QStringLiteral("Load Game"), {150, 205, 160, 30}, &Filer::Loadgamebut_Click);
  Savegamebut = button(QStringLiteral("Save Game"), {330, 205, 160, 30}, &Filer::Savegamebut_Click);
  Loadequipbut = button(QStringLiteral("Load Equipment"), {150, 240, 160, 30}, &Filer::loadequipbut_Click);
  Saveequipbut = button(QStringLiteral("Save Equipment"), {330, 240, 160, 30}, &Filer::saveequipbut_Click);
  Pausegame = button(QStringLiteral("Pause Game"), {150, 275, 160, 30}, &Filer::Pausegame_Click);
  Returnbut = button(QStringLiteral("Return to Game"), {330, 275, 160, 30}, &Filer::Returnbut_Click);
  Resgamebut = button(QStringLiteral("New Game"), {150, 310, 160, 30}, &Filer::Resgamebut_Click);
  Exitgamebut = button(QStringLiteral("Exit Game"), {330, 310, 160, 30}, &Filer::Exitgamebut_Click);
  Aboutbox = button(QStringLiteral("About"), {150, 345, 105, 30}, &Filer::Aboutbox_Click);
  // Help stays on both faces, in a corner of its own.
  btnHelp = button(QStringLiteral("Help"), {530, 436, 90, 28}, &Filer::btnHelp_Click);
  btnColdwater = button(QStringLiteral("Coldwater"), {385, 345, 105, 30}, &Filer::btnColdwater_Click);
  btnTamsin = button(QStringLiteral("Tamsin"), {268, 345, 105, 30}, &Filer::btnTamsin_Click);
  // File face: name box and list under the heading, actions below.
  resize_->place(Usename, {170, 200, 300, 26}, 11);
  resize_->place(List1, {170, 230, 300, 150}, 11);
  LoadOK = button(QStringLiteral("LOAD"), {170, 390, 92, 30}, &Filer::LoadOK_Click);
  SaveOK = button(QStringLiteral("SAVE"), {170, 390, 92, 30}, &Filer::Saveok_Click);
  deluser = button(QStringLiteral("Delete"), {274, 390, 92, 30}, &Filer::Deluser_Click);
  Cancelbut = button(QStringLiteral("Cancel"), {378, 390, 92, 30}, &Filer::Cancelbut_Click);
}

QList<QPushButton*> Filer::mainButtons() const {
  return {Loadgamebut, Loadequipbut, Savegamebut, Saveequipbut, Aboutbox, Pausegame,
          Resgamebut,  Exitgamebut,  Returnbut,   btnColdwater, btnTamsin};
}

void Filer::Form_Load() {
  Picture->setPixmap(platform::LoadPicture(Game.MediaRoot + "art\\" + Game.ResCode + "mainmnu.bmp"));
  resetbuttons();
  if (Game.ScreenState == u"POSTCARD") {
    Loadgamebut_Click();
    return;
  }
  Loadgamebut->setVisible(!listSaveNames(kGameKind).isEmpty());
  Loadequipbut->setVisible(!listSaveNames(kEquipmentKind).isEmpty());
}

void Filer::ClearMainbuttons() {
  for (QPushButton* b : mainButtons()) b->hide();
}

void Filer::resetbuttons() {
  for (QPushButton* b : mainButtons()) b->show();
  btnHelp->show();
  for (QWidget* w : std::initializer_list<QWidget*>{LoadOK, SaveOK, Usename, Cancelbut, List1, deluser})
    w->hide();
  MainLab->setText(QStringLiteral("Select Item"));
}

void Filer::fillList() {
  List1->clear();
  List1->addItems(listSaveNames(kind_));
}

void Filer::openFileDialogue(char kind, const QString& heading) {
  ClearMainbuttons();
  kind_ = kind;
  MainLab->setText(heading);
  fillList();
  List1->show();
  Cancelbut->show();
}

void Filer::openLoadDialogue(char kind, const QString& heading) {
  openFileDialogue(kind, heading);
  LoadOK->show();
  deluser->show();
}

void Filer::openSaveDialogue(char kind, const QString& heading) {
  openFileDialogue(kind, heading);
  Usename->setText(Game.HunterName.trimmed());
  Usename->show();
  SaveOK->show();
  Usename->setFocus();
}

void Filer::Loadgamebut_Click() {
  openLoadDialogue(kGameKind, QStringLiteral("Select a game to load"));
}

void Filer::loadequipbut_Click() {
  openLoadDialogue(kEquipmentKind, QStringLiteral("Select equipment to load"));
}

void Filer::Savegamebut_Click() {
  openSaveDialogue(kGameKind, QStringLiteral("Enter a Save game Name"));
}

void Filer::saveequipbut_Click() {
  openSaveDialogue(kEquipmentKind, QStringLiteral("Enter a Save Equipment Name"));
}

void Filer::List1_Click() {
  if (List1->count() > 0 && List1->currentItem()) Usename->setText(List1->currentItem()->text());
}

void Filer::List1_DblClick() {
  // Loading needs the LOAD button, so a stray double click never loads a game.
}

void Filer::Saveok_Click() {
  switch (saveNamedFile(Usename->text(), kind_)) {
    case SaveOutcome::NeedName: Usename->setFocus(); break;
    case SaveOutcome::Saved: resetbuttons(); break;
    case SaveOutcome::Declined:
    case SaveOutcome::Failed: break;
  }
}

std::optional<QString> Filer::selectedEntry() const {
  const QListWidgetItem* item = List1->currentItem();
  if (!item || !item->isSelected()) return std::nullopt;
  return item->text();
}

void Filer::LoadOK_Click() {
  if (loadNamedFile(selectedEntry(), kind_) != LoadOutcome::Loaded) return;
  RefreshHuntClock();
  closeWith(QStringLiteral("LOADED"));
}

void Filer::Deluser_Click() {
  if (deleteNamedFile(selectedEntry(), kind_)) delete List1->takeItem(List1->currentRow());
}

int Filer::Usename_KeyPress(int keyAscii) {
  constexpr int kBackspace = 8;
  constexpr int kEnter = 13;
  if (keyAscii == kBackspace) return keyAscii;
  if (keyAscii == kEnter) {
    Saveok_Click();
    return 0;
  }
  const bool letter = (keyAscii >= 'a' && keyAscii <= 'z') || (keyAscii >= 'A' && keyAscii <= 'Z');
  const bool allowed = letter || keyAscii == ' ' || (keyAscii >= '0' && keyAscii <= '9');
  if (!allowed || Usename->text().size() >= kMaxSaveNameLength) return 0;
  return QChar(keyAscii).toUpper().unicode();
}

void Filer::keepSaveName(const QString& text) {
  const QString name = saveNameFrom(text);
  if (name == text) return;
  const int cursor = std::min(Usename->cursorPosition(), static_cast<int>(name.size()));
  Usename->setText(name);
  Usename->setCursorPosition(cursor);
}

bool Filer::eventFilter(QObject* watched, QEvent* event) {
  if (watched != Usename || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
    Usename_KeyPress(13);
    return true;
  }
  // Backspace, Delete and the keys that type nothing edit or move as usual.
  if (key->key() == Qt::Key_Backspace || key->key() == Qt::Key_Delete || key->text().isEmpty()) return false;
  if (const int passed = Usename_KeyPress(key->text().at(0).unicode()))
    Usename->insert(QString(QChar(passed)));
  return true;
}

void Filer::Cancelbut_Click() {
  if (Game.ScreenState == u"POSTCARD") {
    closeWith(QStringLiteral("CANCEL"));
    return;
  }
  resetbuttons();
}

void Filer::Pausegame_Click() {
  platform::MsgBox(QStringLiteral("Game Paused"), platform::Buttons::Ok, platform::Icon::None,
                   QStringLiteral("Game Paused"));
}

void Filer::Resgamebut_Click() {
  if (platform::MsgBox(QStringLiteral("Do you want to restart game?"), platform::Buttons::YesNo,
                       platform::Icon::None, QStringLiteral("Restart Game")) == platform::Answer::Yes)
    closeWith(QStringLiteral("RESTART"));
}

void Filer::Exitgamebut_Click() {
  if (platform::MsgBox(QStringLiteral("Do you want to quit the game?"), platform::Buttons::YesNo,
                       platform::Icon::None, QStringLiteral("Quit Game")) == platform::Answer::Yes)
    closeWith(QStringLiteral("QUIT GAME"));
}

void Filer::Returnbut_Click() {
  closeWith(QStringLiteral("GOBACK"));
}

void Filer::Aboutbox_Click() {
  MainLab->setText(aboutText());
  setWindowTitle(QStringLiteral("About"));
}

void Filer::btnHelp_Click() {
  OpenHelp();
}

void Filer::btnTamsin_Click() {
  const bool localPages =
      QDir(QString::fromStdString(platform::files().resolve(Game.MediaRoot + "devpage").string())).exists();
  OpenWebPage(this, localPages ? Game.MediaRoot + "devpage\\index.htm" : kDeveloperSite);
}

void Filer::btnColdwater_Click() {
  OpenWebPage(this, Game.MediaRoot + "coldwater\\index.htm");
}

// Escape and the window's close button leave the menu as Cancel would.
void Filer::reject() {
  Game.ScreenState = QStringLiteral("CANCEL");
  QDialog::reject();
}

void Filer::closeWith(const QString& handOver) {
  Game.ScreenState = handOver;
  done(QDialog::Accepted);
}
