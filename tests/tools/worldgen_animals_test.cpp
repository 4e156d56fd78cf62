// SPDX-License-Identifier: GPL-2.0-or-later
// The animals of the encounter clips: long enough to be found and aimed at, standing at a size
// that says their range, and a click on the heart a heart hit whether the animal is
// photographed or drawn.
#include "shell/names.h"
#include "tools/animal_alone.h"
#include "tools/worldgen/animal_look.h"
#include "tools/worldgen/animal_outline.h"
#include "tools/worldgen/animal_photos.h"
#include "tools/worldgen/animal_view.h"
#include "tools/worldgen/clip_writer.h"
#include "tools/worldgen/clips.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace worldgen;

constexpr int kSliceMs = 360;

HitRecord recordAt(const QByteArray& file, int record) {
  HitRecord out{};
  const auto* v = reinterpret_cast<const uchar*>(file.constData()) + (record - 1) * 50;
  for (size_t z = 0; z < out.size(); ++z) {
    int16_t f[5];
    for (int i = 0; i < 5; ++i)
      f[i] = int16_t(v[(z * 5 + size_t(i)) * 2] | v[(z * 5 + size_t(i)) * 2 + 1] << 8);
    out[z] = {f[0], f[1], f[2], f[3], f[4]};
  }
  return out;
}

const HitZone* zoneOf(const HitRecord& record, int code) {
  const auto it =
      std::find_if(record.begin(), record.end(), [&](const HitZone& z) { return z.code == code; });
  return it == record.end() ? nullptr : &*it;
}

bool onScreen(const HitZone* z) {
  return z && z->left >= 0 && z->top >= 0;
}

// The longest run of records holding a zone of one of `codes` in the picture, in milliseconds.
int longestStretchMs(const QByteArray& zones, std::initializer_list<int> codes) {
  int best = 0, run = 0;
  for (int r = 1; r <= int(zones.size() / 50); ++r) {
    const HitRecord record = recordAt(zones, r);
    const bool present =
        std::any_of(codes.begin(), codes.end(), [&](int c) { return onScreen(zoneOf(record, c)); });
    run = present ? run + (r == 1 ? 2 : 1) : 0;  // record 1 serves two slices
    best = std::max(best, run);
  }
  return best * kSliceMs;
}

// Photographs where the package is installed, drawings where it is not; both must play.
class EncounterAnimals : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (GetParam()) {
      setAnimalPhotoFolder(defaultFolder());
      if (!animalPhotosFound()) GTEST_SKIP() << "no animal photographs installed";
    } else {
      setAnimalPhotoFolder({});
    }
  }
  void TearDown() override { setAnimalPhotoFolder(defaultFolder()); }
  static std::filesystem::path defaultFolder() { return "/usr/share/tuxpaint/stamps/animals"; }
};

TEST_P(EncounterAnimals, GameClipsLastLongEnoughWithTheVitalsInViewForEightSeconds) {
  const int clipMs = frameTimeMs(kEncounterFrames);
  EXPECT_GE(clipMs, 12000);
  EXPECT_LE(clipMs, 20000);
  for (int species = 1; species <= kSpeciesCount; ++species)
    for (int k = 1; k <= 3; ++k) {
      const QByteArray zones = hitZoneFile(species, k);
      ASSERT_EQ(zones.size(), 50 * (frameTimeMs(kEncounterFrames - 1) / kSliceMs));
      EXPECT_GE(longestStretchMs(zones, {kVitalZone}), 8000) << speciesNameOf(species).toStdString() << k;
      // It comes in from cover and goes on: not in view from the first picture to the last.
      EXPECT_FALSE(onScreen(zoneOf(recordAt(zones, 1), kBodyZone))) << speciesNameOf(species).toStdString();
    }
}

TEST_P(EncounterAnimals, TheHeartIsLargerNearAndCanBeHitAtCloseRange) {
  auto heartAt = [](int species, int k) {
    const HitRecord record = recordAt(hitZoneFile(species, k), 20);
    const HitZone* z = zoneOf(record, kVitalZone);
    return z ? QSize(z->right - z->left + 1, z->bottom - z->top + 1) : QSize();
  };
  for (int species = 1; species <= kSpeciesCount; ++species) {
    SCOPED_TRACE(speciesNameOf(species).toStdString());
    const QSize near = heartAt(species, 1), middle = heartAt(species, 2), far = heartAt(species, 3);
    EXPECT_GE(std::min(near.width(), near.height()), 9);
    EXPECT_GT(near.width() * near.height(), middle.width() * middle.height());
    EXPECT_GT(middle.width() * middle.height(), far.width() * far.height());
    EXPECT_GE(std::min(far.width(), far.height()), 2);
  }
}

