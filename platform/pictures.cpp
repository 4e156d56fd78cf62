// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/pictures.h"

#include "platform/files.h"

namespace platform {

QPixmap LoadPicture(const QString& gamePath) {
  QPixmap picture;
  picture.load(QString::fromStdString(files().resolve(gamePath).string()));
  return picture;
}

}  // namespace platform
