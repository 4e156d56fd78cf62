// SPDX-License-Identifier: GPL-2.0-or-later
// The map of each world: its places, the panorama names the game builds for them, and every
// hotspot with the location record it leads to. Records, the map document and the
// completeness check all walk this one layout.
#pragma once

#include "tools/worldgen/content.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace worldgen {

inline constexpr int kStandCount = 4;
inline constexpr int kTrailPointsPerStand = 10;

struct World {
  bool permit = false;  // the special-permit group
  int number = 0;       // WorldNum 0..3
  QString name;         // "Piedmont"
  QString areaCode;     // first six letters of the name
  QChar letter;         // AreaLetter
  QString recordFolder() const { return permit ? QStringLiteral("Xdbase") : QStringLiteral("Dbase"); }
};

// The four worlds of a group in WorldNum order.
QList<World> worldsOf(bool permit);
// Both groups, base first.
QList<World> allWorlds();
// The five distinct areas (one per area letter), for files the groups share.
QList<World> distinctAreas();

// A location record of <A>paths.isd.
struct LocationRecord {
  QString hypername;
  int location = 0;  // heading, whole degrees
  int loctype = 0;
  QString filejump;
  QString description;
  int range = 0;
  int yards = 0;
  int terrain = 0;
};

// A place: the location name after the world letter, its type and its hotspots.
struct Place {
  QString name;
  int loctype = 0;
  QString description;
  QStringList hotspots;
  bool optics = false;  // the magnified copy of a stand, named under surnd\63
};

// Location names the game builds for a world.
QString campName(const World& w);
QString forkName(const World& w);
QString standName(const World& w, int stand);   // "3" + letter + "stnd"/"2snd" + n
QString opticsName(const World& w, int stand);  // what follows "surnd\63"
QString mapName(const World& w);
QString trailPointKey(const World& w, int stand, int point);  // "~PPOI13"

QList<Place> placesOf(const World& w, const Content& content);
QList<LocationRecord> locationRecords(const World& w, const Content& content);

// Whether the game can build a panorama from this location name in world `w`, and the
// location type such a place must have.
bool isBuildablePlace(const World& w, const QString& filejump, int* loctype);

// People of the lodge one can talk to, by conversation key.
QStringList lodgePeople();

}  // namespace worldgen
