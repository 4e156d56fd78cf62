// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/frame_prefetcher.h"

#include <chrono>

namespace platform {
namespace {

constexpr size_t kFramesAhead = 6;
// How long a draw waits for a late picture before it shows the one it has.
constexpr auto kLateLimit = std::chrono::milliseconds(200);

}  // namespace

FramePrefetcher::FramePrefetcher(std::unique_ptr<VideoReader> reader) : reader_(std::move(reader)) {}

FramePrefetcher::~FramePrefetcher() {
  halt();
}

void FramePrefetcher::halt() {
  {
    std::lock_guard lock(mutex_);
    halting_ = true;
  }
  changed_.notify_all();
  if (worker_.joinable()) worker_.join();
}

void FramePrefetcher::start(int64_t ms) {
  halt();
  ready_.clear();
  reader_->seek(ms);
  halting_ = false;
  atEnd_ = false;
  worker_ = std::thread(&FramePrefetcher::work, this);
}

void FramePrefetcher::work() {
  for (;;) {
    {
      std::unique_lock lock(mutex_);
      changed_.wait(lock, [this] { return halting_ || ready_.size() < kFramesAhead; });
      if (halting_) return;
    }
    VideoFrame frame;
    const bool got = reader_->next(frame);
    {
      std::lock_guard lock(mutex_);
      if (got) ready_.push_back(std::move(frame));
      atEnd_ = !got;
    }
    changed_.notify_all();
    if (!got) return;
  }
}

// True when the front of the queue is due at `ms`; waits while the queue is empty and more
// pictures are coming.
bool FramePrefetcher::nextDue(int64_t ms, std::unique_lock<std::mutex>& lock) {
  changed_.wait_for(lock, kLateLimit, [this] { return !ready_.empty() || atEnd_ || !worker_.joinable(); });
  return !ready_.empty() && ready_.front().ptsMs <= ms;
}

bool FramePrefetcher::take(int64_t ms, VideoFrame& shown) {
  bool moved = false;
  std::unique_lock lock(mutex_);
  while (nextDue(ms, lock)) {
    shown = std::move(ready_.front());
    ready_.pop_front();
    moved = true;
    changed_.notify_all();  // room for the worker to decode further
  }
  return moved;
}

}  // namespace platform
