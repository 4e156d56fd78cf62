// SPDX-License-Identifier: GPL-2.0-or-later
// A clock that moves only when read: each reading advances it by a fixed step, so busy
// waits end after a known number of readings.
#pragma once

#include "platform/clock.h"

namespace platform {

class FakeClock final : public Clock {
 public:
  explicit FakeClock(rt::DateTime start = rt::dateSerial(1997, 12, 22) + 0.25, double stepSeconds = 0.1)
      : now_(start), step_(stepSeconds / 86400.0) {}

  rt::DateTime Now() override {
    ++readings_;
    const rt::DateTime reading = now_;
    now_ += step_;
    return reading;
  }
  void set(rt::DateTime value) { now_ = value; }
  int readings() const { return readings_; }

 private:
  rt::DateTime now_;
  double step_;
  int readings_ = 0;
};

}  // namespace platform
