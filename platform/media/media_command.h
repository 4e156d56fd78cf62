// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the media window's command strings ("Play", "PLAY From 10 to 900", "pause wait"),
// whatever their case and spacing.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace platform {

struct MediaCommand {
  enum class Verb { Play, Pause, Resume, Stop, Close, Seek, Unknown };
  Verb verb = Verb::Unknown;
  std::optional<int64_t> from;  // milliseconds
  std::optional<int64_t> to;
  bool wait = false;  // return only when the command is done
  bool valid = true;  // false when a keyword lacks its number or a word is not understood
};

MediaCommand parseMediaCommand(const QString& text);

}  // namespace platform
