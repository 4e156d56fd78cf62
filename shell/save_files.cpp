// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/save_files.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "shell/game_state.h"
#include "shell/save_file_layout.h"

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

QString kindWord(char kind) {
  return kind == kGameKind ? QStringLiteral("Game") : QStringLiteral("Equipment");
}

QString extension(char kind) {
  return Game.SaveExt + QLatin1Char(kind);
}

}  // namespace

QString saveFilePath(const QString& name, char kind) {
  return Game.Fileloc + name + extension(kind);
}

QStringList listSaveNames(char kind) {
  QStringList names;
  const QString ext = extension(kind).toUpper();
  for (const QString& file : platform::files().list(Game.Fileloc + u'*' + ext)) {
    const QString upper = file.toUpper();
    names << upper.left(upper.indexOf(ext));
  }
  return names;
}

bool writeSaveFile(const QString& path, char kind) {
  rt::PrintFile out;
  for (const SaveField& field : saveFileLayout())
    if (kind == kGameKind || !field.gameOnly) field.write(out);
  try {
    out.commit(platform::files().resolve(path));
  } catch (const std::exception&) {
    return false;
  }
  return true;
}

void ReadSaveFile(const QString& path, char kind) {
  try {
    rt::ListInput in(platform::files().resolve(path));
    for (const SaveField& field : saveFileLayout())
      if (kind == kGameKind || !field.gameOnly) field.read(in);
  } catch (const std::exception&) {
    // Keep what was read.
  }
}

void ReadQuickHuntOutfit(const QString& path) {
  static const QStringList kOutfit{"EquipSlots", "OwnedItems", "TagsOwned", "Money"};
  try {
    rt::ListInput in(platform::files().resolve(path));
    for (const QString& name : kOutfit)
      for (const SaveField& field : saveFileLayout())
        if (name == QLatin1String(field.name)) field.read(in);
  } catch (const std::exception&) {
    // Keep what was read.
  }
}

SaveOutcome saveNamedFile(const QString& name, char kind) {
  if (name.trimmed().isEmpty()) {
    platform::MsgBox(QStringLiteral("You must enter a Save name"), Buttons::Ok, Icon::None,
                     QStringLiteral("Enter a Save Name"));
    return SaveOutcome::NeedName;
  }
  const QString path = saveFilePath(name, kind);
  if (platform::files().exists(path) &&
      platform::MsgBox(QStringLiteral("Save game Already Exists.\n\rOverwrite game?"), Buttons::YesNo,
                       Icon::None, QStringLiteral("Save game exists")) != Answer::Yes)
    return SaveOutcome::Declined;
  if (!writeSaveFile(path, kind)) return SaveOutcome::Failed;
  platform::MsgBox(kindWord(kind) + QStringLiteral(" Saved."), Buttons::Ok, Icon::None,
                   QStringLiteral("SAVED"));
  return SaveOutcome::Saved;
}

LoadOutcome loadNamedFile(const std::optional<QString>& selected, char kind) {
  if (!selected) {
    platform::MsgBox(QStringLiteral("No Save Game Selected."), Buttons::Ok, Icon::None,
                     QStringLiteral("Select Save Game"));
    return LoadOutcome::NothingSelected;
  }
  if (selected->trimmed().isEmpty()) {
    platform::MsgBox(QStringLiteral("You must select a save game."), Buttons::Ok, Icon::None,
                     QStringLiteral("Select a save game"));
    return LoadOutcome::EmptySelection;
  }
  ReadSaveFile(saveFilePath(*selected, kind), kind);
  platform::MsgBox(kindWord(kind) + QStringLiteral(" Loaded."), Buttons::Ok, Icon::None,
                   QStringLiteral("LOADED"));
  Game.ScreenState = QStringLiteral("LOADED");
  return LoadOutcome::Loaded;
}

bool deleteNamedFile(const std::optional<QString>& selected, char kind) {
  if (!selected) {
    platform::MsgBox(QStringLiteral("You Must Select a savegame to Delete."), Buttons::Ok, Icon::Exclamation,
                     QStringLiteral("Select save game"));
    return false;
  }
  if (platform::MsgBox(QStringLiteral("Delete save game ") + *selected + u'?', Buttons::OkCancel,
                       Icon::Exclamation, QStringLiteral("Delete save game")) != Answer::Ok)
    return false;
  return platform::files().remove(saveFilePath(*selected, kind));
}
