// SPDX-License-Identifier: GPL-2.0-or-later
// A small seeded generator for painting, so every run draws the same trees, grass and clouds.
#pragma once

#include <QString>

#include <cstdint>

namespace worldgen {

class StableRandom {
 public:
  explicit StableRandom(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ull + 0x2545F4914F6CDD1Dull) {}
  explicit StableRandom(const QString& key) : StableRandom(hashOf(key)) {}

  uint64_t next() {
    state_ ^= state_ >> 12;
    state_ ^= state_ << 25;
    state_ ^= state_ >> 27;
    return state_ * 0x2545F4914F6CDD1Dull;
  }
  // Uniform in [0, 1).
  double unit() { return double(next() >> 11) / double(1ull << 53); }
  double between(double low, double high) { return low + (high - low) * unit(); }
  int below(int n) { return int(next() % uint64_t(n)); }

  static uint64_t hashOf(const QString& key) {
    uint64_t h = 1469598103934665603ull;
    for (const QChar c : key) h = (h ^ c.unicode()) * 1099511628211ull;
    return h;
  }

 private:
  uint64_t state_;
};

}  // namespace worldgen
