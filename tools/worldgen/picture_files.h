// SPDX-License-Identifier: GPL-2.0-or-later
// Writing the world's pictures: BMP where the game asks for .bmp, JPEG for photographs, and
// the picture sizes of the three resolution codes.
#pragma once

#include <QImage>
#include <QSize>

#include <filesystem>

namespace worldgen {

void saveBmp(const QImage& image, const std::filesystem::path& file);
void saveJpeg(const QImage& image, const std::filesystem::path& file);

// "6", "8" and "1" and the screens they were drawn for.
struct Resolution {
  const char* code;
  QSize size;
};
inline constexpr Resolution kResolutions[] = {{"6", {640, 480}}, {"8", {800, 600}}, {"1", {1024, 768}}};

// A picture painted once at the largest size, written for every resolution code as
// <folder>/<code><name>.bmp.
void saveForEveryResolution(const QImage& large, const std::filesystem::path& folder, const char* name);

}  // namespace worldgen
