// SPDX-License-Identifier: GPL-2.0-or-later
// The uniform random generator: Randomize reseeds it from the clock, Rnd draws from [0, 1).
#pragma once

#include "platform/service.h"

#include <cstdint>
#include <random>

namespace platform {

class Random {
 public:
  virtual ~Random() = default;
  virtual void Randomize() = 0;
  virtual double Rnd() = 0;
};

// The real generator; a fixed seed makes a run repeatable.
class SeededRandom final : public Random {
 public:
  explicit SeededRandom(uint64_t seed = 1) : engine_(seed) {}
  void Randomize() override;
  double Rnd() override;

 private:
  std::mt19937_64 engine_;
};

template <>
std::unique_ptr<Random> Service<Random>::makeDefault();

inline Random& random() {
  return Service<Random>::get();
}
inline double Rnd() {
  return random().Rnd();
}

}  // namespace platform
