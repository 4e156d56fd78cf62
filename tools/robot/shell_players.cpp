// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's play on the film player and the main menu: films watched to the end or cut
// short, and the menu's errands of saving, loading, pausing and restarting, with the check
// that a loaded game is the game that was saved.
#include "platform/fakes/media_fake_window.h"
#include "platform/files.h"
#include "platform/media/media_window.h"
#include "screen_players.h"
#include "shell/aviplay.h"
#include "shell/filer.h"
#include "shell/game_state.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"

#include <QFile>
#include <QLineEdit>
#include <QListWidget>

#include <algorithm>
#include <iterator>
#include <optional>

namespace robot {

namespace {

const QStringList kSaveNames = {QStringLiteral("ROBOT A"), QStringLiteral("ROBOT B"),
                                QStringLiteral("ROBOT C")};

QByteArray fileBytes(const QString& gamePath) {
  QFile file(QString::fromStdString(platform::files().resolve(gamePath).string()));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A save file's lines without their line ends.
QList<QByteArray> linesOf(const QByteArray& bytes) {
  QList<QByteArray> lines = bytes.split('\n');
  for (QByteArray& line : lines) line = line.trimmed();
  return lines;
}

// The first line where two save files part, numbered from 1, as "line n: saved / again".
QString firstDifference(const QList<QByteArray>& saved, const QList<QByteArray>& again) {
  for (qsizetype i = 0; i < std::max(saved.size(), again.size()); ++i) {
    const QByteArray one = i < saved.size() ? saved[i] : QByteArray("(end)");
    const QByteArray two = i < again.size() ? again[i] : QByteArray("(end)");
    if (one != two) return QStringLiteral("line %1: %2 / %3").arg(i + 1).arg(one, two);
  }
  return {};
}

void saveGame(Filer& menu, PlayContext& play) {
  const QString name = kSaveNames[play.choices.below(int(kSaveNames.size()))];
  menu.Savegamebut_Click();
  menu.Usename->setText(name);
  menu.Saveok_Click();
  const QString path = saveFilePath(name, kGameKind);
  const QByteArray written = fileBytes(path);
  if (written.isEmpty()) {
    play.tally.breakInvariant(QStringLiteral("save %1 wrote nothing").arg(name));
    return;
  }
  play.saved[path] = written;
  ++play.tally.saves;
}

// A loaded game written out again must give back the very bytes that were saved.
void checkLoaded(const QString& path, PlayContext& play) {
  const QString copy = Game.Fileloc + QStringLiteral("robot-check.tmp");
  if (!writeSaveFile(copy, kGameKind)) {
    play.tally.breakInvariant(QStringLiteral("could not write the loaded game %1 again").arg(path));
    return;
  }
  QList<QByteArray> again = linesOf(fileBytes(copy));
  platform::files().remove(copy);
  const QList<QByteArray> saved = linesOf(play.saved[path]);
  const QString difference = firstDifference(saved, again);
  if (!difference.isEmpty())
    play.tally.breakInvariant(
        QStringLiteral("loaded game %1 differs from the saved one: %2").arg(path, difference));
}

// A game this run saved in the group of worlds now played; the menu lists no other.
std::optional<QString> savedName(PlayContext& play) {
  QStringList names;
  for (const QString& name : kSaveNames)
    if (play.saved.contains(saveFilePath(name, kGameKind))) names << name;
  if (names.isEmpty()) return std::nullopt;
  return names[play.choices.below(int(names.size()))];
}

void loadGame(Filer& menu, PlayContext& play) {
  const auto name = savedName(play);
  if (!name) return;
  menu.Loadgamebut_Click();
  const auto rows = menu.List1->findItems(*name, Qt::MatchFixedString);
  if (rows.isEmpty()) {
    play.tally.breakInvariant(QStringLiteral("saved game %1 is not listed").arg(*name));
    return;
  }
  menu.List1->setCurrentItem(rows.front());
  rows.front()->setSelected(true);
  menu.List1_Click();
  menu.LoadOK_Click();
  if (Game.ScreenState != u"LOADED") return;
  ++play.tally.loads;
  play.loadedGame = true;
  checkLoaded(saveFilePath(*name, kGameKind), play);
}

}  // namespace

void playAviplay(QWidget& screen, PlayContext& play) {
  auto& film = static_cast<Aviplay&>(screen);
  auto* window = qobject_cast<platform::FakeMediaWindow*>(film.MCIWnd1);
  if (window && play.choices.chance(0.7)) {
    // The film runs to its end: the device pauses once while it opens, then stops.
    window->raiseModeChange(platform::kModePaused);
    window->raiseModeChange(platform::kModeStopped);
  }
  if (film.isVisible()) film.Closebut_Click();
}

void playFiler(QWidget& screen, PlayContext& play) {
  auto& menu = static_cast<Filer&>(screen);
  switch (play.errand) {
    case MenuErrand::Save: saveGame(menu, play); break;
    case MenuErrand::Load: loadGame(menu, play); break;
    case MenuErrand::Restart: menu.Resgamebut_Click(); break;
    case MenuErrand::Browse:
      if (play.choices.chance(0.5)) menu.Pausegame_Click();
      if (play.choices.chance(0.3)) menu.Aboutbox_Click();
      if (play.choices.chance(0.2)) menu.Exitgamebut_Click();  // answered No
      break;
  }
  play.errand = MenuErrand::Browse;
  if (menu.isVisible()) menu.Returnbut_Click();
}

}  // namespace robot
