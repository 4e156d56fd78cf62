// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/tables.h"

#include "shell/names.h"

#include <QStringList>

#include <algorithm>
#include <stdexcept>

namespace worldgen {

namespace {

constexpr int kUnsuited = -10;

QByteArray joinLines(const QStringList& lines) {
  return (lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8();
}

QString joinNumbers(const QList<int>& values) {
  QStringList parts;
  for (const int v : values) parts << QString::number(v);
  return parts.join(u',');
}

// Body size of species 1..16, which decides how much weapon it takes.
enum SizeClass { Small, Medium, Large, Huge };
SizeClass sizeOf(int species) {
  static const SizeClass kSizes[] = {Small, Medium, Huge,  Large,  Huge,   Large,  Medium, Medium, Small,
                                     Large, Huge,   Large, Medium, Medium, Medium, Small,  Medium};
  return kSizes[species];
}

int ratingRow(const Content& c, int weapon) {
  for (int row = 0; row < c.weaponRatings.rows.size(); ++row)
    if (cell(c.weaponRatings, row, "Weapon").toInt() == weapon) return row;
  throw std::runtime_error("no rating rule for weapon " + std::to_string(weapon));
}

}  // namespace

int animalRow(const Content& c, int animal) {
  for (int row = 0; row < c.animals.rows.size(); ++row)
    if (cell(c.animals, row, "Number").toInt() == animal) return row;
  throw std::runtime_error("no animal " + std::to_string(animal));
}

QList<int> animalsOf(const Content& c, QChar letter) {
  QList<int> animals;
  for (int n = 1; n <= kAnimalCount; ++n)
    if (cell(c.animals, animalRow(c, n), "Worlds").contains(letter)) animals << n;
  return animals;
}

QList<int> speciesOf(const Content& c, QChar letter) {
  QList<int> species = animalsOf(c, letter);
  species.removeIf([](int n) { return n > kSpeciesCount; });
  return species;
}

int weaponRating(const Content& c, int weapon, int species, int band) {
  if (species == 0) return 0;
  const int row = ratingRow(c, weapon);
  const QStringList unsuited = cell(c.weaponRatings, row, "Unsuited species").split(u' ', Qt::SkipEmptyParts);
  if (unsuited.contains(QString::number(species))) return kUnsuited;
  static const char* const kClassFields[] = {"Small", "Medium", "Large", "Huge"};
  static const char* const kLossFields[] = {nullptr, "Loss mid range", "Loss long range"};
  int rating = cell(c.weaponRatings, row, kClassFields[sizeOf(species)]).toInt();
  if (band > 0) rating -= cell(c.weaponRatings, row, kLossFields[band]).toInt();
  // A lawful weapon always has some chance; only the unsuited ones read as such.
  return std::max(1, rating);
}

QByteArray itemsTable(const Content& c) {
  static const char* const kWorldFields[] = {"Score Piedmont", "Score Dakota", "Score Mountains",
                                             "Score Yukon"};
  int last = 0;
  for (int row = 0; row < c.catalog.rows.size(); ++row)
    last = std::max(last, cell(c.catalog, row, "ID").toInt());
  QStringList lines(last + 1, QStringLiteral("0,0,0,0"));
  for (int row = 0; row < c.catalog.rows.size(); ++row) {
    QList<int> scores;
    for (const char* field : kWorldFields) scores << cell(c.catalog, row, field).toInt();
    lines[cell(c.catalog, row, "ID").toInt()] = joinNumbers(scores);
  }
  return joinLines(lines);
}

QByteArray toolsTable(const Content& c) {
  QStringList lines;
  for (const QStringList& row : c.toolEffects.rows) lines << row.join(u',');
  return joinLines(lines);
}

QByteArray notEquipTable(const Content& c) {
  QStringList lines;
  for (const QStringList& row : c.notEquipped.rows) lines << row.mid(1).join(u',');
  return joinLines(lines);
}

QByteArray weaponTable(const Content& c) {
  QStringList lines;
  for (int band = 0; band <= 2; ++band)
    for (int weapon = 1; weapon <= kWeaponCount; ++weapon) {
      QList<int> values{weapon};
      for (int species = 0; species <= kSpeciesCount; ++species)
        values << weaponRating(c, weapon, species, band);
      lines << joinNumbers(values);
    }
  return joinLines(lines);
}

QByteArray tagCostTable(const Content& c) {
  QList<int> costs;
  for (int row = 0; row < c.tags.rows.size(); ++row) costs << cell(c.tags, row, "Tag Cost").toInt();
  return joinLines({joinNumbers(costs)});
}

QByteArray tagLimitTable(const Content& c) {
  QList<int> limits;
  for (int row = 1; row < c.tags.rows.size(); ++row) limits << cell(c.tags, row, "Tag Limit").toInt();
  return joinLines({joinNumbers(limits)});
}

QByteArray habitatTable(const Content& c, const World& w) {
  const QList<int> present = speciesOf(c, w.letter);
  QList<int> values;
  for (int species = 1; species <= kSpeciesCount; ++species) values << (present.contains(species) ? 1 : 0);
  return joinLines({joinNumbers(values)});
}

QByteArray testTable(const Content& c) {
  QStringList lines;
  for (int row = 0; row < c.testQuestions.rows.size(); ++row)
    lines << cell(c.testQuestions, row, "Answer") + QStringLiteral(",\"") +
                 cell(c.testQuestions, row, "Question") + u'"';
  return joinLines(lines);
}

}  // namespace worldgen
