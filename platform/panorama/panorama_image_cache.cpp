// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_image_cache.h"

#include <QImageReader>

#include <deque>
#include <system_error>

namespace platform {
namespace {

constexpr size_t kKeptImages = 3;

struct Entry {
  std::filesystem::path file;
  std::filesystem::file_time_type modified;
  std::shared_ptr<const PanoramaImage> image;
};

std::deque<Entry>& recent() {
  static std::deque<Entry> entries;
  return entries;
}

std::shared_ptr<const PanoramaImage> decode(const std::filesystem::path& file, QString& error) {
  QImageReader reader(QString::fromStdString(file.string()));
  auto image = std::make_shared<const PanoramaImage>(reader);
  if (image->isNull()) {
    error = QStringLiteral("%1: %2").arg(reader.fileName(), reader.errorString());
    return nullptr;
  }
  return image;
}

}  // namespace

std::shared_ptr<const PanoramaImage> loadPanoramaImage(const std::filesystem::path& file, QString& error) {
  std::error_code ec;
  const auto modified = std::filesystem::last_write_time(file, ec);
  if (ec) {
    error = QStringLiteral("%1: missing image").arg(QString::fromStdString(file.string()));
    return nullptr;
  }
  auto& entries = recent();
  for (const auto& entry : entries)
    if (entry.file == file && entry.modified == modified) return entry.image;
  auto image = decode(file, error);
  if (!image) return nullptr;
  entries.push_front({file, modified, image});
  if (entries.size() > kKeptImages) entries.pop_back();
  return image;
}

}  // namespace platform
