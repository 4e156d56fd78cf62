// SPDX-License-Identifier: GPL-2.0-or-later
// Generated worlds shared by the world generator's suites: the world the build generated when
// there is one, so that no test process paints a whole world again; otherwise one made once
// per test program.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/world_writer.h"

#include <QTemporaryDir>

#include <filesystem>

namespace worldgen {

inline const Content& content() {
  static const Content c = loadContent(defaultContentFolder());
  return c;
}

// The tables, records and voices take a few seconds, the painted media some more, so only the
// tests about every file wait for those.
inline std::filesystem::path generated(WorldParts parts) {
  static QTemporaryDir dir;
  const std::filesystem::path r =
      std::filesystem::path(dir.path().toStdString()) / (parts == WorldParts::Everything ? "full" : "tables");
  writeWorld(content(), r, parts);
  return r;
}

// The build's world is made by this build's generator from this content before the tests are
// built, so it is the world the generator writes; builds that make none write their own.
inline std::filesystem::path builtOrGenerated(WorldParts parts) {
#ifdef HUNT_BUILT_WORLD_DIR
  const std::filesystem::path built = HUNT_BUILT_WORLD_DIR;
  if (std::filesystem::is_directory(built / "data")) return built;
#endif
  return generated(parts);
}

inline const std::filesystem::path& worldRoot() {
  static const std::filesystem::path root = builtOrGenerated(WorldParts::TablesRecordsAndVoices);
  return root;
}

inline const std::filesystem::path& fullWorldRoot() {
  static const std::filesystem::path root = builtOrGenerated(WorldParts::Everything);
  return root;
}

}  // namespace worldgen
