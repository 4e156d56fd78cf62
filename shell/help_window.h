// SPDX-License-Identifier: GPL-2.0-or-later
// The game's help pages in a window of their own, opened by F1 from any screen.
#pragma once

#include <QDialog>

class QTextBrowser;

class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  HelpWindow();
  // Shows `HelpFile`; a missing file shows a short note instead of an empty window.
  void showHelp();
  QString shownText() const;

 private:
  QTextBrowser* browser_;
};

// Opens the help window over whichever screen is active.
void OpenHelp();
// Makes F1 open the help window in every screen of the application.
void installHelpKey();
