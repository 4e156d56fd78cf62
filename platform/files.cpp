// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files.h"

#include "platform/files_log.h"

#include <QRegularExpression>

#include <algorithm>
#include <system_error>

namespace platform {
namespace fs = std::filesystem;
namespace {

// Longest file name the host's folders take, in bytes.
constexpr qsizetype kMaxFileNameBytes = 255;

QStringList components(const QString& path) {
  static const QRegularExpression kSeparators(QStringLiteral(R"([\\/]+)"));
  return path.split(kSeparators, Qt::SkipEmptyParts);
}

bool hasDrive(const QString& path) {
  return path.size() >= 2 && path[1] == u':' && path[0].isLetter();
}

fs::path hostPath(const QString& text) {
  return fs::path(text.toStdString());
}

// The entry of `dir` whose name equals `name` without regard to case, else `name` itself.
fs::path matchComponent(const fs::path& dir, const QString& name) {
  const fs::path exact = dir / hostPath(name);
  std::error_code ec;
  if (fs::exists(exact, ec) || !fs::is_directory(dir, ec)) return exact;
  for (const auto& entry : fs::directory_iterator(dir, ec)) {
    if (QString::fromStdString(entry.path().filename().string()).compare(name, Qt::CaseInsensitive) == 0)
      return entry.path();
  }
  return exact;
}

QRegularExpression wildcard(const QString& pattern) {
  return QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern),
                            QRegularExpression::CaseInsensitiveOption);
}

}  // namespace

void Files::mapDrive(QChar letter, const fs::path& folder) {
  drives_[letter.toUpper()] = folder;
}

void Files::clearDrives() {
  drives_.clear();
}

std::optional<fs::path> Files::driveFolder(QChar letter) const {
  const auto it = drives_.find(letter.toUpper());
  if (it == drives_.end()) return std::nullopt;
  return it->second;
}

fs::path Files::resolve(const QString& gamePath) const {
  fs::path result;
  QString rest = gamePath;
  if (hasDrive(gamePath)) {
    const auto folder = driveFolder(gamePath[0]);
    result = folder ? *folder : fs::path("/nonexistent-drive") / hostPath(QString(gamePath[0]));
    rest = gamePath.mid(2);
  } else if (gamePath.startsWith(u'/') || gamePath.startsWith(u'\\')) {
    result = "/";
  } else {
    result = fs::current_path();
  }
  // Components below the root; ".." at the root stays there, as on a drive's root folder.
  int depth = 0;
  for (const QString& part : components(rest)) {
    if (part == u".") continue;
    if (part != u"..") {
      result = matchComponent(result, part);
      ++depth;
    } else if (depth > 0) {
      result = result.parent_path();
      --depth;
    }
  }
  return result;
}

bool Files::isPlainFileName(const QString& name) {
  if (name.isEmpty() || name == u"." || name == u".." || name.toUtf8().size() > kMaxFileNameBytes)
    return false;
  return std::none_of(name.begin(), name.end(), [](QChar c) {
    return c == u'\\' || c == u'/' || c == u':' || c.unicode() < 0x20 || c.unicode() == 0x7f;
  });
}

std::optional<fs::path> Files::resolveIn(const QString& folder, const QString& name) const {
  if (!isPlainFileName(name)) {
    qCWarning(filesLog) << "refused the file name" << name << "in" << folder;
    return std::nullopt;
  }
  const fs::path base = resolve(folder);
  return matchComponent(base, name);
}

bool Files::exists(const QString& gamePath) const {
  std::error_code ec;
  return fs::is_regular_file(resolve(gamePath), ec);
}

bool Files::remove(const QString& gamePath) const {
  std::error_code ec;
  return fs::remove(resolve(gamePath), ec);
}

bool Files::rename(const QString& from, const QString& to) const {
  std::error_code ec;
  fs::rename(resolve(from), resolve(to), ec);
  return !ec;
}

QStringList Files::list(const QString& pattern) const {
  const int cut = static_cast<int>(std::max(pattern.lastIndexOf(u'\\'), pattern.lastIndexOf(u'/')));
  const QString folder = cut < 0 ? (hasDrive(pattern) ? pattern.left(2) : QString()) : pattern.left(cut + 1);
  const QString namePattern = cut < 0 ? pattern.mid(hasDrive(pattern) ? 2 : 0) : pattern.mid(cut + 1);
  const auto matcher = wildcard(namePattern);
  QStringList names;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(resolve(folder), ec)) {
    const QString name = QString::fromStdString(entry.path().filename().string());
    if (entry.is_regular_file(ec) && matcher.match(name).hasMatch()) names << name;
  }
  return names;
}

template <>
std::unique_ptr<Files> Service<Files>::makeDefault() {
  return std::make_unique<Files>();
}

}  // namespace platform
