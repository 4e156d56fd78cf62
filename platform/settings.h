// SPDX-License-Identifier: GPL-2.0-or-later
// The per-user settings store: text values by application, section and key.
#pragma once

#include "platform/service.h"

#include <QString>

namespace platform {

inline const QString kSettingsApp = QStringLiteral("Hunting");
inline const QString kSettingsSection = QStringLiteral("Hunt");
// Beyond the game's own keys: which host folder each drive letter stands for.
inline const QString kDriveSection = QStringLiteral("Drives");

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual QString GetSetting(const QString& section, const QString& key, const QString& fallback) = 0;
  virtual void SaveSetting(const QString& section, const QString& key, const QString& value) = 0;
  virtual bool HasSetting(const QString& section, const QString& key) = 0;
};

// Backed by QSettings in the user's configuration folder (Hunting/Hunting.ini).
class QtSettingsStore final : public SettingsStore {
 public:
  QString GetSetting(const QString& section, const QString& key, const QString& fallback) override;
  void SaveSetting(const QString& section, const QString& key, const QString& value) override;
  bool HasSetting(const QString& section, const QString& key) override;
};

template <>
std::unique_ptr<SettingsStore> Service<SettingsStore>::makeDefault();

inline SettingsStore& settings() {
  return Service<SettingsStore>::get();
}

}  // namespace platform
