// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/screen_instance.h"

#include <utility>
#include <vector>

namespace {

std::vector<std::function<void()>>& unloaders() {
  static std::vector<std::function<void()>> all;
  return all;
}

}  // namespace

void registerScreenUnloader(std::function<void()> unload) {
  unloaders().push_back(std::move(unload));
}

void unloadAllScreens() {
  // Unloading one screen may load or unload another, so work on a copy.
  const auto all = std::exchange(unloaders(), {});
  for (auto it = all.rbegin(); it != all.rend(); ++it) (*it)();
}
