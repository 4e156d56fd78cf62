// SPDX-License-Identifier: GPL-2.0-or-later
// The names a player gives that end up in files: save names, whichever way they arrive
// (typed, pasted, dropped or filled in), and the hunter's name, which a save file carries.
#pragma once

#include <QString>

inline constexpr int kMaxSaveNameLength = 128;
inline constexpr int kMaxHunterNameLength = 128;

// Upper-case letters, digits and blanks only: lower-case letters are raised, everything
// else is dropped, and the rest cut to the longest save name.
QString saveNameFrom(const QString& text);
// True when `name` is already a save name: non-empty, of that alphabet, not too long.
bool isSaveName(const QString& name);

// The hunter's name as a save file can read it back: no comma or double quote (list input
// would stop there) and no control character (a line end would end the field), cut to the
// longest name. Blanks are kept as typed.
QString hunterNameFrom(const QString& text);
