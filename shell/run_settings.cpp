// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/run_settings.h"

#include "platform/files.h"
#include "platform/settings.h"
#include "shell/game_state.h"

#include <QDir>

namespace {

using platform::kDriveSection;
using platform::kSettingsSection;

QString hunt(const QString& key, const QString& fallback) {
  return platform::settings().GetSetting(kSettingsSection, key, fallback);
}

void saveIfAbsent(const QString& section, const QString& key, const QString& value) {
  if (!platform::settings().HasSetting(section, key)) platform::settings().SaveSetting(section, key, value);
}

bool isSet(const QString& value) {
  return value.trimmed().toDouble() != 0;
}

}  // namespace

void ensureInstallDefaults(const QString& worldFolder, const QString& userFolder) {
  saveIfAbsent(kDriveSection, QStringLiteral("D"), worldFolder);
  saveIfAbsent(kDriveSection, QStringLiteral("C"), userFolder);
  const QString saves = QDir(userFolder).filePath(QStringLiteral("saves"));
  QDir().mkpath(saves);
  saveIfAbsent(kSettingsSection, QStringLiteral("Fileloc"), QDir::toNativeSeparators(saves) + u'/');
}

void mapStoredDrives() {
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const QString key(QChar::fromLatin1(letter));
    const QString folder = platform::settings().GetSetting(kDriveSection, key, {});
    if (!folder.isEmpty()) platform::files().mapDrive(QChar::fromLatin1(letter), folder.toStdString());
  }
}

RunSettings loadRunSettings() {
  RunSettings run;
  run.skipIntro = isSet(hunt(QStringLiteral("VIDON"), QStringLiteral("0")));
  // A non-zero VIDON also switches the area and tracking films off.
  Game.VideosOn = !run.skipIntro;
  run.naturalSizeIntro = isSet(hunt(QStringLiteral("SMAVI"), QStringLiteral("0")));
  run.storedHeight = static_cast<int>(hunt(QStringLiteral("SH"), QStringLiteral("0")).toDouble());
  Game.ScreenWidth = static_cast<int32_t>(hunt(QStringLiteral("SW"), QStringLiteral("0")).toDouble());
  Game.Fileloc = hunt(QStringLiteral("Fileloc"), QStringLiteral("0"));
  if (!Game.Fileloc.endsWith(u'\\')) Game.Fileloc += u'\\';
  Game.MediaRoot = hunt(QStringLiteral("CDloc"), QStringLiteral("d:\\")).left(3);
  return run;
}
