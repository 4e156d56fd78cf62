// SPDX-License-Identifier: GPL-2.0-or-later
// The video shot's frame as the scene draws it: the clip moves on one picture, is blown up to
// the screen's whole scale and composited with the sight, at 1024 x 768 and 1920 x 1080.
// "Scene" runs the real scene (decoding ahead on the clip's worker thread); "Serial" decodes on
// the calling thread, so it is the cost on one core. Budget: 2 ms a frame at 1024 x 768.
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/media_test_clips.h"
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
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using namespace platform;

constexpr int kFps = 15;
constexpr int kClipFrames = 150;

// A media drive with a detailed 320 x 240 clip, its hit zones and a rifle's sight strip.
const QTemporaryDir& mediaDrive() {
  static QTemporaryDir dir;
  static const bool made = [] {
    const std::filesystem::path root = dir.path().toStdString();
    for (const char* folder : {"Vmain", "VEscapes", "VHits", "pict"})
      std::filesystem::create_directories(root / folder);
    writeTestClip(root / "Vmain" / "deer1.avi",
                  TestClip{.frames = kClipFrames, .fps = kFps, .size = {320, 240}, .detailed = true});
    QImage strip(6 * 160, 120, QImage::Format_RGB32);
    strip.fill(Qt::magenta);
    for (int frame = 0; frame < 6; ++frame)
      for (int i = 0; i < 120; ++i) {
        strip.setPixel(frame * 160 + 80, i, qRgb(0, 0, 0));
        strip.setPixel(frame * 160 + 20 + i, 60, qRgb(0, 0, 0));
      }
    strip.save(QString::fromStdString((root / "pict" / "rifle03.bmp").string()));
    return true;
  }();
  (void)made;
  return dir;
}

void startHunt(QSize screen) {
  files().mapDrive(u'D', mediaDrive().path().toStdString());
  Game = GameState{};
  Game.ScreenWidth = screen.width() * 15;
  Game.ScreenHeight = screen.height() * 15;
  Game.VideoName = QStringLiteral("deer1");
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
    if (++step % (kClipFrames - 2) == 0) {
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
  VideoReader reader(std::filesystem::path(mediaDrive().path().toStdString()) / "Vmain" / "deer1.avi");
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
