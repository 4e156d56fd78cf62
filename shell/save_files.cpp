// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/save_files.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "shell/file_names.h"
#include "shell/game_state.h"
#include "shell/logging.h"
#include "shell/save_file_layout.h"
#include "shell/save_file_ranges.h"

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

bool writeSaveFileAt(const std::filesystem::path& file, char kind) {
  rt::PrintFile out;
  for (const SaveField& field : saveFileLayout())
    if (kind == kGameKind || !field.gameOnly) field.write(out);
  try {
    out.commit(file);
  } catch (const std::exception& e) {
    qCWarning(shellLog) << "the save was not written:" << e.what();
    return false;
  }
  return true;
}

// Returns the names of the fields read whole.
QStringList readSaveFileAt(const std::filesystem::path& file, char kind) {
  QStringList read;
  try {
    rt::ListInput in(file);
    for (const SaveField& field : saveFileLayout()) {
      if (kind != kGameKind && field.gameOnly) continue;
      field.read(in);
      read << QLatin1String(field.name);
    }
  } catch (const std::exception& e) {
    // Keep what was read.
    qCInfo(shellLog) << "reading" << file.c_str() << "stopped:" << e.what();
  }
  return read;
}

// Loads a listed save and mends what a damaged file would break.
void loadSaveFile(const QString& name, char kind) {
  const auto file = saveFileTarget(name, kind);
  if (!file) return;
  const QStringList read = readSaveFileAt(*file, kind);
  const QStringList replaced = replaceOutOfRange(read, newGameDefaults());
  if (!replaced.isEmpty())
    qCWarning(shellLog) << "save" << name << "held values out of range, new-game values used for" << replaced;
}

}  // namespace

QString saveFilePath(const QString& name, char kind) {
  return Game.Fileloc + name + extension(kind);
}

std::optional<std::filesystem::path> saveFileTarget(const QString& name, char kind) {
  if (!isSaveName(name)) {
    qCWarning(shellLog) << "refused the save name" << name;
    return std::nullopt;
  }
  return platform::files().resolveIn(Game.Fileloc, name + extension(kind));
}

QStringList listSaveNames(char kind) {
  QStringList names;
  const QString ext = extension(kind).toUpper();
  for (const QString& file : platform::files().list(Game.Fileloc + u'*' + ext)) {
    const QString upper = file.toUpper();
    const QString name = upper.left(upper.indexOf(ext));
    if (name + ext == upper && isSaveName(name) && platform::files().isPlainFileName(file))
      names << name;
    else
      qCInfo(shellLog) << "left out of the list:" << file;
  }
  return names;
}

bool writeSaveFile(const QString& path, char kind) {
  return writeSaveFileAt(platform::files().resolve(path), kind);
}

void ReadSaveFile(const QString& path, char kind) {
  readSaveFileAt(platform::files().resolve(path), kind);
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

SaveOutcome saveNamedFile(const QString& text, char kind) {
  const QString name = saveNameFrom(text);
  if (name.isEmpty()) {
    platform::MsgBox(QStringLiteral("You must enter a Save name"), Buttons::Ok, Icon::None,
                     QStringLiteral("Enter a Save Name"));
    return SaveOutcome::NeedName;
  }
  const auto file = saveFileTarget(name, kind);
  if (!file) return SaveOutcome::Failed;
  std::error_code ec;
  if (std::filesystem::is_regular_file(*file, ec) &&
      platform::MsgBox(QStringLiteral("Save game Already Exists.\n\rOverwrite game?"), Buttons::YesNo,
                       Icon::None, QStringLiteral("Save game exists")) != Answer::Yes)
    return SaveOutcome::Declined;
  if (!writeSaveFileAt(*file, kind)) return SaveOutcome::Failed;
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
  loadSaveFile(*selected, kind);
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
  // A name the list could not show is never asked about, nor deleted.
  const auto file = saveFileTarget(*selected, kind);
  if (!file) return false;
  if (platform::MsgBox(QStringLiteral("Delete save game ") + *selected + u'?', Buttons::OkCancel,
                       Icon::Exclamation, QStringLiteral("Delete save game")) != Answer::Ok)
    return false;
  std::error_code ec;
  return std::filesystem::remove(*file, ec);
}
