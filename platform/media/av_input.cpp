// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/av_input.h"

#include "platform/media/media_errors.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

#include <algorithm>

namespace platform {

void FormatContextCloser::operator()(AVFormatContext* context) const {
  avformat_close_input(&context);
}
void CodecContextFreer::operator()(AVCodecContext* context) const {
  avcodec_free_context(&context);
}

void quietFfmpegLog() {
  av_log_set_level(AV_LOG_ERROR);
}

namespace {

int64_t streamLengthMs(const AVStream* stream) {
  if (!stream || stream->duration == AV_NOPTS_VALUE) return 0;
  return av_rescale_q(stream->duration, stream->time_base, AVRational{1, 1000});
}

}  // namespace

AvInput::AvInput(const std::filesystem::path& file) {
  quietFfmpegLog();
  std::error_code ec;
  if (!std::filesystem::is_regular_file(file, ec)) {
    error_ = kMediaFileNotFound;
    return;
  }
  AVFormatContext* raw = nullptr;
  if (avformat_open_input(&raw, file.string().c_str(), nullptr, nullptr) < 0) {
    error_ = kMediaInvalidFile;
    return;
  }
  format_.reset(raw);
  if (avformat_find_stream_info(raw, nullptr) < 0) {
    error_ = kMediaInvalidFile;
    return;
  }
  const int audio = av_find_best_stream(raw, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
  const int video = av_find_best_stream(raw, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
  if (audio >= 0) audio_ = raw->streams[audio];
  if (video >= 0) video_ = raw->streams[video];
  if (!audio_ && !video_) error_ = kMediaInvalidFile;
}

int64_t AvInput::lengthMs() const {
  int64_t length = std::max(streamLengthMs(audio_), streamLengthMs(video_));
  if (length == 0 && format_ && format_->duration != AV_NOPTS_VALUE) length = format_->duration / 1000;
  return length;
}

CodecContextPtr AvInput::openDecoder(AVStream* stream) {
  const AVCodec* codec = avcodec_find_decoder(stream->codecpar->codec_id);
  if (!codec) return nullptr;
  CodecContextPtr context(avcodec_alloc_context3(codec));
  if (!context || avcodec_parameters_to_context(context.get(), stream->codecpar) < 0) return nullptr;
  context->pkt_timebase = stream->time_base;
  context->thread_count = 1;
  if (avcodec_open2(context.get(), codec, nullptr) < 0) return nullptr;
  return context;
}

}  // namespace platform
