// SPDX-License-Identifier: GPL-2.0-or-later
// The fine grain of the large panoramas: which colours get which grain, that sky stays
// smooth, that the grain runs the way the surface does and joins up across the seam.
#include "tools/worldgen/fine_detail.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace worldgen {
namespace {

QImage flat(QRgb colour, int width = 400, int height = 200) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

double brightness(QRgb p) {
  return (qRed(p) * 3 + qGreen(p) * 6 + qBlue(p)) / 10.0;
}

// Mean brightness step between a pixel and its neighbour `dx`, `dy` away.
double meanStep(const QImage& image, int dx, int dy) {
  double sum = 0;
  int count = 0;
  for (int y = 0; y + dy < image.height(); ++y)
    for (int x = 0; x + dx < image.width(); ++x, ++count)
      sum += std::abs(brightness(image.pixel(x, y)) - brightness(image.pixel(x + dx, y + dy)));
  return sum / count;
}

double meanBrightness(const QImage& image) {
  double sum = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) sum += brightness(image.pixel(x, y));
  return sum / (image.width() * image.height());
}

TEST(FineDetail, TellsSurfacesByColourAndHowLowTheyLie) {
  EXPECT_EQ(surfaceOf(qRgb(120, 160, 215), 0.2), Surface::Sky);
  EXPECT_EQ(surfaceOf(qRgb(70, 110, 150), 0.7), Surface::Sky);  // open water stays smooth
  EXPECT_EQ(surfaceOf(qRgb(240, 244, 250), 0.8), Surface::Snow);
  EXPECT_EQ(surfaceOf(qRgb(240, 244, 250), 0.2), Surface::Sky);  // a cloud, not a drift
  EXPECT_EQ(surfaceOf(qRgb(40, 70, 35), 0.3), Surface::Foliage);
  EXPECT_EQ(surfaceOf(qRgb(90, 140, 50), 0.8), Surface::Grass);
  EXPECT_EQ(surfaceOf(qRgb(200, 110, 40), 0.3), Surface::Foliage);  // leaves turned in autumn
  EXPECT_EQ(surfaceOf(qRgb(80, 55, 35), 0.3), Surface::Bark);
  EXPECT_EQ(surfaceOf(qRgb(150, 146, 150), 0.2), Surface::Sky);   // overcast
  EXPECT_EQ(surfaceOf(qRgb(170, 150, 135), 0.3), Surface::Sky);   // a far ridge in haze
  EXPECT_EQ(surfaceOf(qRgb(150, 120, 70), 0.8), Surface::Grass);  // dry grass and litter
  EXPECT_EQ(surfaceOf(qRgb(120, 118, 112), 0.6), Surface::Stone);
}

TEST(FineDetail, GrainsEverySurfaceButTheSkyAndKeepsItsTone) {
  // Seeds are names' hashes: their high half is as often above the largest int as not.
  for (const uint64_t seed : {uint64_t{1}, uint64_t{0xF000002A00000000ull}}) {
    QImage sky = flat(qRgb(120, 160, 215));
    paintFineDetail(sky, seed);
    EXPECT_EQ(sky, flat(qRgb(120, 160, 215))) << std::hex << seed;
  }
  for (const QRgb colour : {qRgb(40, 70, 35), qRgb(80, 55, 35), qRgb(90, 140, 50), qRgb(120, 118, 112)}) {
    QImage image = flat(colour);
    paintFineDetail(image, 1);
    EXPECT_GT(meanStep(image, 1, 0) + meanStep(image, 0, 1), 2.0) << std::hex << colour;
    EXPECT_NEAR(meanBrightness(image), brightness(colour), brightness(colour) * 0.06) << std::hex << colour;
  }
}

TEST(FineDetail, BarkRunsDownAndTheSameSeedPaintsTheSame) {
  QImage bark = flat(qRgb(80, 55, 35));
  paintFineDetail(bark, 7);
  const QImage top = bark.copy(0, 0, 400, 70);
  EXPECT_LT(meanStep(top, 0, 1) * 2, meanStep(top, 1, 0));
  QImage again = flat(qRgb(80, 55, 35));
  paintFineDetail(again, 7);
  EXPECT_EQ(again, bark);
  QImage other = flat(qRgb(80, 55, 35));
  paintFineDetail(other, 8);
  EXPECT_NE(other, bark);
}

TEST(FineDetail, JoinsUpAcrossTheSeam) {
  QImage leaves = flat(qRgb(40, 70, 35), 600, 60);
  paintFineDetail(leaves, 3);
  double seam = 0;
  for (int y = 0; y < leaves.height(); ++y)
    seam += std::abs(brightness(leaves.pixel(0, y)) - brightness(leaves.pixel(leaves.width() - 1, y)));
  // No worse than neighbouring columns anywhere else; glints make single columns vary.
  EXPECT_LT(seam / leaves.height(), meanStep(leaves, 1, 0) * 1.6);
}

}  // namespace
}  // namespace worldgen
