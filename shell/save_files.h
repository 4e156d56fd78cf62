// SPDX-License-Identifier: GPL-2.0-or-later
// Saved games and equipment sets in the save folder: naming, listing, writing, reading, and
// the save, load and delete steps of the main menu with their messages.
#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>
#include <optional>

// `Fileloc` + name + `SaveExt` + kind letter.
QString saveFilePath(const QString& name, char kind);
// The host file of save `name` inside the save folder; nothing when `name` is not a save
// name, so no save, load or delete can reach outside that folder.
std::optional<std::filesystem::path> saveFileTarget(const QString& name, char kind);

// Names of the saves of one kind in the active world group, without their extensions,
// upper case, in the order the folder gives them. A file whose name is no save name is left
// out, never opened.
QStringList listSaveNames(char kind);

// Writes the global state as a file of the given kind. The old file stays whole until the
// new one is complete on disk. Returns false, writing nothing, when that fails.
bool writeSaveFile(const QString& path, char kind);

// Reads a save file into the global state. The leading fields are read whatever the kind;
// the game fields only for a game file. A missing, short or damaged file leaves every field
// read so far changed and the rest as it was.
void ReadSaveFile(const QString& path, char kind);

// Reads a quick-hunt outfit: the carried, owned and tag arrays and then the money, in the
// form of a save file's first fields. A missing or short file keeps what was read.
void ReadQuickHuntOutfit(const QString& path);

// The menu's save confirmation with the name box's text, made a save name first; only an
// empty name is refused. Asks before overwriting and reports the result in boxes; a failed
// write stays silent on screen and is logged.
enum class SaveOutcome { NeedName, Declined, Saved, Failed };
SaveOutcome saveNamedFile(const QString& text, char kind);

// The menu's load confirmation with the list's selected entry (none when nothing is
// selected). Values outside their fields' ranges become the new game's. On success
// `ScreenState` becomes "LOADED".
enum class LoadOutcome { NothingSelected, EmptySelection, Loaded };
LoadOutcome loadNamedFile(const std::optional<QString>& selected, char kind);

// The menu's delete button. Returns true when the file was deleted after the player agreed.
bool deleteNamedFile(const std::optional<QString>& selected, char kind);
