// SPDX-License-Identifier: GPL-2.0-or-later
// An opened media file: its container, its sound and picture streams and their length. The
// sound decoder and the picture reader both start from one.
#pragma once

#include <filesystem>
#include <memory>

extern "C" {
struct AVFormatContext;
struct AVCodecContext;
struct AVStream;
}

namespace platform {

struct FormatContextCloser {
  void operator()(AVFormatContext* context) const;
};
struct CodecContextFreer {
  void operator()(AVCodecContext* context) const;
};
using CodecContextPtr = std::unique_ptr<AVCodecContext, CodecContextFreer>;

class AvInput {
 public:
  // Opens `file`; error() tells whether and why that failed (a media error number).
  explicit AvInput(const std::filesystem::path& file);

  int error() const { return error_; }
  AVFormatContext* format() const { return format_.get(); }
  AVStream* audio() const { return audio_; }
  AVStream* video() const { return video_; }
  // The longer of the streams, in milliseconds.
  int64_t lengthMs() const;

  // A decoder opened for `stream`, or null when no decoder fits.
  static CodecContextPtr openDecoder(AVStream* stream);

 private:
  std::unique_ptr<AVFormatContext, FormatContextCloser> format_;
  AVStream* audio_ = nullptr;
  AVStream* video_ = nullptr;
  int error_ = 0;
};

// FFmpeg's own log is quiet except for real errors.
void quietFfmpegLog();

}  // namespace platform
