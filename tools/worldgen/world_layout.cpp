// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/world_layout.h"

#include "shell/names.h"

#include <stdexcept>

namespace worldgen {

namespace {

const QStringList kCompass = {"north", "north-east", "east", "south-east",
                              "south", "south-west", "west", "north-west"};

// How far one sees in each world: 0 closed forest .. 2 open plains.
int openness(QChar letter) {
  switch (letter.unicode()) {
    case 'D':
    case 'Y': return 2;
    case 'B':
    case 'T': return 1;
    default: return 0;
  }
}

// A fixed hash, so that yardages vary from point to point yet never from run to run.
quint32 stableHash(const QString& text) {
  quint32 h = 2166136261u;
  for (const QChar c : text) h = (h ^ c.unicode()) * 16777619u;
  return h;
}

int placeRow(const World& w, const Content& c, const QString& place) {
  for (int row = 0; row < c.places.rows.size(); ++row)
    if (cell(c.places, row, "World") == QString(w.letter) && cell(c.places, row, "Place") == place)
      return row;
  throw std::runtime_error("places.csv lacks " + place.toStdString() + " of " + w.name.toStdString());
}

QString placeText(const World& w, const Content& c, const QString& place, const char* field) {
  return cell(c.places, placeRow(w, c, place), field);
}

QList<int> landmarkRows(const World& w, const Content& c) {
  QList<int> rows;
  for (int row = 0; row < c.landmarks.rows.size(); ++row)
    if (cell(c.landmarks, row, "World") == QString(w.letter)) rows << row;
  if (rows.isEmpty()) throw std::runtime_error("no landmarks for " + w.name.toStdString());
  return rows;
}

LocationRecord pathTo(const QString& filejump, int loctype, int heading, const QString& description) {
  return {QLatin1Char('^') + filejump, heading, loctype, filejump, description};
}

LocationRecord trailPoint(const World& w, const Content& c, int stand, int point) {
  const QList<int> marks = landmarkRows(w, c);
  // Every stand watches ten different landmarks, and the stands share few of them.
  const int row = marks[(point * 3 + (stand - 1) * 5) % marks.size()];
  const int band = std::min(2, point * (3 + openness(w.letter)) / 10);
  const QString key = trailPointKey(w, stand, point);
  const int spread[] = {70, 100, 150};
  const int start[] = {30, 100, 200};
  const int yards = start[band] + int(stableHash(key) % spread[band]);
  const QString where = kCompass[(point * 3 + stand * 2) % kCompass.size()];
  LocationRecord r;
  r.hypername = key;
  r.loctype = 3;
  r.description =
      cell(c.landmarks, row, "Landmark") + QStringLiteral(", ") + where + QStringLiteral(" of the stand");
  r.range = band;
  r.yards = yards;
  r.terrain = cell(c.landmarks, row, "Terrain").toInt();
  return r;
}

}  // namespace

QList<World> worldsOf(bool permit) {
  QList<World> worlds;
  for (int n = 0; n < kWorldCount; ++n) {
    const QString name = worldNameIn(permit, n);
    worlds.append({permit, n, name, name.left(6), name.at(0)});
  }
  return worlds;
}

QList<World> allWorlds() {
  return worldsOf(false) + worldsOf(true);
}

QList<World> distinctAreas() {
  QList<World> areas = worldsOf(false);
  areas.insert(3, worldsOf(true).at(2));
  return areas;
}

QString campName(const World& w) {
  return w.letter + (w.permit ? QStringLiteral("2camp") : QStringLiteral("camp"));
}
QString forkName(const World& w) {
  return w.letter + (w.permit ? QStringLiteral("2fork") : QStringLiteral("fork"));
}
QString standName(const World& w, int stand) {
  return QLatin1Char('3') + w.letter + (w.permit ? QStringLiteral("2snd") : QStringLiteral("stnd")) +
         QString::number(stand);
}
QString opticsName(const World& w, int stand) {
  return standName(w, stand).mid(1);
}
QString mapName(const World& w) {
  return (w.permit ? QStringLiteral("2map") : QStringLiteral("map")) + w.letter;
}
QString trailPointKey(const World& w, int stand, int point) {
  return (QLatin1Char('~') + w.letter + QStringLiteral("poi") + QString::number(stand) +
          QString::number(point))
      .toUpper();
}

QStringList lodgePeople() {
  return {"host", "guide", "warden"};
}

QList<LocationRecord> locationRecords(const World& w, const Content& c) {
  QList<LocationRecord> records;
  // The camp's key is fixed: the game reads "^camp" to send the hunter back.
  LocationRecord camp = pathTo(campName(w), 2, placeText(w, c, "camp", "Heading").toInt(),
                               placeText(w, c, "camp", "Description"));
  camp.hypername = QStringLiteral("^camp");
  records << pathTo("3lodge", 0, 180, "The lodge") << camp;
  records << pathTo(forkName(w), 1, placeText(w, c, "fork", "Heading").toInt(),
                    placeText(w, c, "fork", "Description"));
  for (int s = 1; s <= kStandCount; ++s) {
    const QString place = QStringLiteral("stand") + QString::number(s);
    records << pathTo(standName(w, s), 3, placeText(w, c, place, "Heading").toInt(),
                      placeText(w, c, place, "Description"));
  }
  for (int s = 1; s <= kStandCount; ++s)
    for (int p = 0; p < kTrailPointsPerStand; ++p) records << trailPoint(w, c, s, p);
  return records;
}

QList<Place> placesOf(const World& w, const Content& c) {
  QStringList standPaths;
  for (int s = 1; s <= kStandCount; ++s) standPaths << QLatin1Char('^') + standName(w, s);
  const QString toFork = QLatin1Char('^') + forkName(w);
  QList<Place> places;
  places << Place{
      "3lodge",
      0,
      "The lodge",
      {"^camp", "&range", "!outfit", "*tags", "+book", "$movie", "%test", "@host", "@guide", "@warden"}};
  places << Place{"3range", 5, "The target range", {":0", ":1", ":2", ":3", "^3lodge"}};
  places << Place{campName(w), 2, placeText(w, c, "camp", "Description"), {"^3lodge", toFork}};
  places << Place{forkName(w), 1, placeText(w, c, "fork", "Description"), standPaths + QStringList{"^camp"}};
  for (int s = 1; s <= kStandCount; ++s) {
    QStringList points;
    for (int p = 0; p < kTrailPointsPerStand; ++p) points << trailPointKey(w, s, p);
    const QString text = placeText(w, c, QStringLiteral("stand") + QString::number(s), "Description");
    places << Place{standName(w, s), 3, text, points + QStringList{toFork, "^camp"}};
    places << Place{opticsName(w, s), 3, text, points, true};
  }
  places << Place{mapName(w), 2, placeText(w, c, "map", "Description"),
                  standPaths + QStringList{"^camp", "^3lodge"}};
  return places;
}

bool isBuildablePlace(const World& w, const QString& filejump, int* loctype) {
  const std::pair<QString, int> known[] = {
      {"3lodge", 0}, {"3range", 5}, {campName(w), 2}, {forkName(w), 1}, {mapName(w), 2}};
  for (const auto& [name, type] : known)
    if (filejump.compare(name, Qt::CaseInsensitive) == 0) return *loctype = type, true;
  for (int s = 1; s <= kStandCount; ++s)
    if (filejump.compare(standName(w, s), Qt::CaseInsensitive) == 0) return *loctype = 3, true;
  return false;
}

}  // namespace worldgen
