// SPDX-License-Identifier: GPL-2.0-or-later
// Message boxes answered from a script; every box shown is recorded for the test to read.
#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <vector>

namespace platform {

class ScriptedDialogs final : public Dialogs {
 public:
  // A box with only OK is answered OK and takes no scripted answer; a question takes the next scripted
  // answer and throws std::logic_error when there is none.
  Answer MsgBox(const MessageBox& box) override;

  void answer(Answer next) { answers_.push_back(next); }
  const std::vector<MessageBox>& shown() const { return shown_; }
  const MessageBox& last() const { return shown_.back(); }
  void clear() { shown_.clear(); }

 private:
  std::deque<Answer> answers_;
  std::vector<MessageBox> shown_;
};

}  // namespace platform
