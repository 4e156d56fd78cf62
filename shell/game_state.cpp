// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/game_state.h"

GameState Game;
