// SPDX-License-Identifier: GPL-2.0-or-later
// The sizes of one outdoor picture show the same scene: the large one, brought down to the small
// one's size, is the small one, only painted sharper.
#include "tools/worldgen/panorama_scenes.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace worldgen;

constexpr int kScale = 3;  // the large picture shown at resolution code "1"

// Mean difference per colour channel over rows from..to, 0..255.
double difference(const QImage& a, const QImage& b, int from, int to) {
  double sum = 0;
  long n = 0;
  for (int y = from; y < to; ++y)
    for (int x = 0; x < a.width(); ++x, ++n) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      sum += (std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q))) /
             3.0;
    }
  return sum / double(n);
}

struct Sizes {
  QImage small, fineBroughtDown;
};

Sizes paintBoth(QChar world, const QString& variant, const QString& description) {
  const QStringList names{QStringLiteral("^fork"), QStringLiteral("~t1"), QStringLiteral("~t2"),
                          QStringLiteral("~t3")};
  const auto paint = [&](int scale) {
    const int w = kPanoramaWidth * scale, h = kPanoramaHeight * scale;
    return paintOutdoorPlace(world, variant, description, w, h, layoutSpots(names, w, h));
  };
  const QImage fine = paint(kScale);
  return {paint(1),
          fine.scaled(kPanoramaWidth, kPanoramaHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
              .convertToFormat(QImage::Format_RGB32)};
}

TEST(WorldgenSizes, TheFinePictureOfAWoodedStandShowsTheSameForest) {
  const Sizes hills =
      paintBoth(u'P', QStringLiteral("Pstand1"), QStringLiteral("A ladder stand in oak timber"));
  const Sizes peaks =
      paintBoth(u'B', QStringLiteral("Bstand2"), QStringLiteral("A ground blind in lodgepole"));
  for (const Sizes* s : {&hills, &peaks}) {
    // The land holds the trees, shrubs and rocks; the sky its clouds.
    const double sky = difference(s->small, s->fineBroughtDown, 0, kPanoramaHeight / 2);
    const double land = difference(s->small, s->fineBroughtDown, kPanoramaHeight / 2, kPanoramaHeight);
    // A painter that counted its trees by pixels put three times as many in the large
    // picture; both differences then came to 24..69.
    EXPECT_LT(land, 6);
    EXPECT_LT(sky, 6);
  }
}

}  // namespace

TEST(WorldgenSizes, TheLodgeRangeAndMapAreTheSameRoomsAtEverySize) {
  const auto broughtDown = [](const QImage& fine) {
    return fine.scaled(kPanoramaWidth, kPanoramaHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
  };
  const int w = kPanoramaWidth * kScale, h = kPanoramaHeight * kScale;
  const QImage pairs[][2] = {{paintLodge({}), broughtDown(paintLodge({}, w, h))},
                             {paintRange({}), broughtDown(paintRange({}, w, h))},
                             {paintMap(u'T', {}), broughtDown(paintMap(u'T', {}, w, h))}};
  for (const auto& [small, fine] : pairs) {
    EXPECT_EQ(fine.size(), small.size());
    EXPECT_LT(difference(small, fine, 0, kPanoramaHeight), 6);
  }
}
