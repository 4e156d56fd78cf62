// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/world_folder.h"

#include "platform/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// A world has its tables; an empty or half-removed folder is not one.
bool isWorld(const QString& folder) {
  return QFileInfo(QDir(folder).filePath(QStringLiteral("data"))).isDir();
}

}  // namespace

QString findWorld(const QString& executableFolder, const QStringList& dataFolders) {
  const QDir beside(executableFolder);
  const QString built = QDir::cleanPath(beside.filePath(QStringLiteral("../world")));
  QStringList candidates{built};
  for (const QString& data : dataFolders) candidates << QDir::cleanPath(QDir(data).filePath(kInstalledWorld));
  candidates << QDir::cleanPath(beside.filePath(QStringLiteral("../share/") + kInstalledWorld));
  for (const QString& folder : candidates)
    if (isWorld(folder)) return folder;
  return built;
}

QString findWorld() {
  return findWorld(QCoreApplication::applicationDirPath(),
                   QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation));
}

void mapMediaDriveTo(const QString& world) {
  platform::settings().SaveSetting(platform::kDriveSection, QStringLiteral("D"), world);
}
