// SPDX-License-Identifier: GPL-2.0-or-later
// Opens a document or web address with the program the desktop associates with it.
#pragma once

#include "platform/service.h"

#include <QString>

namespace platform {

// Result codes as the game tests them: above 32 is success, 31 means no program opened it.
inline constexpr int kOpenSucceeded = 42;
inline constexpr int kOpenNoAssociation = 31;

class ShellOpener {
 public:
  virtual ~ShellOpener() = default;
  virtual int ShellExecute(const QString& target) = 0;
};

// QDesktopServices: local paths open as files, anything with a scheme as an address.
class DesktopShellOpener final : public ShellOpener {
 public:
  int ShellExecute(const QString& target) override;
};

template <>
std::unique_ptr<ShellOpener> Service<ShellOpener>::makeDefault();

inline ShellOpener& shellOpener() {
  return Service<ShellOpener>::get();
}

}  // namespace platform
