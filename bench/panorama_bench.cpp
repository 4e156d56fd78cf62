// SPDX-License-Identifier: GPL-2.0-or-later
// The panorama renderer's cost on one core, on the world's own panorama at resolution code
// "1": views of 1920 x 1080 and of 3840 x 2160 (1920 x 1080 at device pixel ratio 2), still
// and turning every frame, bilinear and nearest; and the cost of loading a panorama's image.
// PANORAMA names the manifest; it defaults to a stand of the world built beside this program.
// Compare with bench/panorama_vs_v360.sh.
#include "platform/panorama/panorama_manifest.h"
#include "platform/panorama/panorama_renderer.h"

#include <QImage>
#include <QImageReader>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using namespace platform;
namespace fs = std::filesystem;

fs::path manifestPath() {
  if (const char* chosen = std::getenv("PANORAMA")) return chosen;
  return fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "world" / "surnd" / "13Pstnd1.svh";
}

PanoramaManifest readOrExit(const fs::path& file) {
  const ManifestResult result = readManifest(file);
  if (const auto* manifest = std::get_if<PanoramaManifest>(&result)) return *manifest;
  std::fprintf(stderr, "panorama_bench: %s\n", qPrintable(std::get<ManifestError>(result).message));
  std::exit(1);
}

struct Panorama {
  PanoramaManifest manifest;
  PanoramaImage image;
  PanoramaGeometry geometry;
};

const Panorama& panorama() {
  static const Panorama p = [] {
    PanoramaManifest manifest = readOrExit(manifestPath());
    QImageReader reader(QString::fromStdString(manifest.image.string()));
    PanoramaImage image(reader);
    const auto geometry =
        PanoramaGeometry::cylindrical(image.width(), image.height(), manifest.verticalFovDegrees);
    return Panorama{std::move(manifest), std::move(image), geometry};
  }();
  return p;
}

// A view of 1920 x 1080 logical pixels at the base zoom, as the game opens a stand, drawn at
// `ratio` device pixels to the logical one.
void renderView(benchmark::State& state, bool turning, Sampling sampling,
                PanoramaRenderer::Path path = PanoramaRenderer::Path::Fastest) {
  const Panorama& p = panorama();
  const double ratio = static_cast<double>(state.range(0)) / 1920;
  const QSizeF size(1920, 1080);
  PanoramaView view{size, 0, baseZoom(p.geometry, size.height()), p.geometry.height / 2.0};
  QImage target((size * ratio).toSize(), QImage::Format_RGB32);
  target.setDevicePixelRatio(ratio);
  PanoramaRenderer renderer(path);
  for (auto _ : state) {
    if (turning) view.heading = normalizeHeading(int64_t{view.heading} + 4321);
    renderer.render(p.image, p.geometry, view, target, sampling);
    benchmark::DoNotOptimize(target.constBits());
  }
  state.counters["views/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.SetLabel(std::to_string(p.image.width()) + "x" + std::to_string(p.image.height()));
}

void BM_PanoramaStill(benchmark::State& state) {
  renderView(state, false, Sampling::Bilinear);
}
void BM_PanoramaTurning(benchmark::State& state) {
  renderView(state, true, Sampling::Bilinear);
}
// While the view is dragged.
void BM_PanoramaTurningNearest(benchmark::State& state) {
  renderView(state, true, Sampling::Nearest);
}
// The loops every processor runs, for comparison with the AVX2 ones above.
void BM_PanoramaTurningPortable(benchmark::State& state) {
  renderView(state, true, Sampling::Bilinear, PanoramaRenderer::Path::Portable);
}
void BM_PanoramaTurningNearestPortable(benchmark::State& state) {
  renderView(state, true, Sampling::Nearest, PanoramaRenderer::Path::Portable);
}

// Opening a panorama whose image is not cached, as the game does: decode its file into the
// rows laid out for drawing.
// OPTICS_PANORAMA may name a second manifest, such as a stand's optics view, to time as well.
void loadImage(benchmark::State& state, const fs::path& manifestFile) {
  const PanoramaManifest manifest = readOrExit(manifestFile);
  for (auto _ : state) {
    QImageReader reader(QString::fromStdString(manifest.image.string()));
    const PanoramaImage image(reader);
    benchmark::DoNotOptimize(image.paddedRows());
  }
  state.SetLabel(manifest.image.filename().string());
}

void BM_PanoramaLoad(benchmark::State& state) {
  loadImage(state, manifestPath());
}

constexpr int kScreens[] = {1920, 3840};

void registerAll() {
  using Body = void (*)(benchmark::State&);
  const std::pair<const char*, Body> views[] = {{"BM_PanoramaStill", BM_PanoramaStill},
                                                {"BM_PanoramaTurning", BM_PanoramaTurning},
                                                {"BM_PanoramaTurningNearest", BM_PanoramaTurningNearest}};
  for (const auto& [name, function] : views)
    for (const int width : kScreens)
      benchmark::RegisterBenchmark(name, function)->Arg(width)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("BM_PanoramaTurningPortable", BM_PanoramaTurningPortable)
      ->Arg(1920)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("BM_PanoramaTurningNearestPortable", BM_PanoramaTurningNearestPortable)
      ->Arg(1920)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("BM_PanoramaLoad", BM_PanoramaLoad)->Unit(benchmark::kMillisecond);
  if (const char* optics = std::getenv("OPTICS_PANORAMA"))
    benchmark::RegisterBenchmark("BM_PanoramaLoadOptics", [file = fs::path(optics)](benchmark::State& state) {
      loadImage(state, file);
    })->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argc, char** argv) {
  registerAll();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
