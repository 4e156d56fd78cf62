// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/animal_outline.h"

#include "platform/records/record_csv.h"
#include "tools/worldgen/content.h"

#include <QFile>
#include <QStringList>

#include <map>
#include <stdexcept>

namespace worldgen {

namespace {

// The index of `name` among `names`, so the table names parts and tones in words.
int named(const QStringList& names, const QString& name) {
  const qsizetype i = names.indexOf(name);
  if (i < 0) throw std::runtime_error("animal outline: unknown name " + name.toStdString());
  return int(i);
}

std::vector<QPointF> pointsOf(const QString& text) {
  const QStringList v = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  std::vector<QPointF> points;
  for (qsizetype i = 0; i + 1 < v.size(); i += 2) points.emplace_back(v[i].toDouble(), v[i + 1].toDouble());
  return points;
}

std::map<int, SpeciesOutline> loadOutlines() {
  QFile in(QString::fromStdString((defaultContentFolder() / "animal_outlines.csv").string()));
  if (!in.open(QIODevice::ReadOnly)) throw std::runtime_error("animal outline table missing");
  const platform::RecordTable table = platform::parseRecordCsv(QString::fromUtf8(in.readAll()));
  static const QStringList parts = {"Trunk", "Neck", "Head", "Headgear", "Tail"};
  static const QStringList tones = {"Coat", "Belly", "Rump", "Shade", "Horn", "Dark"};
  std::map<int, SpeciesOutline> out;
  for (int row = 0; row < table.rows.size(); ++row) {
    auto at = [&](const char* field) { return cell(table, row, QString::fromLatin1(field)); };
    SpeciesOutline& outline = out[at("Species").toInt()];
    if (!at("Colour").isEmpty()) outline.horn = QColor(QLatin1Char('#') + at("Colour"));
    outline.shapes.push_back({OutlinePart(named(parts, at("Part"))), Tone(named(tones, at("Tone"))),
                              at("Smooth") == QStringLiteral("1"), pointsOf(at("Points"))});
  }
  return out;
}

}  // namespace

const SpeciesOutline* outlineOf(int animal) {
  static const std::map<int, SpeciesOutline> outlines = loadOutlines();
  const auto found = outlines.find(animal);
  return found == outlines.end() ? nullptr : &found->second;
}

}  // namespace worldgen
