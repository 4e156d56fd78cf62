// SPDX-License-Identifier: GPL-2.0-or-later
// Each screen exists once: created on first use, reached through its single instance by the
// screens that need it, and unloaded when done.
#pragma once

#include <functional>
#include <memory>

// Unloads every screen still loaded; main() calls it while the application still exists.
void unloadAllScreens();
void registerScreenUnloader(std::function<void()> unload);

template <class Screen>
class ScreenInstance {
 public:
  static Screen& get() {
    auto& current = slot();
    if (!current) {
      current = std::make_unique<Screen>();
      registerScreenUnloader(&ScreenInstance::unload);
    }
    return *current;
  }
  static bool exists() { return slot() != nullptr; }
  static void unload() { slot().reset(); }

 private:
  static std::unique_ptr<Screen>& slot() {
    static std::unique_ptr<Screen> instance;
    return instance;
  }
};
