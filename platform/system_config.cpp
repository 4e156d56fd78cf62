// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/system_config.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace platform {

#ifdef _WIN32

namespace {

// An open machine-wide key, closed when it goes out of scope.
class MachineKey {
 public:
  explicit MachineKey(const QString& path) {
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, reinterpret_cast<LPCWSTR>(path.utf16()), 0, KEY_ALL_ACCESS,
                      &key_) != ERROR_SUCCESS)
      key_ = nullptr;
  }
  ~MachineKey() {
    if (key_) RegCloseKey(key_);
  }
  MachineKey(const MachineKey&) = delete;
  MachineKey& operator=(const MachineKey&) = delete;
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

bool enableShutdownPrivilege() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token)) return false;
  TOKEN_PRIVILEGES privileges{};
  privileges.PrivilegeCount = 1;
  privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
  const bool found = LookupPrivilegeValueW(nullptr, SE_SHUTDOWN_NAME, &privileges.Privileges[0].Luid);
  const bool adjusted = found && AdjustTokenPrivileges(token, FALSE, &privileges, 0, nullptr, nullptr);
  CloseHandle(token);
  return adjusted;
}

}  // namespace

bool HostSystemConfig::HasMachineValue(const QString& key, const QString& name) {
  MachineKey opened(key);
  return opened.get() && RegQueryValueExW(opened.get(), reinterpret_cast<LPCWSTR>(name.utf16()), nullptr,
                                          nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

bool HostSystemConfig::DeleteMachineValue(const QString& key, const QString& name) {
  MachineKey opened(key);
  return opened.get() &&
         RegDeleteValueW(opened.get(), reinterpret_cast<LPCWSTR>(name.utf16())) == ERROR_SUCCESS;
}

bool HostSystemConfig::RequestRestart() {
  enableShutdownPrivilege();
  return ExitWindowsEx(EWX_REBOOT, SHTDN_REASON_MAJOR_APPLICATION | SHTDN_REASON_FLAG_PLANNED) != 0;
}

#else

// No registry here: the fault it tells of cannot be present, and the game never restarts
// the machine it runs on.
bool HostSystemConfig::HasMachineValue(const QString&, const QString&) {
  return false;
}
bool HostSystemConfig::DeleteMachineValue(const QString&, const QString&) {
  return false;
}
bool HostSystemConfig::RequestRestart() {
  return false;
}

#endif

template <>
std::unique_ptr<SystemConfig> Service<SystemConfig>::makeDefault() {
  return std::make_unique<HostSystemConfig>();
}

}  // namespace platform
