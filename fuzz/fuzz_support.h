// SPDX-License-Identifier: GPL-2.0-or-later
// What the fuzz targets share: the input written to a file on a drive of its own, for the
// readers that take a game path, and a Qt application for the ones that need widgets.
#pragma once

#include "platform/files.h"

#include <QApplication>
#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>

namespace fuzzing {

inline QByteArray bytesOf(const uint8_t* data, size_t size) {
  return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

// Writes the input to `name` on drive F: and returns its game path.
inline QString writeInput(const uint8_t* data, size_t size, const QString& name) {
  static const std::filesystem::path folder = [] {
    auto made = std::filesystem::temp_directory_path() / ("hunt-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(made);
    platform::files().mapDrive(u'F', made);
    return made;
  }();
  std::ofstream(folder / name.toStdString(), std::ios::binary | std::ios::trunc)
      .write(reinterpret_cast<const char*>(data), std::streamsize(size));
  return QStringLiteral("F:\\") + name;
}

// One offscreen application for the whole run.
inline void ensureApplication() {
  static int argc = 1;
  static char name[] = "fuzz";
  static char* argv[] = {name, nullptr};
  if (QCoreApplication::instance()) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication app(argc, argv);
}

}  // namespace fuzzing
