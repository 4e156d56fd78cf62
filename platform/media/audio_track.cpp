// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/audio_track.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <cstring>

namespace platform {

void AudioTrack::ResamplerFreer::operator()(SwrContext* context) const {
  swr_free(&context);
}
void AudioTrack::FrameFreer::operator()(AVFrame* frame) const {
  av_frame_free(&frame);
}
void AudioTrack::PacketFreer::operator()(AVPacket* packet) const {
  av_packet_free(&packet);
}

namespace {

SwrContext* makeResampler(const AVCodecContext* decoder) {
  AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
  AVChannelLayout in;
  if (decoder->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
    av_channel_layout_default(&in, decoder->ch_layout.nb_channels);
  else
    av_channel_layout_copy(&in, &decoder->ch_layout);
  SwrContext* resampler = nullptr;
  const int made = swr_alloc_set_opts2(&resampler, &stereo, AV_SAMPLE_FMT_S16, AudioTrack::kRate, &in,
                                       decoder->sample_fmt, decoder->sample_rate, 0, nullptr);
  av_channel_layout_uninit(&in);
  if (made < 0 || swr_init(resampler) < 0) swr_free(&resampler);
  return resampler;
}

constexpr int64_t kDecodeForwardMs = 60 * 1000;

int64_t msToFrames(int64_t ms) {
  return std::max<int64_t>(ms, 0) * AudioTrack::kRate / 1000;
}

}  // namespace

AudioTrack::AudioTrack(const std::filesystem::path& file) : file_(file) {
  reopen();
}

AudioTrack::~AudioTrack() = default;

bool AudioTrack::reopen() {
  decoder_.reset();
  resampler_.reset();
  pending_.clear();
  taken_ = cursor_ = 0;
  drained_ = false;
  placed_ = true;  // from the start, samples count from the first one decoded
  input_ = std::make_unique<AvInput>(file_);
  if (input_->error() || !input_->audio()) return false;
  CodecContextPtr decoder = AvInput::openDecoder(input_->audio());
  if (!decoder) return false;
  resampler_.reset(makeResampler(decoder.get()));
  if (!resampler_) return false;
  packet_.reset(av_packet_alloc());
  frame_.reset(av_frame_alloc());
  decoder_ = std::move(decoder);
  return true;
}

void AudioTrack::setRange(int64_t fromMs, int64_t toMs) {
  if (!hasSound()) return;
  if (!seekTo(fromMs) && !reopen()) return;  // the file went away: nothing more to read
  end_ = msToFrames(toMs);
  dropBefore(msToFrames(fromMs));
  if (!isOpen()) QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

// Lands at or before `ms`, or says it could not. Near the start it declines: decoding forward
// from the top is cheap there and sample-exact, while containers seek by headers that may lie
// about the byte rate (FFmpeg's own WAV files do) and land on the wrong samples.
bool AudioTrack::seekTo(int64_t ms) {
  AVStream* stream = input_->audio();
  const int64_t origin = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
  const int64_t at = origin + av_rescale_q(ms, AVRational{1, 1000}, stream->time_base);
  if (ms < kDecodeForwardMs || avformat_seek_file(input_->format(), stream->index, INT64_MIN, at, at, 0) < 0)
    return false;
  avcodec_flush_buffers(decoder_.get());
  resampler_.reset(makeResampler(decoder_.get()));
  pending_.clear();
  taken_ = 0;
  cursor_ = msToFrames(ms);  // kept when the frames carry no timestamps
  drained_ = false;
  placed_ = false;
  return decodeMore() && cursor_ <= msToFrames(ms);
}

void AudioTrack::dropBefore(int64_t frame) {
  while (cursor_ < frame && (framesBuffered() > 0 || decodeMore())) {
    const int64_t dropped = std::min(framesBuffered(), frame - cursor_);
    taken_ += dropped * kBytesPerFrame;
    cursor_ += dropped;
  }
}

qint64 AudioTrack::readData(char* data, qint64 maxSize) {
  qint64 produced = 0;
  while (cursor_ < end_ && (framesBuffered() > 0 || decodeMore())) {
    const int64_t frames =
        std::min<int64_t>({framesBuffered(), (maxSize - produced) / kBytesPerFrame, end_ - cursor_});
    if (frames <= 0) break;
    std::memcpy(data + produced, pending_.constData() + taken_, size_t(frames * kBytesPerFrame));
    taken_ += frames * kBytesPerFrame;
    produced += frames * kBytesPerFrame;
    cursor_ += frames;
  }
  return produced;
}

bool AudioTrack::atEnd() const {
  return cursor_ >= end_ || (drained_ && framesBuffered() == 0);
}

// Until the decoder runs dry the whole rest of the range counts as there: a device that pulls
// must not take a frame not yet decoded for the end of the sound.
qint64 AudioTrack::bytesAvailable() const {
  const int64_t rest = std::max<int64_t>(end_ - cursor_, 0);
  return (drained_ ? std::min(framesBuffered(), rest) : rest) * kBytesPerFrame;
}

// One decoded frame at a time, so what is held never exceeds a frame's samples.
bool AudioTrack::decodeMore() {
  while (decoder_ && !drained_) {
    const int received = avcodec_receive_frame(decoder_.get(), frame_.get());
    if (received == 0) {
      convert(frame_.get());
      av_frame_unref(frame_.get());
      return true;
    }
    if (received != AVERROR(EAGAIN)) {
      drained_ = true;
      convert(nullptr);  // what the resampler still holds
      return framesBuffered() > 0;
    }
    feedPacket();
  }
  return false;
}

void AudioTrack::feedPacket() {
  if (av_read_frame(input_->format(), packet_.get()) < 0) {
    avcodec_send_packet(decoder_.get(), nullptr);
    return;
  }
  // A packet the decoder refuses is skipped; the next one may decode.
  if (packet_->stream_index == input_->audio()->index) avcodec_send_packet(decoder_.get(), packet_.get());
  av_packet_unref(packet_.get());
}

void AudioTrack::convert(const AVFrame* frame) {
  if (frame && !placed_ && frame->best_effort_timestamp != AV_NOPTS_VALUE) {
    const AVStream* stream = input_->audio();
    const int64_t origin = stream->start_time == AV_NOPTS_VALUE ? 0 : stream->start_time;
    cursor_ = av_rescale_q(frame->best_effort_timestamp - origin, stream->time_base, AVRational{1, kRate});
  }
  placed_ = true;
  pending_.remove(0, taken_);
  taken_ = 0;
  const int room = swr_get_out_samples(resampler_.get(), frame ? frame->nb_samples : 0);
  if (room <= 0) return;
  const qsizetype at = pending_.size();
  pending_.resize(at + qsizetype(room) * kBytesPerFrame);
  auto* out = reinterpret_cast<uint8_t*>(pending_.data() + at);
  const int made = swr_convert(resampler_.get(), &out, room,
                               frame ? const_cast<const uint8_t**>(frame->extended_data) : nullptr,
                               frame ? frame->nb_samples : 0);
  pending_.resize(at + qsizetype(std::max(made, 0)) * kBytesPerFrame);
  peak_ = std::max(peak_, pending_.size());
}

}  // namespace platform
