// SPDX-License-Identifier: GPL-2.0-or-later
// A settings store that lives in memory for one test.
#pragma once

#include "platform/settings.h"

#include <QMap>

namespace platform {

class MemorySettings final : public SettingsStore {
 public:
  QString GetSetting(const QString& section, const QString& key, const QString& fallback) override {
    return values_.value(section + u'/' + key, fallback);
  }
  void SaveSetting(const QString& section, const QString& key, const QString& value) override {
    values_.insert(section + u'/' + key, value);
  }
  bool HasSetting(const QString& section, const QString& key) override {
    return values_.contains(section + u'/' + key);
  }

 private:
  QMap<QString, QString> values_;
};

}  // namespace platform
