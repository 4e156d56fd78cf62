// SPDX-License-Identifier: GPL-2.0-or-later
// The time of day as the game reads it (Now), for busy waits and reseeding.
#pragma once

#include "platform/datetime.h"
#include "platform/service.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual rt::DateTime Now() = 0;
};

class SystemClock final : public Clock {
 public:
  rt::DateTime Now() override;
};

template <>
std::unique_ptr<Clock> Service<Clock>::makeDefault();

inline Clock& clock() {
  return Service<Clock>::get();
}

}  // namespace platform
