// SPDX-License-Identifier: GPL-2.0-or-later
// A fresh global state, a media drive and a save folder for each shell test, with scripted
// dialogs so that every message box is recorded.
#pragma once

#include "platform/fakes/scripted_dialogs.h"
#include "shell/game_state.h"
#include "support/temp_drive.h"

#include <gtest/gtest.h>

class GameFixture : public ::testing::Test {
 protected:
  GameFixture() {
    Game = GameState{};
    Game.MediaRoot = QStringLiteral("D:\\");
    Game.Fileloc = QStringLiteral("C:\\saves\\");
    saves.write("saves/.keep", "");
  }
  ~GameFixture() override { Game = GameState{}; }

  testing_support::TempDrive media{u'D'};
  testing_support::TempDrive saves{u'C'};
  platform::ScopedService<platform::Dialogs, platform::ScriptedDialogs> dialogs;
};
