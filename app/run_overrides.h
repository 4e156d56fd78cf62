// SPDX-License-Identifier: GPL-2.0-or-later
// Settings for one run laid over the stored ones: read first, never written, so a command-line
// choice lasts only as long as the game runs.
#pragma once

#include "platform/settings.h"

#include <QHash>

#include <memory>

class RunOverrides final : public platform::SettingsStore {
 public:
  explicit RunOverrides(std::unique_ptr<platform::SettingsStore> stored);
  void set(const QString& section, const QString& key, const QString& value);

  QString GetSetting(const QString& section, const QString& key, const QString& fallback) override;
  void SaveSetting(const QString& section, const QString& key, const QString& value) override;
  bool HasSetting(const QString& section, const QString& key) override;

 private:
  std::unique_ptr<platform::SettingsStore> stored_;
  QHash<QString, QString> values_;  // by section and key
};
