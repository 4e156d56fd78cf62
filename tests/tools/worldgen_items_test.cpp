// SPDX-License-Identifier: GPL-2.0-or-later
// The catalogue's and the gun rack's pictures read back from the files the generator writes:
// every item and every weapon is its own drawing, not another's copy or recolour.
#include "shell/names.h"
#include "tools/worldgen/content.h"
#include "tools/worldgen/pictures.h"

#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace worldgen;

const fs::path& gearRoot() {
  static QTemporaryDir dir;
  static const fs::path root = [] {
    const fs::path r(dir.path().toStdString());
    writeGearPictures(loadContent(defaultContentFolder()), r);
    return r;
  }();
  return root;
}

struct Picture {
  std::string file;
  QImage image;
};

std::vector<Picture> read(const std::string& folder, const std::string& stem, int count) {
  std::vector<Picture> out;
  for (int n = 1; n <= count; ++n) {
    const std::string file = folder + "/" + stem + std::to_string(n) + ".bmp";
    const QImage image(QString::fromStdString((gearRoot() / file).string()));
    EXPECT_FALSE(image.isNull()) << file;
    out.push_back({file, image.convertToFormat(QImage::Format_RGB32)});
  }
  return out;
}

// Where the brightness jumps: the outlines and inner lines that make a drawing what it is,
// the same whatever colours it is painted in.
std::vector<bool> edges(const QImage& image, int rows) {
  std::vector<bool> out;
  const auto grey = [&](int x, int y) { return qGray(image.pixel(x, y)); };
  for (int y = 1; y < rows; ++y)
    for (int x = 1; x < image.width(); ++x)
      out.push_back(std::abs(grey(x, y) - grey(x - 1, y)) + std::abs(grey(x, y) - grey(x, y - 1)) > 60);
  return out;
}

// The share of edge pixels that only one of the two drawings has.
double edgeDistance(const std::vector<bool>& a, const std::vector<bool>& b) {
  int either = 0, one = 0;
  for (size_t i = 0; i < a.size(); ++i) {
    either += a[i] || b[i];
    one += a[i] != b[i];
  }
  return either == 0 ? 0 : double(one) / either;
}

// Each pair differs in its pixels, and in its lines by at least `minimum`.
void expectAllDistinct(const std::vector<Picture>& pictures, double artShare, double minimum) {
  std::vector<std::vector<bool>> lines;
  for (const Picture& p : pictures) lines.push_back(edges(p.image, int(p.image.height() * artShare)));
  for (size_t i = 0; i < pictures.size(); ++i)
    for (size_t j = i + 1; j < pictures.size(); ++j) {
      EXPECT_NE(pictures[i].image, pictures[j].image) << pictures[i].file << " " << pictures[j].file;
      EXPECT_GT(edgeDistance(lines[i], lines[j]), minimum) << pictures[i].file << " " << pictures[j].file;
    }
}

int itemCount() {
  return int(loadContent(defaultContentFolder()).catalog.rows.size());
}

TEST(GearPictures, EveryItemIsItsOwnDrawing) {
  // Only the drawing above the name counts: a copied drawing under another name is still a copy.
  expectAllDistinct(read("invpics", "image", itemCount()), 0.68, 0.2);
}

TEST(GearPictures, EveryItemIconDiffersFromTheOthers) {
  expectAllDistinct(read("invpics", "icon", itemCount()), 1.0, 0.1);
}

TEST(GearPictures, EveryWeaponIsItsOwnDrawing) {
  expectAllDistinct(read("pict", "weapon", kWeaponCount), 1.0, 0.2);
  expectAllDistinct(read("pict", "xweapon", kWeaponCount), 1.0, 0.2);
}

TEST(GearPictures, ThePermitRackDrawsItsOwnGunsAndTheSameBows) {
  const std::vector<Picture> standard = read("pict", "weapon", kWeaponCount);
  const std::vector<Picture> permit = read("pict", "xweapon", kWeaponCount);
  for (int n = 0; n < 7; ++n) EXPECT_NE(standard[n].image, permit[n].image) << n + 1;
  for (int n = 7; n < kWeaponCount; ++n) EXPECT_EQ(standard[n].image, permit[n].image) << n + 1;
}

TEST(GearPictures, EdgeDistanceSeesARecolourAsTheSameDrawing) {
  const std::vector<Picture> items = read("invpics", "image", 1);
  QImage recoloured = items[0].image;
  recoloured.invertPixels();
  const int rows = int(recoloured.height() * 0.68);
  EXPECT_LT(edgeDistance(edges(items[0].image, rows), edges(recoloured, rows)), 0.05);
}

}  // namespace
