// SPDX-License-Identifier: GPL-2.0-or-later
// Message boxes answered as a careless but not suicidal player would: never quit the
// program, always overwrite a save, take the expansion pack when the hunt asks for it, and
// answer any other question at random.
#pragma once

#include "platform/dialogs.h"
#include "robot_dice.h"
#include "robot_tally.h"

namespace robot {

class RobotDialogs final : public platform::Dialogs {
 public:
  RobotDialogs(Dice& choices, Tally& tally) : choices_(choices), tally_(tally) {}
  platform::Answer MsgBox(const platform::MessageBox& box) override;

  void setExpansionPack(bool on) { expansionPack_ = on; }
  void setRestartWanted(bool on) { restartWanted_ = on; }
  const platform::MessageBox& last() const { return last_; }

 private:
  platform::Answer randomAnswer(platform::Buttons buttons);

  Dice& choices_;
  Tally& tally_;
  platform::MessageBox last_;
  bool expansionPack_ = false;
  bool restartWanted_ = false;
};

}  // namespace robot
