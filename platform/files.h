// SPDX-License-Identifier: GPL-2.0-or-later
// The game's view of the file system: Windows-style paths ("D:\art\load.bmp") whose drive
// letters map to host folders and whose components resolve without regard to case.
#pragma once

#include "platform/service.h"

#include <QString>
#include <QStringList>

#include <filesystem>
#include <map>
#include <optional>

namespace platform {

class Files {
 public:
  // Drive `letter` (any case) stands for `folder` from now on.
  void mapDrive(QChar letter, const std::filesystem::path& folder);
  void clearDrives();
  std::optional<std::filesystem::path> driveFolder(QChar letter) const;

  // The host path of a game path. "\" and "/" both separate; every existing component is
  // matched without regard to case; what does not exist yet is kept as written; ".." never
  // climbs above the drive's folder. A path without a drive letter is a host path. An
  // unmapped drive letter resolves to a path that does not exist, so nothing is found there.
  std::filesystem::path resolve(const QString& gamePath) const;
  // The file `name` directly inside `folder` (a game path), or nothing when `name` is not a
  // plain file name: empty, "." or "..", a separator, a drive colon or a control character
  // could reach outside the folder. Every refusal is logged.
  std::optional<std::filesystem::path> resolveIn(const QString& folder, const QString& name) const;
  static bool isPlainFileName(const QString& name);

  bool exists(const QString& gamePath) const;
  bool remove(const QString& gamePath) const;
  bool rename(const QString& from, const QString& to) const;
  // Names of the files matching a pattern with * and ? in its last component, case
  // ignored, in the order the directory gives them.
  QStringList list(const QString& pattern) const;

 private:
  std::map<QChar, std::filesystem::path> drives_;
};

template <>
std::unique_ptr<Files> Service<Files>::makeDefault();

inline Files& files() {
  return Service<Files>::get();
}

}  // namespace platform
