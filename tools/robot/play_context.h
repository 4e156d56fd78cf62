// SPDX-License-Identifier: GPL-2.0-or-later
// What every screen player of the robot shares: its dice, its counters, the clip clock it
// moves by hand, and what it means to do in the main menu when that opens.
#pragma once

#include "robot_dice.h"
#include "robot_tally.h"

#include <QByteArray>
#include <QString>

#include <map>

namespace platform {
class ManualPlaybackClock;
}

namespace robot {

// The robot's errand in the main menu.
enum class MenuErrand { Browse, Save, Load, Restart };

struct PlayContext {
  Dice& choices;
  Tally& tally;
  platform::ManualPlaybackClock& playback;
  MenuErrand errand = MenuErrand::Browse;
  // Saved games as written, by game path; a load must bring back exactly these.
  std::map<QString, QByteArray> saved;
  // Set by the main menu after a load, so that the clock check starts afresh.
  bool loadedGame = false;
};

}  // namespace robot
