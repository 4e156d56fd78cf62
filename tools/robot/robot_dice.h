// SPDX-License-Identifier: GPL-2.0-or-later
// Seeded dice for the robot player: one stream for the game's own draws, one for the robot's
// choices. Reseeding from the clock is ignored so that a seed replays the same run.
#pragma once

#include "platform/random.h"

#include <cstdint>
#include <random>

namespace robot {

class Dice final : public platform::Random {
 public:
  explicit Dice(uint64_t seed) : engine_(seed) {}
  void Randomize() override {}
  double Rnd() override { return static_cast<double>(engine_() >> 11) * 0x1.0p-53; }

  // A whole number from 0 to count - 1.
  int below(int count) { return count <= 0 ? 0 : int(engine_() % uint64_t(count)); }
  bool chance(double probability) { return Rnd() < probability; }

 private:
  std::mt19937_64 engine_;
};

}  // namespace robot
