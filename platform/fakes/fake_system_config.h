// SPDX-License-Identifier: GPL-2.0-or-later
// A system configuration the test sets up: which machine values exist, whether deleting
// and restarting succeed, and a record of every request.
#pragma once

#include "platform/system_config.h"

#include <QSet>

namespace platform {

class FakeSystemConfig final : public SystemConfig {
 public:
  void addValue(const QString& key, const QString& name) { values_.insert(key + u'\\' + name); }
  void refuseDelete() { deleteWorks_ = false; }
  void acceptRestart() { restartWorks_ = true; }

  bool HasMachineValue(const QString& key, const QString& name) override {
    return values_.contains(key + u'\\' + name);
  }
  bool DeleteMachineValue(const QString& key, const QString& name) override {
    ++deleteRequests_;
    return deleteWorks_ && values_.remove(key + u'\\' + name);
  }
  bool RequestRestart() override {
    ++restartRequests_;
    return restartWorks_;
  }

  int deleteRequests() const { return deleteRequests_; }
  int restartRequests() const { return restartRequests_; }

 private:
  QSet<QString> values_;
  bool deleteWorks_ = true;
  bool restartWorks_ = false;
  int deleteRequests_ = 0;
  int restartRequests_ = 0;
};

}  // namespace platform
