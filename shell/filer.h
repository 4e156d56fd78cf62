// SPDX-License-Identifier: GPL-2.0-or-later
// The main menu: loading, saving and deleting games and equipment sets, pausing,
// restarting, quitting, the about text, help and the partners' pages. It tells the screen
// that opened it what to do next through `ScreenState`.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
namespace platform {
class ReSize;
}

class Filer : public QDialog {
  Q_OBJECT

 public:
  Filer();

  void Form_Load();
  void Loadgamebut_Click();
  void loadequipbut_Click();
  void Savegamebut_Click();
  void saveequipbut_Click();
  void List1_Click();
  void List1_DblClick();
  void Saveok_Click();
  void LoadOK_Click();
  void Deluser_Click();
  // Returns the key to pass on, 0 when it is swallowed.
  int Usename_KeyPress(int keyAscii);
  void Cancelbut_Click();
  void Pausegame_Click();
  void Resgamebut_Click();
  void Exitgamebut_Click();
  void Returnbut_Click();
  void Aboutbox_Click();
  void btnHelp_Click();
  void btnTamsin_Click();
  void btnColdwater_Click();
  void ClearMainbuttons();
  void resetbuttons();

  QLabel* Picture;
  QLabel* MainLab;
  QPushButton* Loadgamebut;
  QPushButton* Savegamebut;
  QPushButton* Loadequipbut;
  QPushButton* Saveequipbut;
  QPushButton* Aboutbox;
  QPushButton* Resgamebut;
  QPushButton* Exitgamebut;
  QPushButton* Returnbut;
  QPushButton* Pausegame;
  QPushButton* btnHelp;
  QPushButton* btnColdwater;
  QPushButton* btnTamsin;
  QPushButton* LoadOK;
  QPushButton* SaveOK;
  QPushButton* Cancelbut;
  QPushButton* deluser;
  QLineEdit* Usename;
  QListWidget* List1;

  char kind() const { return kind_; }
  // Escape and the window's close button: the hand-over word is "CANCEL".
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPushButton* button(const QString& caption, QRect designRect, void (Filer::*handler)());
  void placeWidgets();
  void openFileDialogue(char kind, const QString& heading);
  void openLoadDialogue(char kind, const QString& heading);
  void openSaveDialogue(char kind, const QString& heading);
  void fillList();
  void keepSaveName(const QString& text);
  void closeWith(const QString& handOver);
  std::optional<QString> selectedEntry() const;
  QList<QPushButton*> mainButtons() const;

  platform::ReSize* resize_;
  char kind_ = 'G';
};
