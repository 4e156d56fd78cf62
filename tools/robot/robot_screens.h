// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's screens host: shows each modal screen offscreen, lets that screen's player act
// on it, and notes a screen that its own handlers did not close.
#pragma once

#include "platform/screens_host.h"
#include "play_context.h"

namespace robot {

class RobotScreens final : public platform::ScreensHost {
 public:
  explicit RobotScreens(PlayContext& play) : play_(play) {}
  int ShowModal(QWidget& screen) override;
  int depth() const { return depth_; }

 private:
  PlayContext& play_;
  int depth_ = 0;
};

}  // namespace robot
