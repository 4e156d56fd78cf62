// SPDX-License-Identifier: GPL-2.0-or-later
// The generated sample world the robot plays in, and copies of it with one kind of media
// file taken out, made of links so that a copy costs no disk.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <string>

namespace robot_testing {

inline std::filesystem::path sampleWorld() {
  return HUNT_ROBOT_WORLD;
}

// A world whose files are links to the sample world's, except those whose name ends in
// `leftOut` (lower case, such as ".wav").
class WorldWithout {
 public:
  explicit WorldWithout(const std::string& leftOut) {
    namespace fs = std::filesystem;
    for (const auto& entry : fs::recursive_directory_iterator(sampleWorld())) {
      if (!entry.is_regular_file()) continue;
      std::string name = entry.path().filename().string();
      for (char& c : name) c = char(std::tolower(static_cast<unsigned char>(c)));
      if (name.size() >= leftOut.size() &&
          name.compare(name.size() - leftOut.size(), leftOut.size(), leftOut) == 0) {
        ++removed_;
        continue;
      }
      const fs::path target = root() / fs::relative(entry.path(), sampleWorld());
      fs::create_directories(target.parent_path());
      fs::create_symlink(entry.path(), target);
    }
  }
  std::filesystem::path root() const { return dir_.path().toStdString(); }
  int removed() const { return removed_; }

 private:
  QTemporaryDir dir_;
  int removed_ = 0;
};

}  // namespace robot_testing
