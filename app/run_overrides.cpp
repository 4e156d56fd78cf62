// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/run_overrides.h"

namespace {

QString slot(const QString& section, const QString& key) {
  return section + u'/' + key;
}

}  // namespace

RunOverrides::RunOverrides(std::unique_ptr<platform::SettingsStore> stored) : stored_(std::move(stored)) {}

void RunOverrides::set(const QString& section, const QString& key, const QString& value) {
  values_.insert(slot(section, key), value);
}

QString RunOverrides::GetSetting(const QString& section, const QString& key, const QString& fallback) {
  const auto found = values_.constFind(slot(section, key));
  return found != values_.constEnd() ? *found : stored_->GetSetting(section, key, fallback);
}

void RunOverrides::SaveSetting(const QString& section, const QString& key, const QString& value) {
  stored_->SaveSetting(section, key, value);
}

bool RunOverrides::HasSetting(const QString& section, const QString& key) {
  return values_.contains(slot(section, key)) || stored_->HasSetting(section, key);
}
