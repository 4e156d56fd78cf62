// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/media_errors.h"

namespace platform {

QString mediaErrorText(int error) {
  switch (error) {
    case kMediaNoError: return QStringLiteral("The command was carried out.");
    case kMediaUnrecognizedCommand: return QStringLiteral("The media command was not recognised.");
    case kMediaMissingParameter: return QStringLiteral("The media command lacks a required value.");
    case kMediaFileNotFound:
      return QStringLiteral("The media file cannot be found. Make sure the path and file name are correct.");
    case kMediaDeviceNotReady: return QStringLiteral("No media file is open.");
    case kMediaOutOfRange: return QStringLiteral("The position given is outside the media file.");
    case kMediaInvalidFile:
      return QStringLiteral(
          "The media file cannot be played: it is damaged or in a form that is not supported.");
  }
  return QStringLiteral("Unknown media error %1.").arg(error);
}

}  // namespace platform
