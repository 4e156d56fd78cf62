// SPDX-License-Identifier: GPL-2.0-or-later
// One snapshot per game species' encounter clip, under trophy\.
#include "tools/worldgen/trophy_photos.h"

#include "shell/names.h"
#include "tools/worldgen/animal_view.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/materials.h"
#include "tools/worldgen/picture_files.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/world_layout.h"

#include <algorithm>
#include <set>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr QSize kPhoto(320, 240);

// The animal as the hunter last saw it, head up so its antlers or horns show, lit by the low
// sun and framed as a snapshot with a white border.
QImage trophyPhoto(QChar world, const QString& clip, int species) {
  QImage image = paintLandscape({world, clip, kPhoto.width(), kPhoto.height(), 0.4, false});
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  StableRandom rnd(clip);
  Pose pose;
  const QSizeF extent = animalExtent(species);
  pose.pixelsPerMetre = std::min(230 / extent.width(), 190 / extent.height());
  pose.x = rnd.between(140, 180);
  pose.ground = 222;
  pose.facing = rnd.below(2) ? 1 : -1;
  pose.headLift = 1;
  drawAnimal(p, species, pose);
  // Warm late light from the left, then the print's border.
  QLinearGradient light(0, 0, kPhoto.width(), 0);
  light.setColorAt(0, QColor(255, 200, 120, 40));
  light.setColorAt(1, QColor(40, 40, 80, 40));
  p.fillRect(image.rect(), light);
  p.setPen(QPen(QColor(0xf8f6f0), 10));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(image.rect()).adjusted(5, 5, -5, -5));
  return image;
}

}  // namespace

QImage recordBookPicture(const Content& c, int species) {
  const QString worlds = cell(c.animals, animalRow(c, species), QStringLiteral("Worlds"));
  const QChar home = worlds.isEmpty() ? QChar(u'B') : worlds.at(0);
  QImage image = paintLandscape({home, QStringLiteral("trophy"), 320, 240, 0.42, false});
  QPainter p(&image);
  Pose pose;
  pose.ground = 225;
  const QSizeF extent = animalExtent(species);
  pose.pixelsPerMetre = std::min(250 / extent.width(), 200 / extent.height());
  pose.headLift = 1;
  drawAnimal(p, species, pose);
  return image;
}

void writeTrophyPhotos(const Content& c, const fs::path& root) {
  std::set<QString> done;
  for (const World& w : allWorlds())
    for (const int animal : animalsOf(c, w.letter)) {
      if (animal > kSpeciesCount) continue;
      for (int k = 1; k <= clipsPerAnimal(animal); ++k) {
        const QString clip = clipName(w, c, animal, 'c', k);
        if (done.insert(clip.toLower()).second)
          saveJpeg(trophyPhoto(w.letter, clip, animal),
                   root / "trophy" / (clip + QStringLiteral(".jpg")).toStdString());
      }
    }
}

}  // namespace worldgen
