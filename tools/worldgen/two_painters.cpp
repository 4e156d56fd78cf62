// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/two_painters.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace worldgen {

void runOnTwoThreads(const std::vector<std::function<void()>>& jobs) {
  std::atomic<size_t> next = 0;
  std::exception_ptr failure;
  std::mutex failureLock;
  const auto worker = [&] {
    for (size_t i = next++; i < jobs.size(); i = next++) {
      try {
        jobs[i]();
      } catch (...) {
        const std::lock_guard lock(failureLock);
        failure = std::current_exception();
      }
    }
  };
  std::thread helper(worker);
  worker();
  helper.join();
  if (failure) std::rethrow_exception(failure);
}

}  // namespace worldgen
