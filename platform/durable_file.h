// SPDX-License-Identifier: GPL-2.0-or-later
// Replacing a whole file so that a crash at any moment leaves either the old file or the new
// one, and no stray temporary file after the next write into the same folder.
#pragma once

#include <QByteArray>

#include <filesystem>

namespace platform {

// Writes `bytes` to a temporary file beside `target`, flushes it, renames it over `target`
// and flushes the folder. Throws std::runtime_error naming the file when a step fails; the
// temporary file is removed then and `target` is left as it was.
void writeDurably(const std::filesystem::path& target, const QByteArray& bytes);

// The temporary file a write into `target` goes through.
std::filesystem::path durableTempPath(const std::filesystem::path& target);

// Called before every file-system call of a durable write with the call's name. Tests use it
// to end the process between two calls; null (the default) does nothing.
using FileStepHook = void (*)(const char* call);
void setFileStepHook(FileStepHook hook);

}  // namespace platform
