// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/shell_open.h"

#include "platform/files.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace platform {

int DesktopShellOpener::ShellExecute(const QString& target) {
  const bool isAddress = target.contains(QStringLiteral("://")) || target.startsWith(u"mailto:");
  const QUrl url = isAddress ? QUrl(target)
                             : QUrl::fromLocalFile(QString::fromStdString(files().resolve(target).string()));
  if (!isAddress && !QFileInfo::exists(url.toLocalFile())) return kOpenNoAssociation;
  return QDesktopServices::openUrl(url) ? kOpenSucceeded : kOpenNoAssociation;
}

template <>
std::unique_ptr<ShellOpener> Service<ShellOpener>::makeDefault() {
  return std::make_unique<DesktopShellOpener>();
}

}  // namespace platform
