// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/content.h"

#include "platform/records/record_csv.h"

#include <QFile>

#include <stdexcept>

namespace worldgen {

namespace {

QString readText(const std::filesystem::path& file) {
  QFile in(QString::fromStdString(file.string()));
  if (!in.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + file.string());
  return QString::fromUtf8(in.readAll());
}

RecordTable readTable(const std::filesystem::path& folder, const char* name) {
  try {
    return platform::parseRecordCsv(readText(folder / name));
  } catch (const std::exception& error) {
    throw std::runtime_error(std::string(name) + ": " + error.what());
  }
}

}  // namespace

Content loadContent(const std::filesystem::path& folder) {
  Content c;
  c.catalog = readTable(folder, "catalog.csv");
  c.toolEffects = readTable(folder, "tool_effects.csv");
  c.notEquipped = readTable(folder, "not_equipped.csv");
  c.animals = readTable(folder, "animals.csv");
  c.tags = readTable(folder, "tags.csv");
  c.weaponsBase = readTable(folder, "weapons_base.csv");
  c.weaponsPermit = readTable(folder, "weapons_permit.csv");
  c.weaponRatings = readTable(folder, "weapon_ratings.csv");
  c.speech = readTable(folder, "speech.csv");
  c.testQuestions = readTable(folder, "htest.csv");
  c.places = readTable(folder, "places.csv");
  c.landmarks = readTable(folder, "landmarks.csv");
  c.guide = readText(folder / "guide.txt");
  return c;
}

std::filesystem::path defaultContentFolder() {
  return WORLDGEN_CONTENT_DIR;
}

QString cell(const RecordTable& table, int row, const QString& field) {
  const qsizetype column = table.fields.indexOf(field);
  if (column < 0) throw std::runtime_error("no field " + field.toStdString());
  return table.rows.at(row).value(column);
}

}  // namespace worldgen
