// SPDX-License-Identifier: GPL-2.0-or-later
// Dispatches each modal screen to its player by class name.
#include "robot_screens.h"

#include "screen_players.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <map>

namespace robot {

namespace {

using Player = void (*)(QWidget&, PlayContext&);

const std::map<QString, Player>& players() {
  static const std::map<QString, Player> table = {
      {QStringLiteral("Catalog"), playCatalog},   {QStringLiteral("Inventory"), playInventory},
      {QStringLiteral("Weapons"), playWeapons},   {QStringLiteral("Licence"), playLicence},
      {QStringLiteral("Hunttest"), playHunttest}, {QStringLiteral("Hguide"), playHguide},
      {QStringLiteral("Talkform"), playTalkform}, {QStringLiteral("Videoshot"), playVideoshot},
      {QStringLiteral("Shotdata"), playShotdata}, {QStringLiteral("RecordBook"), playRecordBook},
      {QStringLiteral("Trange"), playTrange},     {QStringLiteral("Aviplay"), playAviplay},
      {QStringLiteral("Filer"), playFiler},
  };
  return table;
}

// Keeps the nesting count right however the player leaves.
struct Nesting {
  explicit Nesting(int& depth) : depth_(depth) { ++depth_; }
  ~Nesting() { --depth_; }
  int& depth_;
};

}  // namespace

int RobotScreens::ShowModal(QWidget& screen) {
  const QString name =
      QString::fromLatin1(screen.metaObject()->className()).section(QStringLiteral("::"), -1);
  ++play_.tally.screensShown[name];
  Nesting nesting(depth_);
  QPointer<QWidget> alive(&screen);
  auto* dialog = qobject_cast<QDialog*>(&screen);
  if (dialog) dialog->setResult(0);
  screen.show();
  const auto player = players().find(name);
  if (player == players().end())
    play_.tally.breakInvariant(QStringLiteral("no player for screen ") + name);
  else
    player->second(screen, play_);
  if (alive && alive->isVisible()) {
    play_.tally.breakInvariant(name + QStringLiteral(" stayed open after its way out"));
    alive->close();
    if (alive && alive->isVisible()) alive->hide();
  }
  return alive && dialog ? dialog->result() : 0;
}

}  // namespace robot
