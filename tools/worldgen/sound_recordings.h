// SPDX-License-Identifier: GPL-2.0-or-later
// Recorded shots, reloads, weather and animal calls from the Debian packages that have them,
// decoded to mono samples at the world's rate. Whatever is not installed is simply absent.
#pragma once

#include "tools/worldgen/sound_synth.h"

#include <QStringList>

#include <filesystem>
#include <map>
#include <string>

namespace worldgen {

class Recordings {
 public:
  // Reads every recording found under `systemRoot` ("/" on a real machine).
  explicit Recordings(const std::filesystem::path& systemRoot);
  // The installed packages, read once.
  static const Recordings& installed();

  // Null when that recording is not installed.
  const Samples* find(const std::string& name) const;
  // The package files that were looked for and not found.
  const QStringList& missing() const { return missing_; }

 private:
  std::map<std::string, Samples> clips_;
  QStringList missing_;
};

}  // namespace worldgen
