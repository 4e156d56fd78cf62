// SPDX-License-Identifier: GPL-2.0-or-later
// Saving and loading a whole game file, against a budget of 5 ms each.
#include "platform/files.h"
#include "shell/game_state.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

class SaveFolder {
 public:
  SaveFolder() {
    platform::files().mapDrive(u'C', dir_.path().toStdString());
    Game = GameState{};
    Game.Fileloc = QStringLiteral("C:\\");
    Game.OwnedItems.fill(kEmptyOwnedEntry);
    Game.HunterName = QStringLiteral("BENCH HUNTER");
    Game.GameDate = rt::dateSerial(1997, 12, 24) + rt::timeSerial(15, 5, 0);
  }

 private:
  QTemporaryDir dir_;
};

void BM_SaveGame(benchmark::State& state) {
  SaveFolder folder;
  for (auto _ : state) benchmark::DoNotOptimize(writeSaveFile(QStringLiteral("C:\\BENCH.VNG"), kGameKind));
}
BENCHMARK(BM_SaveGame)->Unit(benchmark::kMicrosecond);

void BM_LoadGame(benchmark::State& state) {
  SaveFolder folder;
  writeSaveFile(QStringLiteral("C:\\BENCH.VNG"), kGameKind);
  for (auto _ : state) {
    ReadSaveFile(QStringLiteral("C:\\bench.vng"), kGameKind);
    benchmark::DoNotOptimize(Game.Money);
  }
}
BENCHMARK(BM_LoadGame)->Unit(benchmark::kMicrosecond);

void BM_ListSaves(benchmark::State& state) {
  SaveFolder folder;
  for (int i = 0; i < 50; ++i) writeSaveFile(QStringLiteral("C:\\HUNT%1.VNG").arg(i), kGameKind);
  for (auto _ : state) benchmark::DoNotOptimize(listSaveNames(kGameKind));
}
BENCHMARK(BM_ListSaves)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
