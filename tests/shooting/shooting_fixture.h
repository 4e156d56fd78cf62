// SPDX-License-Identifier: GPL-2.0-or-later
// A fresh global state for each shooting test: a media drive and a save folder, scripted
// dialogs and random draws, fake media windows, a hand-driven clip clock, no sound device.
#pragma once

#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/memory_settings.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/fakes/scripted_random.h"
#include "platform/media/audio_output.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "shell/screen_instance.h"
#include "shooting/hit_zone_file.h"
#include "support/temp_drive.h"

#include <gtest/gtest.h>

class ShootingFixture : public ::testing::Test {
 protected:
  ShootingFixture() {
    Game = GameState{};
    Game.MediaRoot = QStringLiteral("D:\\");
    Game.Fileloc = QStringLiteral("C:\\saves\\");
    Game.ScreenWidth = 1024 * 15;
    Game.ScreenHeight = 768 * 15;
    LastHitZoneRecord = {};
  }
  ~ShootingFixture() override {
    // The hunting screen's stand-in window goes with the screens, before the fakes do.
    unloadAllScreens();
    Game = GameState{};
  }

  // The window the scenes play their sounds through.
  platform::FakeMediaWindow& huntWindow() {
    return static_cast<platform::FakeMediaWindow&>(huntMediaWindow());
  }

  testing_support::TempDrive media{u'D'};
  testing_support::TempDrive saves{u'C'};
  platform::ScopedService<platform::Dialogs, platform::ScriptedDialogs> dialogs;
  platform::ScopedService<platform::Random, platform::ScriptedRandom> random;
  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows;
  platform::ScopedService<platform::PlaybackClock, platform::ManualPlaybackClock> clock;
  platform::ScopedService<platform::AudioDevice, platform::SilentAudioDevice> silence;
  platform::ScopedService<platform::SettingsStore, platform::MemorySettings> settings;
};
