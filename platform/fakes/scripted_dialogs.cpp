// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/fakes/scripted_dialogs.h"

#include <stdexcept>

namespace platform {

Answer ScriptedDialogs::MsgBox(const MessageBox& box) {
  shown_.push_back(box);
  if (box.buttons == Buttons::Ok) return Answer::Ok;
  if (answers_.empty())
    throw std::logic_error("ScriptedDialogs: unscripted question: " + box.text.toStdString());
  const Answer next = answers_.front();
  answers_.pop_front();
  return next;
}

}  // namespace platform
