// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/terminal_progress.h"

#include "tools/worldgen/world_writer.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace worldgen {
namespace {

int filesBelow(const std::filesystem::path& root) {
  std::error_code error;
  int count = 0;
  for (std::filesystem::recursive_directory_iterator it(root, error), end; !error && it != end;
       it.increment(error))
    if (it->is_regular_file(error)) ++count;
  return count;
}

}  // namespace

TerminalProgress::TerminalProgress(std::filesystem::path root) : root_(std::move(root)) {
  if (!isatty(fileno(stderr))) return;
  ticker_ = std::jthread([this](const std::stop_token& stop) { keepShowing(stop); });
}

TerminalProgress::~TerminalProgress() {
  if (!ticker_.joinable()) return;
  ticker_.request_stop();
  ticker_.join();
  show();
  std::fputc('\n', stderr);
}

void TerminalProgress::stage(std::string_view name) {
  const std::lock_guard lock(mutex_);
  ++stageNumber_;
  stageName_ = name;
}

void TerminalProgress::show() {
  const int files = filesBelow(root_);
  const std::lock_guard lock(mutex_);
  // Cleared to the end of the line, as a stage's name may be shorter than the one before.
  std::fprintf(stderr, "\rworldgen: stage %d of %d, %s: %d files written\033[K", stageNumber_, kWorldStages,
               stageName_.c_str(), files);
  std::fflush(stderr);
}

void TerminalProgress::keepShowing(const std::stop_token& stop) {
  // Counting a thousand files twice a second costs nothing next to painting them.
  while (!stop.stop_requested()) {
    show();
    std::unique_lock lock(mutex_);
    wake_.wait_for(lock, stop, std::chrono::milliseconds(500), [] { return false; });
  }
}

}  // namespace worldgen
