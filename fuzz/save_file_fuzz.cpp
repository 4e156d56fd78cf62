// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes the save-file reader with both kinds of file: any bytes must leave a game state,
// never a crash.
#include "fuzz_support.h"
#include "shell/game_state.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString path = fuzzing::writeInput(data, size, QStringLiteral("input.vng"));
  for (char kind : {kGameKind, kEquipmentKind}) {
    Game = GameState{};
    ReadSaveFile(path, kind);
  }
  ReadQuickHuntOutfit(path);
  return 0;
}
