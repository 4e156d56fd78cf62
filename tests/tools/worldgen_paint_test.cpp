// SPDX-License-Identifier: GPL-2.0-or-later
// The painted part of the sample world read back: hit zones lie on the animal the clip shows
// in the slice that reads them, panoramas load with the hotspots of their place, and the
// sounds are long enough for the ranges that cut them.
#include "platform/media/video_reader.h"
#include "platform/panorama/panorama_manifest.h"
#include "shell/names.h"
#include "tools/animal_alone.h"
#include "tools/worldgen/animal_figure.h"
#include "tools/worldgen/animal_view.h"
#include "tools/worldgen/clip_writer.h"
#include "tools/worldgen/clips.h"
#include "tools/worldgen/content.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/panoramas.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/sounds.h"
#include "tools/worldgen/wav_file.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace {

namespace fs = std::filesystem;
using namespace worldgen;

const Content& content() {
  static const Content c = loadContent(defaultContentFolder());
  return c;
}

fs::path tempRoot(const QTemporaryDir& dir) {
  return fs::path(dir.path().toStdString());
}

QByteArray readBytes(const fs::path& file) {
  QFile in(QString::fromStdString(file.string()));
  return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

HitRecord recordAt(const QByteArray& file, int record) {
  HitRecord out{};
  const auto* values = reinterpret_cast<const uchar*>(file.constData()) + (record - 1) * 50;
  for (int z = 0; z < 5; ++z) {
    int16_t v[5];
    for (int i = 0; i < 5; ++i) v[i] = int16_t(values[(z * 5 + i) * 2] | values[(z * 5 + i) * 2 + 1] << 8);
    out[size_t(z)] = {v[0], v[1], v[2], v[3], v[4]};
  }
  return out;
}

// The record the game reads for a picture shown at `ms`.
int recordFor(int64_t ms) {
  return std::max<int64_t>(1, ms / 360);
}

int colourDistance(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

TEST(WorldgenHitZones, TheVitalZoneLiesOnTheBodyInEveryPictureOfItsSlice) {
  QTemporaryDir dir;
  const QImage backdrop = clipBackdrop(u'T', 2);
  for (int species = 1; species <= kSpeciesCount; ++species) {
    for (const int k : {1, 2}) {
      SCOPED_TRACE(speciesNameOf(species).toStdString() + " clip " + std::to_string(k));
      const fs::path clip = tempRoot(dir) / "clip.avi";
      writeEncounterClip(clip, backdrop, species, k);
      const QByteArray zones = hitZoneFile(species, k);
      platform::VideoReader reader(clip);
      ASSERT_TRUE(reader.isOpen());
      platform::VideoFrame frame;
      int n = 0;
      for (; reader.next(frame); ++n) {
        ASSERT_EQ(frame.ptsMs, frameTimeMs(n));
        const HitRecord record = recordAt(zones, recordFor(frame.ptsMs));
        const auto vital =
            std::find_if(record.begin(), record.end(), [](const HitZone& z) { return z.code == kVitalZone; });
        ASSERT_NE(vital, record.end());
        const QPoint centre((vital->left + vital->right) / 2, (vital->top + vital->bottom) / 2);
        const Pose pose = encounterPose(species, k, n);
        if (!QRect(0, 0, kClipWidth, kClipHeight).contains(centre)) continue;  // still walking in
        EXPECT_GT(qAlpha(animalAlone(species, pose).pixel(centre)), 200) << "picture " << n;
        QImage drawn = backdrop.copy();
        QPainter(&drawn).drawImage(0, 0, animalAlone(species, pose));
        EXPECT_LT(colourDistance(frame.image.pixel(centre), drawn.pixel(centre)), 60) << "picture " << n;
      }
      EXPECT_EQ(n, kEncounterFrames);
    }
  }
}

TEST(WorldgenHitZones, RecordsCoverTheClipAndNeverLeadWithAnEmptyZone) {
  const int slices = frameTimeMs(kEncounterFrames - 1) / 360;
  for (int species = 1; species <= kSpeciesCount; ++species) {
    const QByteArray zones = hitZoneFile(species, 3);
    ASSERT_EQ(zones.size(), 50 * slices) << speciesNameOf(species).toStdString();
    for (int r = 1; r <= slices; ++r) {
      const HitRecord record = recordAt(zones, r);
      EXPECT_GT(record[0].code, 0);  // an empty first zone would count every click as a hit
      for (const HitZone& z : record) {
        EXPECT_LE(z.left, z.right);
        EXPECT_LE(z.top, z.bottom);
        EXPECT_LT(z.right, kClipWidth);
        EXPECT_LT(z.bottom, kClipHeight);
      }
    }
    const HitRecord standing = recordAt(zones, slices);
    const bool antlered = lookOf(species).headgear != Headgear::None;
    EXPECT_EQ(standing[0].code, antlered ? kHeadgearZone : kVitalZone)
        << speciesNameOf(species).toStdString();
  }
}

TEST(WorldgenPanoramas, EveryManifestLoadsWithTheHotspotsOfItsPlace) {
  QTemporaryDir dir;
  writePanoramas(content(), tempRoot(dir));
  int manifests = 0;
  for (const World& w : allWorlds()) {
    for (const Place& place : panoramaPlaces(w, content())) {
      const QStringList codes = place.optics ? QStringList{"63"} : QStringList{"6", "8", "1"};
      for (const QString& code : codes) {
        const fs::path file = tempRoot(dir) / "surnd" / (code + place.name + ".svh").toStdString();
        const auto result = platform::readManifest(file);
        const auto* manifest = std::get_if<platform::PanoramaManifest>(&result);
        ASSERT_TRUE(manifest) << file << ": "
                              << std::get<platform::ManifestError>(result).message.toStdString();
        QStringList names;
        for (const auto& spot : manifest->hotspots) names << spot.name;
        EXPECT_EQ(names, place.hotspots) << file;
        const QSize size = QImageReader(QString::fromStdString(manifest->image.string())).size();
        EXPECT_EQ(platform::checkHotspotBounds(*manifest, size.width(), size.height()), QString()) << file;
        EXPECT_NEAR(manifest->verticalFovDegrees, 61, 1) << file;
        // A stand is seen one to one at code "1", and twice as fine again through the optics.
        if (const QString image = QString::fromStdString(manifest->image.filename().string());
            image.contains(QStringLiteral("stand"))) {
          const int expected = image.endsWith(QStringLiteral("x.jpg"))   ? 12288
                               : image.endsWith(QStringLiteral("f.jpg")) ? 6144
                                                                         : 2048;
          EXPECT_EQ(size.width(), expected) << file;
        }
        // Every place, the lodge, range and map too, is sharp at code "1".
        if (code == QStringLiteral("1")) {
          EXPECT_EQ(size.width(), 6144) << file;
        }
        ++manifests;
      }
    }
  }
  EXPECT_GT(manifests, 150);
}

TEST(WorldgenPanoramas, ScenesJoinUpAtTheSeamOfTheTurn) {
  for (const QChar world : {u'P', u'D', u'B', u'T', u'Y'}) {
    const QImage strip = paintLandscape({world, QStringLiteral("seam"), 1024, 192, 0.5, true});
    const auto differing = [&](int left, int right) {
      int rows = 0;
      for (int y = 0; y < strip.height(); ++y)
        rows += colourDistance(strip.pixel(left, y), strip.pixel(right, y)) > 90;
      return rows;
    };
    // Neighbouring columns across the seam differ only where an edge happens to fall, no more
    // than anywhere else in the strip: a trunk may end right at the seam.
    int elsewhere = strip.height() / 8;
    for (int x = 1; x < strip.width(); ++x) elsewhere = std::max(elsewhere, differing(x - 1, x));
    EXPECT_LE(differing(strip.width() - 1, 0), elsewhere) << QString(world).toStdString();
  }
}

TEST(WorldgenPanoramas, HotspotsOfAPlaceNeverCoverOneAnother) {
  for (const World& w : allWorlds()) {
    for (const Place& place : panoramaPlaces(w, content())) {
      const QList<Spot> spots = layoutSpots(place.hotspots, kPanoramaWidth, kPanoramaHeight);
      for (qsizetype i = 0; i < spots.size(); ++i) {
        EXPECT_TRUE(QRect(0, 0, kPanoramaWidth, kPanoramaHeight).contains(spots[i].area))
            << spots[i].name.toStdString();
        for (qsizetype j = i + 1; j < spots.size(); ++j)
          EXPECT_FALSE(spots[i].area.intersects(spots[j].area))
              << place.name.toStdString() << ": " << spots[i].name.toStdString() << " and "
              << spots[j].name.toStdString();
      }
    }
  }
}

TEST(WorldgenSounds, CallsAndAmbientTracksOutlastTheRangesThatCutThem) {
  QTemporaryDir dir;
  writeSounds(content(), tempRoot(dir));
  const auto animals = wavLengthMs(readBytes(tempRoot(dir) / "sound" / "animals.wav"));
  ASSERT_TRUE(animals);
  for (const QStringList& row : animalSoundRecords(content()).rows) EXPECT_LE(row[2].toInt(), *animals);
  for (const World& w : distinctAreas()) {
    const auto ambient =
        wavLengthMs(readBytes(tempRoot(dir) / "sound" / ("a" + w.areaCode + ".wav").toStdString()));
    ASSERT_TRUE(ambient) << w.name.toStdString();
    EXPECT_GE(*ambient, 4000) << w.name.toStdString();  // the longest snippet the field plays
  }
  std::set<QByteArray> shots;
  for (int n = 1; n <= kWeaponCount; ++n)
    shots.insert(readBytes(tempRoot(dir) / "sound" / ("wepsnd" + std::to_string(n) + ".wav")));
  EXPECT_EQ(shots.size(), size_t(kWeaponCount));
}

}  // namespace
