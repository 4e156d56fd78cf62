// SPDX-License-Identifier: GPL-2.0-or-later
// Mono 16-bit PCM WAV files: writing samples out, and reading back the length of one.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

namespace worldgen {

QByteArray wavBytes(const std::vector<int16_t>& samples, int sampleRate);
// Length in milliseconds of a PCM WAV file; nullopt when the bytes are no such file.
std::optional<int> wavLengthMs(const QByteArray& bytes);

}  // namespace worldgen
