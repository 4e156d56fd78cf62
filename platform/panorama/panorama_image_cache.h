// SPDX-License-Identifier: GPL-2.0-or-later
// Loads panorama images, keeping the last few: neighbouring manifests share one image, and
// walking back and forth between them should not decode it again.
#pragma once

#include "platform/panorama/panorama_image.h"

#include <QString>

#include <filesystem>
#include <memory>

namespace platform {

// The image at `file`, or null with `error` set when it is missing or cannot be decoded.
std::shared_ptr<const PanoramaImage> loadPanoramaImage(const std::filesystem::path& file, QString& error);

}  // namespace platform
