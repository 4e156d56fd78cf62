// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/fakes/scripted_random.h"

#include <stdexcept>

namespace platform {

double ScriptedRandom::Rnd() {
  if (values_.empty()) throw std::logic_error("ScriptedRandom: no scripted value left");
  const double value = values_.front();
  values_.pop_front();
  ++draws_;
  return value;
}

}  // namespace platform
