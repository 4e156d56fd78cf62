// SPDX-License-Identifier: GPL-2.0-or-later
// What a loaded save may hold: a value outside its field's range (world, stand, place type,
// weapon, slot, tag code, the names that become file names) is replaced by the new game's
// value for that field, so a damaged file never leaves the hunter without buttons or in a
// black view.
#pragma once

#include "shell/game_state.h"

#include <QStringList>

// The global state as a new game starts: `data\newgam.csv` of the media tree read over the
// built-in defaults. The global state is left as it was.
GameState newGameDefaults();

// Replaces every field of `Game` named in `read` (as the save file layout names them) that
// lies outside its range by the same field of `defaults`; returns the names of the fields
// replaced. Fields not read are left alone, whatever they hold.
QStringList replaceOutOfRange(const QStringList& read, const GameState& defaults);
