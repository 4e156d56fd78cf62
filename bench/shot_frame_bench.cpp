// SPDX-License-Identifier: GPL-2.0-or-later
// The video shot's frame as the scene draws it: the clip moves on one picture, is blown up to
// the screen's whole scale and composited with the sight, at 1024 x 768 and 1920 x 1080.
// The clip is one the world ships (MPEG-4): WORLD names the world's folder, by default the one
// built beside this program, and CLIP the clip, by default a whitetail deer's. "Scene" runs the real scene
// (decoding ahead on the clip's worker thread); "Serial" decodes on the calling thread, so it is the cost on
// one core. Budget: 2 ms a frame at 1024 x 768.
#include "platform/fakes/media_manual_clock.h"
#include "platform/files.h"
#include "platform/media/audio_output.h"
#include "platform/media/video_reader.h"
#include "platform/mixer/active_rdx.h"
#include "platform/mixer/compositor.h"
#include "shell/game_state.h"
#include "shell/screen_instance.h"
#include "shooting/scene_layout.h"
#include "shooting/videoshot.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

using namespace platform;

namespace fs = std::filesystem;

constexpr int kFps = 15;

fs::path worldRoot() {
  if (const char* chosen = std::getenv("WORLD")) return chosen;
  return fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "world";
}

QString clipName() {
  const char* chosen = std::getenv("CLIP");
  return QString::fromUtf8(chosen ? chosen : "PcWtDeer1");
}

fs::path clipFile() {
  const fs::path file = worldRoot() / "Vmain" / (clipName() + ".avi").toStdString();
  if (!fs::exists(file)) {
    std::fprintf(stderr, "shot_frame_bench: no %s: build the world target\n", file.c_str());
    std::exit(1);
  }
  return file;
}

// Pictures in the clip, so the scene starts over before it runs out.
int clipFrames() {
  static const int frames = [] {
    VideoReader reader(clipFile());
    VideoFrame frame;
    int n = 0;
    while (reader.next(frame)) ++n;
    return n;
  }();
  return frames;
}

void startHunt(QSize screen) {
  files().mapDrive(u'D', worldRoot());
  Game = GameState{};
  Game.ScreenWidth = screen.width() * 15;
  Game.ScreenHeight = screen.height() * 15;
  Game.VideoName = clipName();
  clipFrames();
  Game.EscapeVideoName = QStringLiteral("EMPTY");
  Game.CurAnimal = 9;
  Game.CurWeapon = 3;
  Game.CurWeaponPic = QStringLiteral("rifle0");
  Game.SightX = 80;
  Game.SightY = 60;
}

void BM_ShotSceneFrame(benchmark::State& state) {
  const QSize screen(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  startHunt(screen);
  ScopedService<PlaybackClock, ManualPlaybackClock> clock;
  ScopedService<AudioDevice, SilentAudioDevice> silence;
  Videoshot& shot = ScreenInstance<Videoshot>::get();
  shot.Form_Load();
  shot.vstart();
  int step = 0;
  for (auto _ : state) {
    // One picture on, replayed from the start before the clip ends.
    if (++step % (clipFrames() - 2) == 0) {
      state.PauseTiming();
      ScreenInstance<Videoshot>::unload();
      Videoshot& again = ScreenInstance<Videoshot>::get();
      again.Form_Load();
      again.vstart();
      state.ResumeTiming();
    }
    clock->advance(1000 / kFps);
    Videoshot& scene = ScreenInstance<Videoshot>::get();
    scene.ActiveRDX1_MouseMove(0, 0, (200 + step % 600) * 15.0, 300 * 15.0);
    scene.ActiveRDX1->frame();
    benchmark::DoNotOptimize(scene.ActiveRDX1->surface().constBits());
  }
  ScreenInstance<Videoshot>::unload();
}
BENCHMARK(BM_ShotSceneFrame)
    ->Args({1024, 768})
    ->Args({1920, 1080})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void BM_ShotFrameSerial(benchmark::State& state) {
  const QSize screen(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  const int scale = clipDisplayScale(screen.height(), false);
  const QPoint origin = clipDisplayOrigin(screen, scale);
  VideoReader reader(clipFile());
  VideoFrame frame;
  QImage sight(160, 120, QImage::Format_ARGB32);
  sight.fill(Qt::transparent);
  for (int i = 0; i < 120; ++i) sight.setPixel(80, i, qRgb(0, 0, 0));
  QImage surface(screen, QImage::Format_RGB32);
  int step = 0;
  for (auto _ : state) {
    if (!reader.next(frame)) {
      reader.seek(0);
      reader.next(frame);
    }
    ++step;
    composite(surface, qRgb(0, 0, 0),
              {{&frame.image, QRect(origin, kClipFrame * scale), scale, 0},
               {&sight, QRect(200 + step % 600, 300, 160, 120), 1, 100}});
    benchmark::DoNotOptimize(surface.constBits());
  }
}
BENCHMARK(BM_ShotFrameSerial)->Args({1024, 768})->Args({1920, 1080})->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  unloadAllScreens();
  return 0;
}
