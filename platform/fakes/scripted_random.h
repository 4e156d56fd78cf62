// SPDX-License-Identifier: GPL-2.0-or-later
// A random generator that returns a scripted sequence, so a test knows every draw.
#pragma once

#include "platform/random.h"

#include <deque>
#include <initializer_list>

namespace platform {

class ScriptedRandom final : public Random {
 public:
  ScriptedRandom() = default;
  ScriptedRandom(std::initializer_list<double> values) : values_(values) {}

  void push(double value) { values_.push_back(value); }
  void Randomize() override { ++randomizeCalls_; }
  // Throws std::logic_error when the script has run out: a test that draws more than it
  // scripted is wrong.
  double Rnd() override;

  int randomizeCalls() const { return randomizeCalls_; }
  int draws() const { return draws_; }
  size_t remaining() const { return values_.size(); }

 private:
  std::deque<double> values_;
  int randomizeCalls_ = 0;
  int draws_ = 0;
};

}  // namespace platform
