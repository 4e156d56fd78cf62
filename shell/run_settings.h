// SPDX-License-Identifier: GPL-2.0-or-later
// The stored settings the game starts from: where the media and the saves are, the screen
// size, and the intro switches; and the drive map that says which folders the game's drive
// letters stand for.
#pragma once

#include <QString>

// On a fresh install: D: is the bundled sample world, C: a folder of the user's own, and the
// saves go into the user's data folder. Settings already stored are kept.
void ensureInstallDefaults(const QString& worldFolder, const QString& userFolder);

// Maps every drive letter stored in the drive map section onto its folder.
void mapStoredDrives();

// The stored switches and sizes, as read at start-up.
struct RunSettings {
  bool skipIntro = false;         // "VIDON" other than 0
  bool naturalSizeIntro = false;  // "SMAVI" other than 0
  int storedHeight = 0;           // "SH", twips; 0 = the screen's own
};

// Reads "VIDON", "SMAVI", "SH", "SW", "Fileloc" and "CDloc" into the shared state
// (`VideosOn`, `ScreenWidth`, `Fileloc`, `MediaRoot`) and returns the rest.
RunSettings loadRunSettings();
