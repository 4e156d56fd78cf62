// SPDX-License-Identifier: GPL-2.0-or-later
// One line on a terminal that says which stage of a world is being written and how many files
// are done, kept current while the generator works; nothing when the output is not a terminal.
#pragma once

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace worldgen {

class TerminalProgress {
 public:
  explicit TerminalProgress(std::filesystem::path root);
  ~TerminalProgress();
  TerminalProgress(const TerminalProgress&) = delete;
  TerminalProgress& operator=(const TerminalProgress&) = delete;

  void stage(std::string_view name);

 private:
  void show();
  void keepShowing(const std::stop_token& stop);

  std::filesystem::path root_;
  std::mutex mutex_;
  std::condition_variable_any wake_;
  int stageNumber_ = 0;
  std::string stageName_;
  std::jthread ticker_;
};

}  // namespace worldgen
