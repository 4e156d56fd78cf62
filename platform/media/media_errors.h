// SPDX-License-Identifier: GPL-2.0-or-later
// The media window's error numbers and the readable text of each, as the player sees it in
// the playback error box.
#pragma once

#include <QString>

namespace platform {

// The numbers are those of the classic multimedia command layer, so that a caller comparing
// them against that layer's constants keeps working.
enum MediaError : int {
  kMediaNoError = 0,
  kMediaUnrecognizedCommand = 261,
  kMediaMissingParameter = 273,
  kMediaFileNotFound = 275,
  kMediaDeviceNotReady = 276,
  kMediaOutOfRange = 282,
  kMediaInvalidFile = 296,
};

QString mediaErrorText(int error);

}  // namespace platform
