// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/audio_track.h"

#include "platform/media/av_input.h"
#include "platform/media/media_log.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <memory>

namespace platform {
namespace {

struct ResamplerFreer {
  void operator()(SwrContext* context) const { swr_free(&context); }
};
struct FrameFreer {
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct PacketFreer {
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

std::unique_ptr<SwrContext, ResamplerFreer> makeResampler(const AVCodecContext* decoder) {
  AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
  AVChannelLayout in;
  if (decoder->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
    av_channel_layout_default(&in, decoder->ch_layout.nb_channels);
  else
    av_channel_layout_copy(&in, &decoder->ch_layout);
  SwrContext* raw = nullptr;
  const int made = swr_alloc_set_opts2(&raw, &stereo, AV_SAMPLE_FMT_S16, AudioTrack::kRate, &in,
                                       decoder->sample_fmt, decoder->sample_rate, 0, nullptr);
  av_channel_layout_uninit(&in);
  std::unique_ptr<SwrContext, ResamplerFreer> resampler(raw);
  if (made < 0 || swr_init(raw) < 0) return nullptr;
  return resampler;
}

void appendConverted(SwrContext* resampler, const AVFrame* frame, QByteArray& pcm) {
  const int room = swr_get_out_samples(resampler, frame ? frame->nb_samples : 0);
  if (room <= 0) return;
  const qsizetype at = pcm.size();
  pcm.resize(at + qsizetype(room) * AudioTrack::kBytesPerFrame);
  auto* out = reinterpret_cast<uint8_t*>(pcm.data() + at);
  const int made =
      swr_convert(resampler, &out, room, frame ? const_cast<const uint8_t**>(frame->extended_data) : nullptr,
                  frame ? frame->nb_samples : 0);
  pcm.resize(std::min(at + qsizetype(std::max(made, 0)) * AudioTrack::kBytesPerFrame, AudioTrack::kMaxBytes));
}

bool full(const QByteArray& pcm) {
  return pcm.size() >= AudioTrack::kMaxBytes;
}

void drainDecoder(AVCodecContext* decoder, SwrContext* resampler, AVFrame* frame, QByteArray& pcm) {
  while (!full(pcm) && avcodec_receive_frame(decoder, frame) == 0) {
    appendConverted(resampler, frame, pcm);
    av_frame_unref(frame);
  }
}

}  // namespace

QByteArray AudioTrack::slice(int64_t fromMs, int64_t toMs) const {
  const auto offset = [this](int64_t ms) {
    const int64_t frames = std::max<int64_t>(ms, 0) * kRate / 1000;
    return std::min<int64_t>(frames * kBytesPerFrame, pcm.size());
  };
  const int64_t begin = offset(fromMs);
  return pcm.mid(begin, std::max<int64_t>(offset(toMs) - begin, 0));
}

AudioTrack decodeAudioTrack(AvInput& input) {
  AudioTrack track;
  if (!input.audio()) return track;
  CodecContextPtr decoder = AvInput::openDecoder(input.audio());
  if (!decoder) return track;
  auto resampler = makeResampler(decoder.get());
  if (!resampler) return track;
  std::unique_ptr<AVPacket, PacketFreer> packet(av_packet_alloc());
  std::unique_ptr<AVFrame, FrameFreer> frame(av_frame_alloc());
  const int index = input.audio()->index;
  while (!full(track.pcm) && av_read_frame(input.format(), packet.get()) >= 0) {
    if (packet->stream_index == index && avcodec_send_packet(decoder.get(), packet.get()) == 0)
      drainDecoder(decoder.get(), resampler.get(), frame.get(), track.pcm);
    av_packet_unref(packet.get());
  }
  avcodec_send_packet(decoder.get(), nullptr);
  drainDecoder(decoder.get(), resampler.get(), frame.get(), track.pcm);
  if (!full(track.pcm)) appendConverted(resampler.get(), nullptr, track.pcm);
  if (full(track.pcm))
    qCWarning(mediaLog) << "a sound longer than" << AudioTrack::kMaxLengthMs << "ms was cut there";
  return track;
}

}  // namespace platform
