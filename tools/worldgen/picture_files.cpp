// SPDX-License-Identifier: GPL-2.0-or-later
// Writing pictures to disk in the formats and sizes the game reads.
#include "tools/worldgen/picture_files.h"

#include <stdexcept>
#include <string>

namespace worldgen {

namespace fs = std::filesystem;

namespace {

void write(const QImage& image, const fs::path& file, const char* format, int quality) {
  fs::create_directories(file.parent_path());
  if (!image.convertToFormat(QImage::Format_RGB888)
           .save(QString::fromStdString(file.string()), format, quality))
    throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

void saveBmp(const QImage& image, const fs::path& file) {
  write(image, file, "BMP", -1);
}

void saveJpeg(const QImage& image, const fs::path& file) {
  write(image, file, "JPEG", 88);
}

void saveForEveryResolution(const QImage& large, const fs::path& folder, const char* name) {
  for (const Resolution& r : kResolutions) {
    const QImage sized = large.size() == r.size
                             ? large
                             : large.scaled(r.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    saveBmp(sized, folder / (std::string(r.code) + name));
  }
}

}  // namespace worldgen
