// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/records.h"

#include "shell/names.h"
#include "tools/worldgen/speech_lines.h"
#include "tools/worldgen/tables.h"

#include <cmath>
#include <stdexcept>

namespace worldgen {

namespace {

constexpr int kGameClips = 3;
const double kSizeSteps[kGameClips] = {0.2, 0.55, 0.9};  // a young, a good and a record animal

// Keeps only `fields` of `source`, in that order.
RecordTable project(const RecordTable& source, const QStringList& fields) {
  RecordTable out{fields, {}};
  for (int row = 0; row < source.rows.size(); ++row) {
    QStringList values;
    for (const QString& f : fields) values << cell(source, row, f);
    out.rows << values;
  }
  return out;
}

QString number(double value, int decimals) {
  return QString::number(value, 'f', decimals);
}

QStringList gameClip(const World& w, const Content& c, int animal, int k) {
  const int row = animalRow(c, animal);
  const double t = kSizeSteps[k - 1];
  auto between = [&](const char* low, const char* high) {
    const double lo = cell(c.animals, row, low).toDouble();
    return lo + (cell(c.animals, row, high).toDouble() - lo) * t;
  };
  const bool counted = trophyUnitOf(animal) == QStringLiteral("Points");
  return {QString::number(animal),
          clipName(w, c, animal, 'c', k),
          number(counted ? std::round(between("Size Low", "Size High")) : between("Size Low", "Size High"),
                 counted ? 0 : 1),
          number(std::round(between("Weight Low", "Weight High")), 0),
          clipName(w, c, animal, 'h', k),
          clipName(w, c, animal, 'a', k),
          clipName(w, c, animal, 'e', k)};
}

QStringList otherClip(const World& w, const Content& c, int animal) {
  const int row = animalRow(c, animal);
  const double weight =
      (cell(c.animals, row, "Weight Low").toDouble() + cell(c.animals, row, "Weight High").toDouble()) / 2;
  return {QString::number(animal),
          clipName(w, c, animal, 'p', 1),
          QString(),
          number(std::round(weight), 0),
          kNoClip,
          kNoClip,
          kNoClip};
}

}  // namespace

int clipsPerAnimal(int animal) {
  return animal <= kSpeciesCount ? kGameClips : 1;
}

QString clipName(const World& w, const Content& c, int animal, char kind, int k) {
  return QString(w.letter) + QLatin1Char(kind) + cell(c.animals, animalRow(c, animal), "Stem") +
         QString::number(k);
}

RecordTable catalogRecords(const Content& c) {
  return project(c.catalog, {"ID", "Item", "Item Description", "Cost", "Category", "CatNumber",
                             "Sub-Category", "Sub-CatNumber", "sequence"});
}

RecordTable weaponRecords(const Content& c, bool permit) {
  const RecordTable& source = permit ? c.weaponsPermit : c.weaponsBase;
  for (int row = 0; row < source.rows.size(); ++row)
    if (cell(source, row, "Weapon") != weaponNameIn(permit, cell(source, row, "ID").toInt()))
      throw std::runtime_error("weapon name differs from the game's: " +
                               cell(source, row, "Weapon").toStdString());
  return project(source, {"ID", "Weapon", "Description", "Length", "Weight", "Ammunition", "Velocity", "Game",
                          "Trajectory", "POA", "Energy"});
}

RecordTable pathRecords(const World& w, const Content& c) {
  RecordTable t{{"Hypername", "Location", "Loctype", "filejump", "Description", "Range", "Yards", "Terrain"},
                {}};
  for (const LocationRecord& r : locationRecords(w, c))
    t.rows << QStringList{
        r.hypername,   QString::number(r.location), QString::number(r.loctype), r.filejump,
        r.description, QString::number(r.range),    QString::number(r.yards),   QString::number(r.terrain)};
  return t;
}

RecordTable videoRecords(const World& w, const Content& c) {
  RecordTable t{{"Animalnum", "Videoname", "Size", "Weight", "HitGun", "HitArrow", "Escape"}, {}};
  for (const int animal : animalsOf(c, w.letter)) {
    if (animal > kSpeciesCount) {
      t.rows << otherClip(w, c, animal);
      continue;
    }
    for (int k = 1; k <= kGameClips; ++k) t.rows << gameClip(w, c, animal, k);
  }
  return t;
}

RecordTable animalSoundRecords(const Content& c) {
  RecordTable t{{"ID", "Animal Start", "Animal Stop"}, {}};
  for (int species = 1; species <= kSpeciesCount; ++species) {
    const int row = animalRow(c, species);
    const char* const kLengths[] = {"Call ms", "Second call ms"};
    for (int call = 0; call < 2; ++call) {
      const int id = 2 * species - 1 + call;
      const int start = (id - 1) * kCallSlotMs;
      t.rows << QStringList{QString::number(id), QString::number(start),
                            QString::number(start + cell(c.animals, row, kLengths[call]).toInt())};
    }
  }
  return t;
}

RecordTable conversationLinks(const Content& c) {
  RecordTable t{{"Hypname", "Conv Name", "sequence"}, {}};
  for (const SpokenLine& line : spokenLines(c))
    t.rows << QStringList{line.key, QString::number(line.convName), QString::number(line.sequence)};
  return t;
}

RecordTable spokenLineRecords(const World& w, const Content& c, const WorldVoices& voices) {
  RecordTable t{
      {"Conv Name", "Wave File", "Engstart", "Engend", "Engtext1", "Engtext2", "Engtext3", "whopic"}, {}};
  const QList<SpokenLine> lines = spokenLines(c);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const VoicedLine& voiced = voices.lines.at(i);
    QStringList pieces = piecesIn(lines[i], w);
    while (pieces.size() < 3) pieces << QStringLiteral("@");  // "@" marks an absent piece
    t.rows << QStringList{QString::number(voiced.convName),
                          voiced.waveFile,
                          QString::number(voiced.startMs),
                          QString::number(voiced.endMs),
                          pieces[0],
                          pieces[1],
                          pieces[2],
                          pictureOf(w, lines[i].speaker)};
  }
  return t;
}

}  // namespace worldgen