// A click on the middle of the heart zone lands on the animal in every picture of that slice,
// from its first steps into view to its last.
TEST_P(EncounterAnimals, TheHeartZoneLiesOnTheAnimalAtEverySliceItIsInView) {
  for (const int species : {2, 3, 9, 10, 11, 14, 15, 16}) {
    const int k = species % 3 + 1;
    const QByteArray zones = hitZoneFile(species, k);
    for (int n = 3; n < kEncounterFrames; n += 17) {
      const HitRecord record = recordAt(zones, std::max(1, frameTimeMs(n) / kSliceMs));
      const HitZone* heart = zoneOf(record, kVitalZone);
      ASSERT_NE(heart, nullptr);
      if (!onScreen(heart)) continue;
      const QPoint centre((heart->left + heart->right) / 2, (heart->top + heart->bottom) / 2);
      EXPECT_GT(qAlpha(animalAlone(species, encounterPose(species, k, n)).pixel(centre)), 200)
          << speciesNameOf(species).toStdString() << " picture " << n;
    }
  }
}

TEST_P(EncounterAnimals, NoZoneLeavesThePictureAndTheFirstIsNeverEmpty) {
  for (int species = 1; species <= kSpeciesCount; ++species) {
    const QByteArray zones = hitZoneFile(species, 2);
    for (int r = 1; r <= int(zones.size() / 50); ++r)
      for (const HitZone& z : recordAt(zones, r)) {
        EXPECT_GT(recordAt(zones, r)[0].code, 0);
        if (!onScreen(&z)) continue;
        EXPECT_LE(z.left, z.right);
        EXPECT_LE(z.top, z.bottom);
        EXPECT_LT(z.right, kClipWidth);
        EXPECT_LT(z.bottom, kClipHeight);
      }
  }
}

INSTANTIATE_TEST_SUITE_P(PhotographedOrDrawn, EncounterAnimals, ::testing::Bool());

TEST(AnimalPhotographs, MissingFolderDrawsEveryAnimal) {
  setAnimalPhotoFolder("/nonexistent/stamps");
  EXPECT_FALSE(animalPhotosFound());
  for (int animal = 1; animal <= 42; ++animal) EXPECT_EQ(photoOf(animal), nullptr);
  setAnimalPhotoFolder("/usr/share/tuxpaint/stamps/animals");
}

// The authored anatomy must fall on the cut-out: a heart or head in thin air would be a zone
// that scores a hit on the scenery.
TEST(AnimalPhotographs, AuthoredHeartHeadAndGutLieOnTheCutOut) {
  setAnimalPhotoFolder("/usr/share/tuxpaint/stamps/animals");
  if (!animalPhotosFound()) GTEST_SKIP() << "no animal photographs installed";
  int photographed = 0;
  for (int species = 1; species <= kSpeciesCount; ++species) {
    const AnimalPhoto* photo = photoOf(species);
    if (!photo) continue;
    ++photographed;
    for (const QRectF& part : {photo->vital, photo->head, photo->gut}) {
      const QPoint at(int(part.center().x() * photo->image.width()),
                      int(part.center().y() * photo->image.height()));
      EXPECT_GT(qAlpha(photo->image.pixel(at)), 200) << speciesNameOf(species).toStdString();
    }
  }
  EXPECT_EQ(photographed, 10);
}

double filledShare(const QImage& drawn, const HitZone& z) {
  int filled = 0, all = 0;
  for (int y = z.top; y <= z.bottom; ++y)
    for (int x = z.left; x <= z.right; ++x, ++all) filled += qAlpha(drawn.pixel(x, y)) > 128;
  return double(filled) / std::max(1, all);
}

QRect paintedBounds(const QImage& drawn) {
  QRect r;
  for (int y = 0; y < drawn.height(); ++y)
    for (int x = 0; x < drawn.width(); ++x)
      if (qAlpha(drawn.pixel(x, y)) > 128) r |= QRect(x, y, 1, 1);
  return r;
}

// Drawn species with authored outlines: what is painted for body, head and horns fills the
// boxes the shot tests, and nothing is painted above them or ahead of the nose.
TEST(AnimalOutlines, AuthoredShapesFillTheZonesTheShotTests) {
  setAnimalPhotoFolder({});
  int outlined = 0;
  for (int species = 1; species <= kSpeciesCount; ++species) {
    if (!outlineOf(species)) continue;
    ++outlined;
    for (const int facing : {1, -1})
      for (const double stride : {0.0, 0.3}) {
        Pose pose;
        pose.pixelsPerMetre = 120 / lookOf(species).metres;
        pose.facing = facing;
        pose.stride = stride;
        pose.swing = 0.6;
        const QImage drawn = animalAlone(species, pose);
        const std::string name = speciesNameOf(species).toStdString();
        QRect zones;
        for (const HitZone& z : hitZonesOf(species, pose)) {
          const double least = z.code == kHeadgearZone ? 0.15 : z.code == kLegZone ? 0.05 : 0.4;
          EXPECT_GT(filledShare(drawn, z), least) << name << " zone " << z.code;
          zones |= QRect(QPoint(z.left, z.top), QPoint(z.right, z.bottom));
        }
        const QRect painted = paintedBounds(drawn);
        EXPECT_GE(painted.top(), zones.top() - 1) << name;
        EXPECT_TRUE(facing > 0 ? painted.right() <= zones.right() + 1 : painted.left() >= zones.left() - 1)
            << name;
      }
  }
  EXPECT_EQ(outlined, 6);
  setAnimalPhotoFolder("/usr/share/tuxpaint/stamps/animals");
}

}  // namespace
