// SPDX-License-Identifier: GPL-2.0-or-later
// Generated worlds shared by the world generator's suites, made once per test program.
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

inline const std::filesystem::path& worldRoot() {
  static const std::filesystem::path root = generated(WorldParts::TablesRecordsAndVoices);
  return root;
}

inline const std::filesystem::path& fullWorldRoot() {
  static const std::filesystem::path root = generated(WorldParts::Everything);
  return root;
}

}  // namespace worldgen
