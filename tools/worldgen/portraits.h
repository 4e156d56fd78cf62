// SPDX-License-Identifier: GPL-2.0-or-later
// The faces in the conversation box: the lodge host, the guide, the outfitter, the range
// master and the game warden, each dressed for the job and a little different in every world.
#pragma once

#include <QImage>
#include <QString>

namespace worldgen {

// `key` is the picture's name, area letter then speaker ("Pguide"); 120 x 150.
QImage portrait(const QString& key);

}  // namespace worldgen
