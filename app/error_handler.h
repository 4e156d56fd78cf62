// SPDX-License-Identifier: GPL-2.0-or-later
// The game's application object: whatever an event handler throws is shown to the player
// and the game goes on.
#pragma once

#include <QApplication>

class GameApplication final : public QApplication {
  Q_OBJECT
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;
};
