// SPDX-License-Identifier: GPL-2.0-or-later
// The scenery keeps the promises of its places' own words: the blind or stand a stand is named
// for, and the field, road or hollow it lies by, stand where a player looks.
#include "tools/generated_world.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/place_features.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace worldgen;

constexpr int kWidth = 1024, kHeight = 192;

// Mean difference of two pictures' colour over `area`, 0..255.
double differenceIn(const QImage& a, const QImage& b, const QRect& area) {
  double sum = 0;
  int n = 0;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x, ++n) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      sum += (std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q))) /
             3.0;
    }
  return n ? sum / n : 0;
}

// The same place told without its promise: what the picture would be if the words were not kept.
QString without(QString description, const char* words) {
  return description.remove(QLatin1String(words), Qt::CaseInsensitive);
}

TEST(WorldgenScenery, EveryStandNamedForAStructureShowsIt) {
  const RecordTable& places = content().places;
  int structures = 0;
  for (int row = 0; row < places.rows.size(); ++row) {
    const QString description = cell(places, row, "Description");
    const QList<QRectF> promised = promisedStructures(description, kWidth, kHeight);
    if (promised.isEmpty()) continue;
    ++structures;
    const QChar world = cell(places, row, "World").at(0);
    const QString place = cell(places, row, "Place");
    const QImage with = paintOutdoorPlace(world, place, description, kWidth, kHeight, {});
    const QImage bare = paintLandscape({world, place, kWidth, kHeight, 0.5, true}, description);
    EXPECT_GT(differenceIn(with, bare, promised.first().toAlignedRect().intersected(with.rect())), 10)
        << qPrintable(description);
  }
  EXPECT_GE(structures, 8) << "box, ladder, climbing, ground, pit, hay-bale, tree and snow blinds or stands";
}

TEST(WorldgenScenery, FieldsRoadsAndHollowsAreOnTheGround) {
  struct Case {
    const char* description;
    const char* words;
    QRect where;  // where the promise lies in a kWidth x kHeight strip
  };
  const Case cases[] = {
      {"Box blind at the edge of the old tobacco field - stand 2", "tobacco field", QRect(400, 150, 220, 40)},
      {"Hay-bale blind at the edge of the wheat stubble - stand 2", "stubble", QRect(400, 150, 220, 40)},
      {"Logging road fork below the ridge where the four stand trails split", "logging road",
       QRect(490, 170, 40, 20)},
      {"Tent camp in a hollow of oak and hickory - smoke rising from the fire ring", "hollow",
       QRect(10, 50, 60, 40)},
  };
  for (const Case& c : cases) {
    const QString description = QString::fromLatin1(c.description);
    const QImage kept = paintLandscape({u'P', QStringLiteral("x"), kWidth, kHeight, 0.5, true}, description);
    const QImage broken = paintLandscape({u'P', QStringLiteral("x"), kWidth, kHeight, 0.5, true},
                                         without(description, c.words));
    EXPECT_GT(differenceIn(kept, broken, c.where), 12) << c.description;
  }
}

TEST(WorldgenScenery, APlaceThatPromisesNothingGetsNoStructure) {
  EXPECT_TRUE(promisedStructures(QStringLiteral("Rimrock above the river breaks - stand 4"), kWidth, kHeight)
                  .isEmpty());
  EXPECT_TRUE(promisedStructures(QStringLiteral("Knoll above the caribou flats - stand 1"), kWidth, kHeight)
                  .isEmpty());
}

}  // namespace
