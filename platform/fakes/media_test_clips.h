// SPDX-License-Identifier: GPL-2.0-or-later
// Tiny sound and clip files made on the spot, so tests and benchmarks need no media tree: a
// PCM WAV of a given length, and an MJPEG AVI whose n-th picture is a known flat colour.
#pragma once

#include <QColor>
#include <QSize>

#include <filesystem>

namespace platform {

// Writes a 16-bit PCM WAV of `ms` milliseconds of a quiet tone.
void writeTestWav(const std::filesystem::path& file, int ms, int rate = 22050, int channels = 1);

// Writes a mono IMA ADPCM WAV of about `ms` milliseconds (whole encoder blocks). Unless asked
// for a true byte rate, its header carries the false one FFmpeg's own tools write.
void writeTestAdpcmWav(const std::filesystem::path& file, int ms, bool trueByteRate = false);

struct TestClip {
  int frames = 10;
  int fps = 25;
  QSize size{320, 240};
  bool withSound = false;
  // Pictures with detail (a moving pattern over the flat colour), so decoding costs what a
  // real clip's does.
  bool detailed = false;
};

// The flat colour of picture `index`: its red channel counts up in steps of 20.
QColor testClipColour(int index);
// Which picture a decoded colour comes from, allowing for the codec's loss.
int testClipIndex(QColor colour);

// Writes an MJPEG AVI (with PCM sound when asked); throws std::runtime_error on failure.
void writeTestClip(const std::filesystem::path& file, const TestClip& clip);

}  // namespace platform
