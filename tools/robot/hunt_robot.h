// SPDX-License-Identifier: GPL-2.0-or-later
// The robot player: starts hunts through the start screen and the postcard, then plays each
// on the hunting screen step by step through its handlers, as a player's clicks would, and
// checks the game's invariants after every step. Everything runs offscreen and silent, on
// fake clocks, with seeded dice.
#pragma once

#include "invariants.h"
#include "platform/fakes/fake_clock.h"
#include "platform/fakes/fake_system_config.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/memory_settings.h"
#include "platform/fakes/panorama_fake_factory.h"
#include "platform/fakes/recording_printer.h"
#include "platform/fakes/recording_shell.h"
#include "platform/media/audio_output.h"
#include "play_context.h"
#include "robot_dialogs.h"
#include "robot_screens.h"

#include <QObject>
#include <QTemporaryDir>

#include <cstdint>
#include <filesystem>
#include <map>

class surround;

namespace robot {

struct RobotOptions {
  int hunts = 20;
  uint64_t seed = 1;
  std::filesystem::path world;  // the generated sample world
  int stepsPerHunt = 6000;      // a hunt still going after this many steps is given up
  bool trace = false;           // print every step
};

// Keeps the game's own timers from firing: the robot decides when a tick comes.
class TimerGate final : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

class HuntRobot {
 public:
  explicit HuntRobot(RobotOptions options);
  ~HuntRobot();
  HuntRobot(const HuntRobot&) = delete;
  HuntRobot& operator=(const HuntRobot&) = delete;

  // Plays the hunts asked for and returns the counters.
  const Tally& run();
  const Tally& tally() const { return tally_; }

 private:
  bool startHunt();
  bool setUpPostcard();
  void readCatalog();
  void playHunt();
  void step(surround& hunting);
  void fieldStep(surround& hunting);
  void placeStep(surround& hunting);
  bool pressButton(surround& hunting);
  // Any hotspot, or one whose name starts with `kind` when the view has such.
  void useHotspot(surround& hunting, bool click, QChar kind = {});
  void openMenu(surround& hunting);
  void checkAfterStep(const QString& action);
  void endHunt(const QString& how);
  QStringList hotspotsOf(const QString& gamePath);

  RobotOptions options_;
  Tally tally_;
  Dice choices_;
  QTemporaryDir saveFolder_;
  platform::ScopedService<platform::Random, Dice> random_;
  platform::ScopedService<platform::Clock, platform::FakeClock> clock_;
  platform::ScopedService<platform::PlaybackClock, platform::ManualPlaybackClock> playback_;
  platform::ScopedService<platform::AudioDevice, platform::SilentAudioDevice> silence_;
  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows_;
  platform::ScopedService<platform::PanoramaFactory, platform::FakePanoramaFactory> panoramas_;
  platform::ScopedService<platform::SettingsStore, platform::MemorySettings> settings_;
  platform::ScopedService<platform::SystemConfig, platform::FakeSystemConfig> system_;
  platform::ScopedService<platform::Printer, platform::RecordingPrinter> printer_;
  platform::ScopedService<platform::ShellOpener, platform::RecordingShell> shell_;
  PlayContext play_;
  platform::ScopedService<platform::Dialogs, RobotDialogs> dialogs_;
  platform::ScopedService<platform::ScreensHost, RobotScreens> screens_;
  TimerGate gate_;
  Invariants invariants_;
  std::map<QString, QStringList> hotspots_;  // by panorama path
  QString action_;
  long huntStep_ = 0;
  bool huntOver_ = false;
  bool restartAsked_ = false;
};

}  // namespace robot
