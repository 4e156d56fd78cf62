// SPDX-License-Identifier: GPL-2.0-or-later
// A file's sound as 16-bit stereo samples at one rate, decoded a frame at a time as the sound
// device pulls, so that any range of it plays exactly to the millisecond and memory stays the
// same for a second of sound or for hours of it.
#pragma once

#include "platform/media/av_input.h"

#include <QByteArray>
#include <QIODevice>

#include <cstdint>
#include <filesystem>
#include <memory>

extern "C" {
struct AVFrame;
struct AVPacket;
struct SwrContext;
}

namespace platform {

class AudioTrack final : public QIODevice {
 public:
  static constexpr int kRate = 44100;
  static constexpr int kChannels = 2;
  static constexpr int kBytesPerFrame = kChannels * 2;

  // Opens the sound stream of `file`; hasSound() is false when it has none or it will not decode.
  explicit AudioTrack(const std::filesystem::path& file);
  ~AudioTrack() override;

  bool hasSound() const { return decoder_ != nullptr; }
  // Repositions the decoder so that reading yields the samples of [fromMs, toMs), cut at the
  // end of the sound, and opens the track for reading.
  void setRange(int64_t fromMs, int64_t toMs);
  // The most decoded samples ever held at once, in bytes: at most one decoded frame's worth.
  qsizetype peakBufferedBytes() const { return peak_; }

  bool isSequential() const override { return true; }
  bool atEnd() const override;
  qint64 bytesAvailable() const override;

 protected:
  qint64 readData(char* data, qint64 maxSize) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  bool reopen();
  bool seekTo(int64_t ms);
  bool decodeMore();
  void feedPacket();
  void convert(const AVFrame* frame);
  void dropBefore(int64_t frame);
  int64_t framesBuffered() const { return (pending_.size() - taken_) / kBytesPerFrame; }

  struct ResamplerFreer {
    void operator()(SwrContext* context) const;
  };
  struct FrameFreer {
    void operator()(AVFrame* frame) const;
  };
  struct PacketFreer {
    void operator()(AVPacket* packet) const;
  };

  std::filesystem::path file_;
  std::unique_ptr<AvInput> input_;
  CodecContextPtr decoder_;
  std::unique_ptr<SwrContext, ResamplerFreer> resampler_;
  std::unique_ptr<AVPacket, PacketFreer> packet_;
  std::unique_ptr<AVFrame, FrameFreer> frame_;
  QByteArray pending_;    // converted samples not yet read
  qsizetype taken_ = 0;   // bytes of pending_ already read
  int64_t cursor_ = 0;    // the sample frame at pending_[taken_]
  int64_t end_ = 0;       // the sample frame where reading stops
  bool drained_ = false;  // the decoder has given its last frame
  bool placed_ = false;   // cursor_ follows the stream's timestamps since the last seek
  qsizetype peak_ = 0;
};

}  // namespace platform
