// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/clip_writer.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <stdexcept>
#include <string>

namespace worldgen {

namespace {

void check(bool ok, const std::string& what) {
  if (!ok) throw std::runtime_error("clip: " + what);
}

// Owns the muxer, the encoder and the colour converter of one file.
struct Encoder {
  AVFormatContext* format = nullptr;
  AVCodecContext* codec = nullptr;
  AVStream* stream = nullptr;
  SwsContext* scaler = nullptr;
  AVFrame* frame = nullptr;
  AVPacket* packet = av_packet_alloc();

  ~Encoder() {
    if (format && format->pb) avio_closep(&format->pb);
    avformat_free_context(format);
    avcodec_free_context(&codec);
    sws_freeContext(scaler);
    av_frame_free(&frame);
    av_packet_free(&packet);
  }

  void open(const std::filesystem::path& file) {
    check(avformat_alloc_output_context2(&format, nullptr, "avi", file.string().c_str()) >= 0, "AVI muxer");
    format->flags |= AVFMT_FLAG_BITEXACT;  // no encoder version in the file
    const AVCodec* mjpeg = avcodec_find_encoder(AV_CODEC_ID_MPEG4);
    check(mjpeg, "no MPEG-4 encoder");
    codec = avcodec_alloc_context3(mjpeg);
    codec->width = kClipWidth;
    codec->height = kClipHeight;
    codec->time_base = AVRational{1, kClipFps};
    codec->framerate = AVRational{kClipFps, 1};
    codec->pix_fmt = AV_PIX_FMT_YUV420P;
    codec->flags |= AV_CODEC_FLAG_QSCALE | AV_CODEC_FLAG_BITEXACT;
    codec->global_quality = FF_QP2LAMBDA * 4;
    codec->gop_size = kClipFps;  // a key picture every second, so seeking stays quick
    codec->max_b_frames = 0;
    codec->thread_count = 1;
    check(avcodec_open2(codec, mjpeg, nullptr) >= 0, "open MPEG-4 encoder");
    stream = avformat_new_stream(format, nullptr);
    avcodec_parameters_from_context(stream->codecpar, codec);
    stream->time_base = codec->time_base;
    check(avio_open(&format->pb, file.string().c_str(), AVIO_FLAG_WRITE) >= 0, "open " + file.string());
    check(avformat_write_header(format, nullptr) >= 0, "write header");
    scaler = sws_getContext(kClipWidth, kClipHeight, AV_PIX_FMT_BGRA, kClipWidth, kClipHeight,
                            AV_PIX_FMT_YUV420P, SWS_POINT | SWS_BITEXACT, nullptr, nullptr, nullptr);
    frame = av_frame_alloc();
    frame->format = AV_PIX_FMT_YUV420P;
    frame->width = kClipWidth;
    frame->height = kClipHeight;
    check(av_frame_get_buffer(frame, 0) >= 0, "picture buffer");
  }

  void drain() {
    while (avcodec_receive_packet(codec, packet) >= 0) {
      av_packet_rescale_ts(packet, codec->time_base, stream->time_base);
      packet->stream_index = stream->index;
      av_interleaved_write_frame(format, packet);
    }
  }

  void send(const QImage& picture, int n) {
    check(av_frame_make_writable(frame) >= 0, "picture buffer");
    const uint8_t* planes[1] = {picture.constBits()};
    const int strides[1] = {int(picture.bytesPerLine())};
    sws_scale(scaler, planes, strides, 0, kClipHeight, frame->data, frame->linesize);
    frame->pts = n;
    check(avcodec_send_frame(codec, frame) >= 0, "encode");
    drain();
  }

  void finish() {
    avcodec_send_frame(codec, nullptr);
    drain();
    check(av_write_trailer(format) >= 0, "write trailer");
  }
};

}  // namespace

void writeClip(const std::filesystem::path& file, int frames,
               const std::function<void(QImage&, int)>& paint) {
  av_log_set_level(AV_LOG_ERROR);
  std::filesystem::create_directories(file.parent_path());
  Encoder encoder;
  encoder.open(file);
  QImage picture(kClipWidth, kClipHeight, QImage::Format_RGB32);
  for (int n = 0; n < frames; ++n) {
    paint(picture, n);
    encoder.send(picture, n);
  }
  encoder.finish();
}

}  // namespace worldgen
