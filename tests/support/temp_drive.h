// SPDX-License-Identifier: GPL-2.0-or-later
// A temporary folder mapped to a drive letter for one test, with helpers to write files.
#pragma once

#include "platform/files.h"
#include "support/qt_printers.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>

namespace testing_support {

class TempDrive {
 public:
  explicit TempDrive(QChar letter = u'D') : letter_(letter) {
    previous_ = platform::files().driveFolder(letter);
    platform::files().mapDrive(letter, root());
  }
  ~TempDrive() {
    if (previous_) platform::files().mapDrive(letter_, *previous_);
  }
  TempDrive(const TempDrive&) = delete;
  TempDrive& operator=(const TempDrive&) = delete;

  std::filesystem::path root() const { return std::filesystem::path(dir_.path().toStdString()); }
  QString drive() const { return QString(letter_) + QStringLiteral(":\\"); }

  // Writes `bytes` to `relative` (with "/" separators), creating folders on the way.
  std::filesystem::path write(const std::string& relative, const QByteArray& bytes) const {
    const auto path = root() / relative;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary).write(bytes.constData(), bytes.size());
    return path;
  }

  QByteArray read(const std::string& relative) const {
    std::ifstream in(root() / relative, std::ios::binary);
    return QByteArray::fromStdString(std::string(std::istreambuf_iterator<char>(in), {}));
  }

 private:
  QTemporaryDir dir_;
  QChar letter_;
  std::optional<std::filesystem::path> previous_;
};

}  // namespace testing_support
