// SPDX-License-Identifier: GPL-2.0-or-later
// Ends a child process between two file-system calls of a write: the durable writer's own
// calls and every open, write, sync, truncate, close and delete of the record files.
#pragma once

#include "platform/durable_file.h"

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace testing_support {

class KillPoints {
 public:
  static constexpr int kKilled = 77;
  static constexpr int kFinished = 0;

  // Runs `write` in a child process that is killed before its file-system call number
  // `call` (from 0); returns kKilled, kFinished, or another status when the write failed.
  static int runKilledAt(int call, const std::function<void()>& write) {
    const pid_t child = ::fork();
    if (child == 0) {
      left() = call;
      platform::setFileStepHook(&beforeCall);
      installRecordFileSteps();
      write();
      ::_exit(kFinished);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  static int& left() {
    static int calls = -1;
    return calls;
  }

  static void beforeCall(const char* = nullptr) {
    if (left() >= 0 && left()-- == 0) ::_exit(kKilled);
  }

  // A file of the record files, the real one's state following this one's.
  struct StepFile {
    sqlite3_file base;
    sqlite3_file* real;
  };

  static sqlite3_vfs*& realVfs() {
    static sqlite3_vfs* vfs = nullptr;
    return vfs;
  }
  static sqlite3_file* real(sqlite3_file* f) { return reinterpret_cast<StepFile*>(f)->real; }

  static int xClose(sqlite3_file* f) {
    beforeCall();
    return real(f)->pMethods->xClose(real(f));
  }
  static int xRead(sqlite3_file* f, void* buf, int amount, sqlite3_int64 offset) {
    return real(f)->pMethods->xRead(real(f), buf, amount, offset);
  }
  static int xWrite(sqlite3_file* f, const void* buf, int amount, sqlite3_int64 offset) {
    beforeCall();
    return real(f)->pMethods->xWrite(real(f), buf, amount, offset);
  }
  static int xTruncate(sqlite3_file* f, sqlite3_int64 size) {
    beforeCall();
    return real(f)->pMethods->xTruncate(real(f), size);
  }
  static int xSync(sqlite3_file* f, int flags) {
    beforeCall();
    return real(f)->pMethods->xSync(real(f), flags);
  }
  static int xFileSize(sqlite3_file* f, sqlite3_int64* size) {
    return real(f)->pMethods->xFileSize(real(f), size);
  }
  static int xLock(sqlite3_file* f, int level) { return real(f)->pMethods->xLock(real(f), level); }
  static int xUnlock(sqlite3_file* f, int level) { return real(f)->pMethods->xUnlock(real(f), level); }
  static int xCheckReservedLock(sqlite3_file* f, int* out) {
    return real(f)->pMethods->xCheckReservedLock(real(f), out);
  }
  static int xFileControl(sqlite3_file* f, int op, void* arg) {
    return real(f)->pMethods->xFileControl(real(f), op, arg);
  }
  static int xSectorSize(sqlite3_file* f) { return real(f)->pMethods->xSectorSize(real(f)); }
  static int xDeviceCharacteristics(sqlite3_file* f) {
    return real(f)->pMethods->xDeviceCharacteristics(real(f));
  }

  static const sqlite3_io_methods* stepMethods() {
    static const sqlite3_io_methods methods = {1,
                                               &xClose,
                                               &xRead,
                                               &xWrite,
                                               &xTruncate,
                                               &xSync,
                                               &xFileSize,
                                               &xLock,
                                               &xUnlock,
                                               &xCheckReservedLock,
                                               &xFileControl,
                                               &xSectorSize,
                                               &xDeviceCharacteristics,
                                               nullptr,
                                               nullptr,
                                               nullptr,
                                               nullptr,
                                               nullptr,
                                               nullptr};
    return &methods;
  }

  static int xOpen(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    beforeCall();
    auto* step = reinterpret_cast<StepFile*>(file);
    step->real = reinterpret_cast<sqlite3_file*>(step + 1);
    const int rc = realVfs()->xOpen(realVfs(), name, step->real, flags, outFlags);
    file->pMethods = step->real->pMethods ? stepMethods() : nullptr;
    return rc;
  }
  static int xDelete(sqlite3_vfs*, const char* name, int syncDir) {
    beforeCall();
    return realVfs()->xDelete(realVfs(), name, syncDir);
  }

  static void installRecordFileSteps() {
    static sqlite3_vfs vfs;
    realVfs() = sqlite3_vfs_find(nullptr);
    vfs = *realVfs();
    vfs.zName = "kill-points";
    vfs.szOsFile = static_cast<int>(sizeof(StepFile)) + realVfs()->szOsFile;
    vfs.xOpen = &xOpen;
    vfs.xDelete = &xDelete;
    sqlite3_vfs_register(&vfs, 1);
  }
};

}  // namespace testing_support
