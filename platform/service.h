// SPDX-License-Identifier: GPL-2.0-or-later
// One replaceable instance per platform service. The game calls Service<T>::get(); the real
// implementation is made on first use, and tests or the robot player put a double in its place.
#pragma once

#include <memory>
#include <utility>

namespace platform {

template <class Interface>
class Service {
 public:
  static Interface& get() {
    auto& current = slot();
    if (!current) current = makeDefault();
    return *current;
  }

  // Puts `next` in place and hands back what was there, so a caller can restore it.
  static std::unique_ptr<Interface> replace(std::unique_ptr<Interface> next) {
    std::swap(slot(), next);
    return next;
  }

 private:
  static std::unique_ptr<Interface>& slot() {
    static std::unique_ptr<Interface> instance;
    return instance;
  }
  // Each service's own .cpp file defines this specialisation.
  static std::unique_ptr<Interface> makeDefault();
};

// Installs a double for the lifetime of a scope and restores the previous instance after.
template <class Interface, class Double = Interface>
class ScopedService {
 public:
  template <class... Args>
  explicit ScopedService(Args&&... args) {
    auto made = std::make_unique<Double>(std::forward<Args>(args)...);
    double_ = made.get();
    previous_ = Service<Interface>::replace(std::move(made));
  }
  ~ScopedService() { Service<Interface>::replace(std::move(previous_)); }
  ScopedService(const ScopedService&) = delete;
  ScopedService& operator=(const ScopedService&) = delete;

  Double& operator*() const { return *double_; }
  Double* operator->() const { return double_; }

 private:
  Double* double_ = nullptr;
  std::unique_ptr<Interface> previous_;
};

}  // namespace platform
