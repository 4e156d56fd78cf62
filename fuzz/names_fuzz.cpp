// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes the rules for names that go into files: whatever the text, a save name keeps to its
// alphabet, a hunter's name to what a save reads back, and a path to its folder.
#include "fuzz_support.h"
#include "platform/files.h"
#include "shell/file_names.h"

#include <QLoggingCategory>

#include <cstdlib>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

bool isInside(const std::filesystem::path& path, const std::filesystem::path& root) {
  const auto relative = path.lexically_normal().lexically_relative(root.lexically_normal());
  return !relative.empty() && *relative.begin() != "..";
}

void checkNames(const QString& text) {
  const QString save = saveNameFrom(text);
  require(save.isEmpty() || isSaveName(save));
  require(saveNameFrom(save) == save);
  const QString hunter = hunterNameFrom(text);
  require(!hunter.contains(u',') && !hunter.contains(u'"') && !hunter.contains(u'\n') &&
          !hunter.contains(u'\r'));
  require(hunter.size() <= kMaxHunterNameLength && hunterNameFrom(hunter) == hunter);
}

void checkPaths(const QString& text, const std::filesystem::path& root) {
  if (const auto file = platform::files().resolveIn(QStringLiteral("F:\\"), text))
    require(file->parent_path() == root);
  require(isInside(platform::files().resolve(QStringLiteral("F:\\") + text), root));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // Nearly every input is a refused name; the log of each would drown the run's report.
  static const bool quiet = [] {
    QLoggingCategory::setFilterRules(QStringLiteral("platform.files.warning=false"));
    return true;
  }();
  (void)quiet;
  const QString path = fuzzing::writeInput(data, 0, QStringLiteral("probe"));
  const auto root = platform::files().resolve(path).parent_path();
  const QByteArray bytes = fuzzing::bytesOf(data, size);
  for (const QString& text : {QString::fromUtf8(bytes), QString::fromLatin1(bytes)}) {
    checkNames(text);
    checkPaths(text, root);
  }
  return 0;
}
