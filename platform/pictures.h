// SPDX-License-Identifier: GPL-2.0-or-later
// Loading the media tree's pictures by game path; a missing or unreadable picture is an
// empty one, so the screen shows nothing there and the game goes on.
#pragma once

#include <QPixmap>
#include <QString>

namespace platform {

QPixmap LoadPicture(const QString& gamePath);

}  // namespace platform
