// SPDX-License-Identifier: GPL-2.0-or-later
// The painted places checked the way a player meets them: each hotspot lies on the thing it
// names, pictures are the same on every run, and the full-turn pictures join at their seam.
#include "tools/worldgen/content.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/world_layout.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

using namespace worldgen;

const Content& content() {
  static const Content c = loadContent(defaultContentFolder());
  return c;
}

Place placeNamed(const World& w, const QString& name) {
  for (const Place& place : placesOf(w, content()))
    if (place.name == name) return place;
  ADD_FAILURE() << "no place " << name.toStdString();
  return {};
}

QList<Spot> spotsOf(const Place& place) {
  return layoutSpots(place.hotspots, kPanoramaWidth, kPanoramaHeight);
}

int colourDistance(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

// Share of the spot's pixels that the thing painted for it changed against the bare scene.
double coveredShare(const QImage& bare, const QImage& furnished, const QRect& area) {
  int changed = 0;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      changed += colourDistance(bare.pixel(x, y), furnished.pixel(x, y)) > 40;
  return double(changed) / (area.width() * area.height());
}

// Each spot is checked alone, so a thing painted under the wrong spot cannot pass for it.
template <class Paint>
void expectEachSpotOnItsThing(const QList<Spot>& spots, Paint paint, double share) {
  const QImage bare = paint(QList<Spot>{});
  for (const Spot& s : spots) {
    const QImage furnished = paint(QList<Spot>{s});
    EXPECT_GT(coveredShare(bare, furnished, s.area), share) << s.name.toStdString();
    // And the thing stands where its hotspot is, not beside it.
    const QRect beside = s.area.translated(s.area.width() * 3, 0);
    if (QRect(0, 0, bare.width(), bare.height()).contains(beside)) {
      EXPECT_LT(coveredShare(bare, furnished, beside), share / 3) << s.name.toStdString() << " spills";
    }
  }
}

TEST(WorldgenScenes, LodgeCountersDoorsAndPeopleStandUnderTheirHotspots) {
  const QList<Spot> spots = spotsOf(placeNamed(worldsOf(false).front(), "3lodge"));
  ASSERT_EQ(spots.size(), 10);
  expectEachSpotOnItsThing(
      spots, [](const QList<Spot>& s) { return paintLodge(s); }, 0.3);
}

TEST(WorldgenScenes, RangeTargetsAndTheDoorBackLieUnderTheirHotspots) {
  const QList<Spot> spots = spotsOf(placeNamed(worldsOf(false).front(), "3range"));
  expectEachSpotOnItsThing(
      spots, [](const QList<Spot>& s) { return paintRange(s); }, 0.5);
}

TEST(WorldgenScenes, TheMapMarksEveryPlaceWhereItsHotspotIs) {
  for (const World& w : distinctAreas()) {
    SCOPED_TRACE(w.name.toStdString());
    const QList<Spot> spots = spotsOf(placeNamed(w, mapName(w)));
    expectEachSpotOnItsThing(
        spots, [&](const QList<Spot>& s) { return paintMap(w.letter, s); }, 0.2);
  }
}

TEST(WorldgenScenes, TheCampTruckAndTrailSignsStandOnTheirHotspots) {
  for (const World& w : distinctAreas()) {
    SCOPED_TRACE(w.name.toStdString());
    const Place camp = placeNamed(w, campName(w));
    const auto paint = [&](const QList<Spot>& s) {
      return paintOutdoorPlace(w.letter, w.letter + QStringLiteral("camp"), camp.description, kPanoramaWidth,
                               kPanoramaHeight, s);
    };
    expectEachSpotOnItsThing(spotsOf(camp), paint, 0.25);
  }
}

TEST(WorldgenScenes, EveryKindOfTrailPointIsPaintedUnderItsHotspot) {
  const World w = worldsOf(false).at(2);
  QList<Spot> spots = spotsOf(placeNamed(w, standName(w, 1)));
  for (int i = 0; i < 10; ++i) spots[i].terrain = 1 + i % 6;
  spots = spots.mid(0, 10);
  const auto paint = [&](const QList<Spot>& s) {
    return paintOutdoorPlace(w.letter, QStringLiteral("test"), QString(), kPanoramaWidth, kPanoramaHeight, s);
  };
  const QImage bare = paint({});
  for (const Spot& s : spots)
    EXPECT_GT(coveredShare(bare, paint({s}), s.area), 0.05)
        << s.name.toStdString() << " terrain " << s.terrain;
}

TEST(WorldgenScenes, PicturesAreTheSameOnEveryRun) {
  const World w = worldsOf(false).front();
  const QList<Spot> lodge = spotsOf(placeNamed(w, "3lodge"));
  EXPECT_EQ(paintLodge(lodge), paintLodge(lodge));
  const QList<Spot> map = spotsOf(placeNamed(w, mapName(w)));
  EXPECT_EQ(paintMap(w.letter, map), paintMap(w.letter, map));
  const Place stand = placeNamed(w, standName(w, 2));
  const auto paint = [&] {
    return paintOutdoorPlace(w.letter, QStringLiteral("stand2"), stand.description, 1024, 192,
                             layoutSpots(stand.hotspots, 1024, 192));
  };
  EXPECT_EQ(paint(), paint());
}

// Neighbouring columns across the seam differ only where an edge happens to fall.
int seamBreaks(const QImage& strip) {
  int differing = 0;
  for (int y = 0; y < strip.height(); ++y)
    differing += colourDistance(strip.pixel(0, y), strip.pixel(strip.width() - 1, y)) > 90;
  return differing;
}

TEST(WorldgenScenes, LodgeRangeAndMapsJoinUpAtTheSeamOfTheTurn) {
  const World w = worldsOf(false).front();
  EXPECT_LT(seamBreaks(paintLodge(spotsOf(placeNamed(w, "3lodge")))), kPanoramaHeight / 8);
  EXPECT_LT(seamBreaks(paintRange(spotsOf(placeNamed(w, "3range")))), kPanoramaHeight / 8);
  for (const World& area : distinctAreas())
    EXPECT_LT(seamBreaks(paintMap(area.letter, spotsOf(placeNamed(area, mapName(area))))),
              kPanoramaHeight / 8)
        << area.name.toStdString();
}

TEST(WorldgenScenes, PlacesWithWaterInTheirWordsShowIt) {
  // A frozen lake is pale blue-white ice between the horizon and the near ground.
  const auto iceShare = [](const QString& words) {
    const QImage strip = paintLandscape({u'Y', QStringLiteral("lake"), 1024, 192, 0.5, true}, words);
    int ice = 0;
    for (int x = 0; x < strip.width(); ++x) {
      const QRgb c = strip.pixel(x, 105);
      ice += qBlue(c) > qRed(c) + 20 && qBlue(c) > 180;
    }
    return double(ice) / strip.width();
  };
  EXPECT_GT(iceShare(QStringLiteral("Snow blind on the frozen lake")),
            iceShare(QStringLiteral("A knoll")) + 0.1);
}

}  // namespace
