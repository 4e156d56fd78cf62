// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/video_reader.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <cmath>

namespace platform {

VideoReader::VideoReader(const std::filesystem::path& file) : input_(file) {
  if (input_.error() || !input_.video()) return;
  decoder_ = AvInput::openDecoder(input_.video());
  if (!decoder_) return;
  packet_ = av_packet_alloc();
  decoded_ = av_frame_alloc();
  const AVRational rate =
      input_.video()->avg_frame_rate.num ? input_.video()->avg_frame_rate : input_.video()->r_frame_rate;
  if (rate.num > 0 && rate.den > 0) frameMs_ = std::lround(1000.0 * rate.den / rate.num);
}

VideoReader::~VideoReader() {
  sws_freeContext(scaler_);
  av_frame_free(&decoded_);
  av_packet_free(&packet_);
}

void VideoReader::convert(VideoFrame& frame) {
  const int w = decoded_->width, h = decoded_->height;
  scaler_ = sws_getCachedContext(scaler_, w, h, AVPixelFormat(decoded_->format), w, h, AV_PIX_FMT_BGRA,
                                 SWS_POINT, nullptr, nullptr, nullptr);
  if (frame.image.width() != w || frame.image.height() != h || !frame.image.isDetached())
    frame.image = QImage(w, h, QImage::Format_RGB32);
  uint8_t* planes[1] = {frame.image.bits()};
  const int strides[1] = {int(frame.image.bytesPerLine())};
  sws_scale(scaler_, decoded_->data, decoded_->linesize, 0, h, planes, strides);
  const int64_t pts = decoded_->best_effort_timestamp;
  frame.ptsMs = pts == AV_NOPTS_VALUE ? 0 : av_rescale_q(pts, input_.video()->time_base, AVRational{1, 1000});
}

bool VideoReader::receive(VideoFrame& frame) {
  if (avcodec_receive_frame(decoder_.get(), decoded_) != 0) return false;
  convert(frame);
  av_frame_unref(decoded_);
  return true;
}

bool VideoReader::next(VideoFrame& frame) {
  if (!decoder_) return false;
  for (;;) {
    if (receive(frame)) {
      if (frame.ptsMs + frameMs_ > skipBeforeMs_) {
        skipBeforeMs_ = 0;
        return true;
      }
      continue;
    }
    if (flushed_) return false;
    if (av_read_frame(input_.format(), packet_) < 0) {
      avcodec_send_packet(decoder_.get(), nullptr);
      flushed_ = true;
      continue;
    }
    if (packet_->stream_index == input_.video()->index) avcodec_send_packet(decoder_.get(), packet_);
    av_packet_unref(packet_);
  }
}

void VideoReader::seek(int64_t ms) {
  if (!decoder_) return;
  const int64_t target = av_rescale_q(ms, AVRational{1, 1000}, input_.video()->time_base);
  av_seek_frame(input_.format(), input_.video()->index, target, AVSEEK_FLAG_BACKWARD);
  avcodec_flush_buffers(decoder_.get());
  flushed_ = false;
  skipBeforeMs_ = ms;
}

}  // namespace platform
