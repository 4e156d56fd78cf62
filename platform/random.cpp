// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/random.h"

#include <chrono>

namespace platform {

void SeededRandom::Randomize() {
  engine_.seed(static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
}

double SeededRandom::Rnd() {
  // 53 random bits make every double of [0, 1) reachable and 1 impossible.
  return static_cast<double>(engine_() >> 11) * 0x1.0p-53;
}

template <>
std::unique_ptr<Random> Service<Random>::makeDefault() {
  auto made = std::make_unique<SeededRandom>();
  made->Randomize();
  return made;
}

}  // namespace platform
