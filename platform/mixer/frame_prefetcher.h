// SPDX-License-Identifier: GPL-2.0-or-later
// Decodes a clip's pictures a few frames ahead on a worker thread, so that the interface
// thread only picks up finished pictures when a frame is drawn.
#pragma once

#include "platform/media/video_reader.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace platform {

class FramePrefetcher {
 public:
  explicit FramePrefetcher(std::unique_ptr<VideoReader> reader);
  ~FramePrefetcher();
  FramePrefetcher(const FramePrefetcher&) = delete;
  FramePrefetcher& operator=(const FramePrefetcher&) = delete;

  int64_t lengthMs() const { return reader_->lengthMs(); }

  // Starts decoding at the picture on screen at `ms`, dropping what was decoded before.
  void start(int64_t ms);
  // Moves `shown` on to the last picture due at `ms`; true when it changed. Waits for the
  // worker only when the picture due is not decoded yet, which keeps the clip time exact.
  bool take(int64_t ms, VideoFrame& shown);

 private:
  void halt();
  void work();
  bool nextDue(int64_t ms, std::unique_lock<std::mutex>& lock);

  std::unique_ptr<VideoReader> reader_;
  std::thread worker_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<VideoFrame> ready_;
  bool halting_ = false;
  bool atEnd_ = false;
};

}  // namespace platform
