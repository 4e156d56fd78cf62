// SPDX-License-Identifier: GPL-2.0-or-later
// The video shot's frame: decode one 320 x 240 clip picture, scale it three times and
// composite it with the sight into 1024 x 768. Budget: 2 ms a frame.
#include "platform/fakes/media_test_clips.h"
#include "platform/media/video_reader.h"
#include "platform/mixer/compositor.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using namespace platform;

// A detailed 320 x 240 MJPEG clip, made once for all benchmarks.
const std::filesystem::path& clipFile() {
  static QTemporaryDir dir;
  static const std::filesystem::path file = [] {
    const std::filesystem::path made = dir.filePath("shot.avi").toStdString();
    writeTestClip(made, TestClip{.frames = 50, .fps = 15, .size = {320, 240}, .detailed = true});
    return made;
  }();
  return file;
}

// A 64 x 64 cross-hair whose background is see-through.
QImage sight() {
  QImage image(64, 64, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  for (int i = 0; i < 64; ++i) {
    image.setPixel(i, 32, qRgb(0, 0, 0));
    image.setPixel(32, i, qRgb(0, 0, 0));
  }
  return image;
}

void nextPicture(VideoReader& reader, VideoFrame& frame) {
  if (reader.next(frame)) return;
  reader.seek(0);
  reader.next(frame);
}

std::vector<Layer> shotLayers(const VideoFrame& frame, const QImage& cross, int step) {
  return {{&frame.image, QRect(32, 24, 960, 720), 3, 0},
          {&cross, QRect(200 + step % 500, 300, 64, 64), 1, 100}};
}

void BM_ShotFrame(benchmark::State& state) {
  VideoReader reader(clipFile());
  VideoFrame frame;
  const QImage cross = sight();
  QImage surface(1024, 768, QImage::Format_RGB32);
  int step = 0;
  for (auto _ : state) {
    nextPicture(reader, frame);
    composite(surface, qRgb(0, 0, 0), shotLayers(frame, cross, ++step));
    benchmark::DoNotOptimize(surface.constBits());
  }
}
BENCHMARK(BM_ShotFrame)->Unit(benchmark::kMillisecond);

void BM_DecodeOnly(benchmark::State& state) {
  VideoReader reader(clipFile());
  VideoFrame frame;
  for (auto _ : state) {
    nextPicture(reader, frame);
    benchmark::DoNotOptimize(frame.image.constBits());
  }
}
BENCHMARK(BM_DecodeOnly)->Unit(benchmark::kMillisecond);

void BM_CompositeOnly(benchmark::State& state) {
  VideoReader reader(clipFile());
  VideoFrame frame;
  nextPicture(reader, frame);
  const QImage cross = sight();
  QImage surface(1024, 768, QImage::Format_RGB32);
  int step = 0;
  for (auto _ : state) {
    composite(surface, qRgb(0, 0, 0), shotLayers(frame, cross, ++step));
    benchmark::DoNotOptimize(surface.constBits());
  }
}
BENCHMARK(BM_CompositeOnly)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
