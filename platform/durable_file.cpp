// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/durable_file.h"

#include "platform/files_log.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <string>
#include <system_error>

namespace platform {
namespace fs = std::filesystem;
namespace {

const std::string kTempPrefix = ".";
const std::string kTempSuffix = ".saving";

FileStepHook& hookSlot() {
  static FileStepHook hook = nullptr;
  return hook;
}

void step(const char* call) {
  if (const FileStepHook hook = hookSlot()) hook(call);
}

[[noreturn]] void fail(const fs::path& target, const char* what) {
  throw std::runtime_error("cannot write " + target.string() + ": " + what + ": " + std::strerror(errno));
}

bool isTempName(const std::string& name) {
  return name.size() > kTempPrefix.size() + kTempSuffix.size() && name.starts_with(kTempPrefix) &&
         name.ends_with(kTempSuffix);
}

// A write that was killed between its temporary file's creation and its rename left that
// file behind; the next write into the folder takes it away.
void sweepLeftovers(const fs::path& folder) {
  step("opendir");
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(folder, ec)) {
    if (!isTempName(entry.path().filename().string())) continue;
    step("unlink");
    if (fs::remove(entry.path(), ec)) qCInfo(filesLog) << "removed a leftover" << entry.path().c_str();
  }
}

void writeAll(int fd, const QByteArray& bytes, const fs::path& target) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    step("write");
    const ssize_t wrote = ::write(fd, bytes.constData() + done, size_t(bytes.size() - done));
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote <= 0) fail(target, "write");
    done += wrote;
  }
}

void writeTemp(const fs::path& temp, const QByteArray& bytes, const fs::path& target) {
  step("open");
  const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) fail(target, "open");
  try {
    writeAll(fd, bytes, target);
    step("fsync");
    if (::fsync(fd) != 0) fail(target, "fsync");
  } catch (...) {
    ::close(fd);
    throw;
  }
  step("close");
  if (::close(fd) != 0) fail(target, "close");
}

void syncFolder(const fs::path& folder, const fs::path& target) {
  step("open folder");
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) fail(target, "open folder");
  step("fsync folder");
  const bool synced = ::fsync(fd) == 0;
  ::close(fd);
  if (!synced) fail(target, "fsync folder");
}

}  // namespace

fs::path durableTempPath(const fs::path& target) {
  return target.parent_path() / (kTempPrefix + target.filename().string() + kTempSuffix);
}

void setFileStepHook(FileStepHook hook) {
  hookSlot() = hook;
}

void writeDurably(const fs::path& target, const QByteArray& bytes) {
  const fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
  const fs::path temp = durableTempPath(target);
  sweepLeftovers(folder);
  try {
    writeTemp(temp, bytes, target);
    step("rename");
    if (::rename(temp.c_str(), target.c_str()) != 0) fail(target, "rename");
  } catch (const std::exception& e) {
    qCWarning(filesLog) << e.what();
    std::error_code ec;
    fs::remove(temp, ec);
    throw;
  }
  syncFolder(folder, target);
}

}  // namespace platform
