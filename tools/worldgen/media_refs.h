// SPDX-License-Identifier: GPL-2.0-or-later
// Every file of the media tree that the game can ask for in the sample world, found by
// walking the world's tables and records the way the game reads them.
#pragma once

#include "tools/worldgen/content.h"

#include <QList>
#include <QString>

namespace worldgen {

enum class MediaKind { Table, Record, Voice, Panorama, Picture, Clip, HitZone, Sound, Page };

struct MediaRef {
  QString path;  // game path under the media root, "\" separated
  MediaKind kind;
  bool operator<(const MediaRef& o) const { return path.compare(o.path, Qt::CaseInsensitive) < 0; }
};

// Sorted, each path once.
QList<MediaRef> referencedMedia(const Content& c);

}  // namespace worldgen
