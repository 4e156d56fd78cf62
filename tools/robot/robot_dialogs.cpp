// SPDX-License-Identifier: GPL-2.0-or-later
// How the robot answers message boxes.
#include "robot_dialogs.h"

namespace robot {

using platform::Answer;
using platform::Buttons;

Answer RobotDialogs::randomAnswer(Buttons buttons) {
  const bool first = choices_.chance(0.5);
  switch (buttons) {
    case Buttons::Ok: return Answer::Ok;
    case Buttons::OkCancel: return first ? Answer::Ok : Answer::Cancel;
    case Buttons::YesNo: return first ? Answer::Yes : Answer::No;
  }
  return Answer::Ok;
}

Answer RobotDialogs::MsgBox(const platform::MessageBox& box) {
  ++tally_.messageBoxes;
  last_ = box;
  if (box.buttons == Buttons::Ok) return Answer::Ok;
  // The process must outlive every hunt; a restart only when the robot asked for one.
  if (box.title == u"Quit Program" || box.title == u"Quit Game") return Answer::No;
  if (box.title == u"Restart Game") return restartWanted_ ? Answer::Yes : Answer::No;
  if (box.title == u"Play Expansion Pack?") return expansionPack_ ? Answer::Yes : Answer::No;
  if (box.title == u"Save game exists") return Answer::Yes;
  return randomAnswer(box.buttons);
}

}  // namespace robot
