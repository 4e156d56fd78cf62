// SPDX-License-Identifier: GPL-2.0-or-later
// Where the sample world is: the build's own when the game runs from its build folder, the
// installed one, found through the XDG data folders, otherwise.
#pragma once

#include <QString>
#include <QStringList>

// The world's folder below a data folder (/usr/share, ~/.local/share) of an installed game.
inline const QString kInstalledWorld = QStringLiteral("games/hunt/world");

// The first world among: the one beside the build's executable (`executableFolder`/../world),
// those in `dataFolders`, and the one of an install whose data folder was left out of them
// (`executableFolder`/../share). The build's place when there is none, so that the game's own
// message about missing media names a folder.
QString findWorld(const QString& executableFolder, const QStringList& dataFolders);

// The same for this program and this user's data folders.
QString findWorld();

// Points the drive map's media drive at the world found, so that a world that moved (a build
// folder left for an install) is followed.
void mapMediaDriveTo(const QString& world);
