// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/settings.h"

#include <QSettings>

namespace platform {
namespace {

QSettings store() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, kSettingsApp, kSettingsApp);
}

QString path(const QString& section, const QString& key) {
  return section + u'/' + key;
}

}  // namespace

QString QtSettingsStore::GetSetting(const QString& section, const QString& key, const QString& fallback) {
  return store().value(path(section, key), fallback).toString();
}

void QtSettingsStore::SaveSetting(const QString& section, const QString& key, const QString& value) {
  auto s = store();
  s.setValue(path(section, key), value);
  s.sync();
}

bool QtSettingsStore::HasSetting(const QString& section, const QString& key) {
  return store().contains(path(section, key));
}

template <>
std::unique_ptr<SettingsStore> Service<SettingsStore>::makeDefault() {
  return std::make_unique<QtSettingsStore>();
}

}  // namespace platform
