// SPDX-License-Identifier: GPL-2.0-or-later
// Writes a silent 320 x 240 MPEG-4 AVI, picture by picture, with the same bytes on every run.
#pragma once

#include <QImage>

#include <filesystem>
#include <functional>

namespace worldgen {

inline constexpr int kClipFps = 15;
inline constexpr int kClipWidth = 320;
inline constexpr int kClipHeight = 240;

// When picture n (from 0) is on screen, in milliseconds.
inline int frameTimeMs(int n) {
  return (n * 2000 + kClipFps) / (2 * kClipFps);
}

// Calls `paint(picture, n)` for n = 0 .. frames-1 on a 320 x 240 RGB32 image; throws
// std::runtime_error when the file cannot be written.
void writeClip(const std::filesystem::path& file, int frames, const std::function<void(QImage&, int)>& paint);

}  // namespace worldgen
