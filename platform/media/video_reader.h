// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a clip's pictures one after the other as 32-bit images stamped with their time.
#pragma once

#include "platform/media/av_input.h"

#include <QImage>

#include <filesystem>

extern "C" {
struct AVFrame;
struct AVPacket;
struct SwsContext;
}

namespace platform {

struct VideoFrame {
  QImage image;       // Format_RGB32
  int64_t ptsMs = 0;  // when the picture is due
};

class VideoReader {
 public:
  explicit VideoReader(const std::filesystem::path& file);
  ~VideoReader();
  VideoReader(const VideoReader&) = delete;
  VideoReader& operator=(const VideoReader&) = delete;

  // False when the file is missing, will not open, or holds no picture stream.
  bool isOpen() const { return decoder_ != nullptr; }
  int error() const { return input_.error(); }
  int64_t lengthMs() const { return input_.lengthMs(); }
  // How long one picture stays up, from the stream's frame rate.
  int64_t frameMs() const { return frameMs_; }

  // The next picture; false at the end of the clip.
  bool next(VideoFrame& frame);
  // Goes back to the picture on screen at `ms`; the next call to next() returns it.
  void seek(int64_t ms);

 private:
  bool receive(VideoFrame& frame);
  void convert(VideoFrame& frame);

  AvInput input_;
  CodecContextPtr decoder_;
  AVPacket* packet_ = nullptr;
  AVFrame* decoded_ = nullptr;
  SwsContext* scaler_ = nullptr;
  int64_t frameMs_ = 40;
  int64_t skipBeforeMs_ = 0;  // after a seek, pictures gone before this are passed over
  bool flushed_ = false;
};

}  // namespace platform
