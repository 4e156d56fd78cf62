// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/fakes/media_test_clips.h"

#include <QFile>
#include <QImage>
#include <QtEndian>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <cmath>
#include <cstring>
#include <stdexcept>

namespace platform {
namespace {

void check(bool ok, const char* what) {
  if (!ok) throw std::runtime_error(std::string("test clip: ") + what);
}

template <class T>
void put(QByteArray& bytes, T value) {
  const T little = qToLittleEndian(value);
  bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

// Samples [first, first + count) of the tone, so long sounds can be made a piece at a time.
QByteArray toneSamples(int first, int count, int channels, int rate) {
  QByteArray samples;
  for (int i = first; i < first + count; ++i)
    for (int c = 0; c < channels; ++c)
      put<int16_t>(samples, int16_t(2000 * std::sin(i * 2 * M_PI * 440 / rate)));
  return samples;
}

// Owns what writing one AVI needs and frees it all, even when a step fails half-way.
struct ClipWriter {
  AVFormatContext* format = nullptr;
  AVCodecContext* video = nullptr;
  AVCodecContext* audio = nullptr;
  AVStream* videoStream = nullptr;
  AVStream* audioStream = nullptr;
  AVPacket* packet = av_packet_alloc();
  AVFrame* frame = av_frame_alloc();

  ~ClipWriter() {
    av_frame_free(&frame);
    av_packet_free(&packet);
    avcodec_free_context(&video);
    avcodec_free_context(&audio);
    if (format && format->pb) avio_closep(&format->pb);
    avformat_free_context(format);
  }

  void drain(AVCodecContext* codec, AVStream* stream) {
    while (avcodec_receive_packet(codec, packet) == 0) {
      av_packet_rescale_ts(packet, codec->time_base, stream->time_base);
      packet->stream_index = stream->index;
      av_interleaved_write_frame(format, packet);
    }
  }
  void send(AVCodecContext* codec, AVStream* stream, AVFrame* input) {
    check(avcodec_send_frame(codec, input) >= 0, "encode");
    drain(codec, stream);
  }
};

void openVideo(ClipWriter& w, const TestClip& clip) {
  const AVCodec* codec = avcodec_find_encoder(AV_CODEC_ID_MJPEG);
  check(codec, "no MJPEG encoder");
  w.video = avcodec_alloc_context3(codec);
  w.video->width = clip.size.width();
  w.video->height = clip.size.height();
  w.video->time_base = AVRational{1, clip.fps};
  w.video->framerate = AVRational{clip.fps, 1};
  w.video->pix_fmt = AV_PIX_FMT_YUVJ420P;
  w.video->flags |= AV_CODEC_FLAG_QSCALE;
  w.video->global_quality = FF_QP2LAMBDA * 2;
  check(avcodec_open2(w.video, codec, nullptr) >= 0, "open MJPEG encoder");
  w.videoStream = avformat_new_stream(w.format, nullptr);
  avcodec_parameters_from_context(w.videoStream->codecpar, w.video);
  w.videoStream->time_base = w.video->time_base;
}

// Mono, so the planar and packed sample layouts are the same bytes.
void openAudio(ClipWriter& w, AVCodecID id, bool trueByteRate = false) {
  const AVCodec* codec = avcodec_find_encoder(id);
  check(codec, "no sound encoder");
  w.audio = avcodec_alloc_context3(codec);
  w.audio->sample_rate = 22050;
  w.audio->sample_fmt = codec->sample_fmts ? codec->sample_fmts[0] : AV_SAMPLE_FMT_S16;
  av_channel_layout_default(&w.audio->ch_layout, 1);
  w.audio->time_base = AVRational{1, 22050};
  check(avcodec_open2(w.audio, codec, nullptr) >= 0, "open sound encoder");
  // Block codecs are left with the encoder's default bit rate, which WAV headers then carry
  // as a false byte rate; a true one lets readers seek by it.
  if (trueByteRate && w.audio->frame_size > 0)
    w.audio->bit_rate = int64_t(w.audio->sample_rate) * w.audio->block_align * 8 / w.audio->frame_size;
  w.audioStream = avformat_new_stream(w.format, nullptr);
  avcodec_parameters_from_context(w.audioStream->codecpar, w.audio);
  w.audioStream->time_base = w.audio->time_base;
}

void paintPicture(QImage& picture, int index, bool detailed) {
  picture.fill(testClipColour(index));
  if (!detailed) return;
  for (int y = 0; y < picture.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x)
      row[x] = qRgb((x * 7 + index * 5) & 0xff, (y * 3 + x * x / 16) & 0xff, ((x ^ y) * 13 + index) & 0xff);
  }
}

void writePictures(ClipWriter& w, const TestClip& clip) {
  SwsContext* scaler =
      sws_getContext(clip.size.width(), clip.size.height(), AV_PIX_FMT_BGRA, clip.size.width(),
                     clip.size.height(), AV_PIX_FMT_YUVJ420P, SWS_POINT, nullptr, nullptr, nullptr);
  QImage picture(clip.size, QImage::Format_RGB32);
  for (int i = 0; i < clip.frames; ++i) {
    paintPicture(picture, i, clip.detailed);
    AVFrame* frame = av_frame_alloc();
    frame->format = AV_PIX_FMT_YUVJ420P;
    frame->width = clip.size.width();
    frame->height = clip.size.height();
    av_frame_get_buffer(frame, 0);
    const uint8_t* planes[1] = {picture.constBits()};
    const int strides[1] = {int(picture.bytesPerLine())};
    sws_scale(scaler, planes, strides, 0, clip.size.height(), frame->data, frame->linesize);
    frame->pts = i;
    w.send(w.video, w.videoStream, frame);
    av_frame_free(&frame);
  }
  sws_freeContext(scaler);
  w.send(w.video, w.videoStream, nullptr);
}

// Encoders with a fixed frame size get whole frames, the last one padded with silence.
void writeSound(ClipWriter& w, int samples) {
  const int chunk = w.audio->frame_size > 0 ? w.audio->frame_size : 1024;
  for (int at = 0; at < samples; at += chunk) {
    QByteArray tone = toneSamples(at, std::min(chunk, samples - at), 1, 22050);
    tone.resize(chunk * 2, '\0');
    AVFrame* frame = av_frame_alloc();
    frame->format = w.audio->sample_fmt;
    frame->nb_samples = w.audio->frame_size > 0 ? chunk : std::min(chunk, samples - at);
    av_channel_layout_default(&frame->ch_layout, 1);
    frame->sample_rate = 22050;
    av_frame_get_buffer(frame, 0);
    std::memcpy(frame->data[0], tone.constData(), size_t(frame->nb_samples) * 2);
    frame->pts = at;
    w.send(w.audio, w.audioStream, frame);
    av_frame_free(&frame);
  }
  w.send(w.audio, w.audioStream, nullptr);
}

}  // namespace

void writeTestWav(const std::filesystem::path& file, int ms, int rate, int channels) {
  const QByteArray samples = toneSamples(0, int(int64_t(rate) * ms / 1000), channels, rate);
  QByteArray bytes("RIFF");
  put<uint32_t>(bytes, uint32_t(36 + samples.size()));
  bytes.append("WAVEfmt ");
  put<uint32_t>(bytes, 16);
  put<uint16_t>(bytes, 1);  // PCM
  put<uint16_t>(bytes, uint16_t(channels));
  put<uint32_t>(bytes, uint32_t(rate));
  put<uint32_t>(bytes, uint32_t(rate * channels * 2));
  put<uint16_t>(bytes, uint16_t(channels * 2));
  put<uint16_t>(bytes, 16);
  bytes.append("data");
  put<uint32_t>(bytes, uint32_t(samples.size()));
  bytes.append(samples);
  QFile out(QString::fromStdString(file.string()));
  check(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size(), "write WAV");
}

void writeTestAdpcmWav(const std::filesystem::path& file, int ms, bool trueByteRate) {
  av_log_set_level(AV_LOG_ERROR);
  ClipWriter w;
  check(avformat_alloc_output_context2(&w.format, nullptr, "wav", file.string().c_str()) >= 0, "WAV muxer");
  openAudio(w, AV_CODEC_ID_ADPCM_IMA_WAV, trueByteRate);
  check(avio_open(&w.format->pb, file.string().c_str(), AVIO_FLAG_WRITE) >= 0, "open output");
  check(avformat_write_header(w.format, nullptr) >= 0, "write header");
  writeSound(w, int(int64_t(22050) * ms / 1000));
  check(av_write_trailer(w.format) >= 0, "write trailer");
}

QColor testClipColour(int index) {
  return QColor(std::min(20 * index, 255), 60, 200);
}

int testClipIndex(QColor colour) {
  return (colour.red() + 10) / 20;
}

void writeTestClip(const std::filesystem::path& file, const TestClip& clip) {
  av_log_set_level(AV_LOG_ERROR);
  ClipWriter w;
  check(avformat_alloc_output_context2(&w.format, nullptr, "avi", file.string().c_str()) >= 0, "AVI muxer");
  openVideo(w, clip);
  if (clip.withSound) openAudio(w, AV_CODEC_ID_PCM_S16LE);
  check(avio_open(&w.format->pb, file.string().c_str(), AVIO_FLAG_WRITE) >= 0, "open output");
  check(avformat_write_header(w.format, nullptr) >= 0, "write header");
  writePictures(w, clip);
  if (clip.withSound) writeSound(w, 22050 * clip.frames / clip.fps);
  check(av_write_trailer(w.format) >= 0, "write trailer");
}

}  // namespace platform
