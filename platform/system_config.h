// SPDX-License-Identifier: GPL-2.0-or-later
// The machine's own configuration: machine-wide registry values and a system restart. Real
// on Windows; elsewhere no value is present and a restart is refused.
#pragma once

#include "platform/service.h"

#include <QString>

namespace platform {

// The boot batch file, a game path on drive C: the files service's drive map says which
// folder that is, so tests and non-Windows builds never touch a real boot drive.
inline const QString kBootFile = QStringLiteral("C:\\autoexec.bat");

class SystemConfig {
 public:
  virtual ~SystemConfig() = default;
  // Whether value `name` exists under the machine-wide key `key` ("System\...\IOS").
  virtual bool HasMachineValue(const QString& key, const QString& name) = 0;
  // Deletes the value; false when it could not be deleted.
  virtual bool DeleteMachineValue(const QString& key, const QString& name) = 0;
  // Asks the system to restart; false when it refused.
  virtual bool RequestRestart() = 0;
};

// Windows registry and shutdown calls in a Windows build; "absent" and "refused" elsewhere.
class HostSystemConfig final : public SystemConfig {
 public:
  bool HasMachineValue(const QString& key, const QString& name) override;
  bool DeleteMachineValue(const QString& key, const QString& name) override;
  bool RequestRestart() override;
};

template <>
std::unique_ptr<SystemConfig> Service<SystemConfig>::makeDefault();

inline SystemConfig& systemConfig() {
  return Service<SystemConfig>::get();
}

}  // namespace platform
