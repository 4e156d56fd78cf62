// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/optics_levels.h"

#include "platform/runtime.h"

#include <array>

namespace {

constexpr std::array<double, 6> kZoom = {1.5, 1.2, 2.2, 2.3, 1.1, 1.1};

}  // namespace

double opticsZoom(int level) {
  return level >= 1 && level <= int(kZoom.size()) ? kZoom[size_t(level - 1)] : 1.0;
}

bool isRangefinder(int level) {
  return level > 4;
}

int opticsBonusOf(int level) {
  return int(rt::Int(opticsZoom(level) / 2));
}
