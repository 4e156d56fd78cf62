// SPDX-License-Identifier: GPL-2.0-or-later
// A shell that opens nothing: it records each target and answers a chosen result code.
#pragma once

#include "platform/shell_open.h"

#include <QStringList>

namespace platform {

class RecordingShell final : public ShellOpener {
 public:
  explicit RecordingShell(int result = kOpenSucceeded) : result_(result) {}
  int ShellExecute(const QString& target) override {
    opened_ << target;
    return result_;
  }
  const QStringList& opened() const { return opened_; }

 private:
  int result_;
  QStringList opened_;
};

}  // namespace platform
