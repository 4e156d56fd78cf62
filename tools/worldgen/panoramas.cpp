// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/panoramas.h"
#include "tools/worldgen/two_painters.h"

#include "tools/worldgen/fine_detail.h"
#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/stable_random.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

// Resolution code "1" is drawn on screens about 1920 pixels wide: a picture three times the
// small one shows one image pixel to one screen pixel at the centre of the view. Codes "6"
// and "8" keep the small picture. The optics magnify twice, so their picture is twice the
// large one, and every code shares it.
constexpr int kFineScale = 3;
constexpr int kOpticsScale = 2 * kFineScale;

struct Picture {
  int scale;         // times the small picture's size
  const char* mark;  // added to the file name, so each size has its own file
};

constexpr Picture kSmall{1, ""};
constexpr Picture kFine{kFineScale, "f"};
constexpr Picture kOptics{kOpticsScale, "x"};

QString fieldOfView(int width, int height) {
  const double degrees = 2 * std::atan(3.141592653589793 * height / width) * 180 / 3.141592653589793;
  return QString::number(degrees, 'f', 3);
}

QByteArray manifest(const Place& place, const QString& image, const QSize& size, const QList<Spot>& spots) {
  QString text = QStringLiteral("svh 1\n# ") + place.description + QStringLiteral("\nimage ") + image +
                 QStringLiteral("\ncylindrical ") + fieldOfView(size.width(), size.height()) + u'\n';
  for (const Spot& s : spots) {
    const QRect a = s.area;
    text += QStringLiteral("hotspot %1 %2,%3 %4,%3 %4,%5 %2,%5\n")
                .arg(s.name)
                .arg(a.left())
                .arg(a.top())
                .arg(a.right() + 1)
                .arg(a.bottom() + 1);
  }
  return text.toUtf8();
}

void writeFile(const fs::path& file, const QByteArray& bytes) {
  QFile out(QString::fromStdString(file.string()));
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size())
    throw std::runtime_error("cannot write " + file.string());
}

// The picture's file name: one per area and place, so both world groups share it.
QString imageNameOf(const World& w, const Place& place, const Picture& picture) {
  if (place.name == QStringLiteral("3lodge") || place.name == QStringLiteral("3range"))
    return place.name + QLatin1String(picture.mark) + ".jpg";
  QString kind = QStringLiteral("map");
  if (place.name == campName(w)) kind = QStringLiteral("camp");
  if (place.name == forkName(w)) kind = QStringLiteral("fork");
  for (int s = 1; s <= kStandCount; ++s)
    if (place.name == standName(w, s) || place.name == opticsName(w, s))
      kind = QStringLiteral("stand") + QString::number(s);
  return QString(w.letter) + kind + QLatin1String(picture.mark) + QStringLiteral(".jpg");
}

QImage paintPlace(const World& w, const Place& place, const QList<Spot>& spots, const Picture& picture) {
  const int width = kPanoramaWidth * picture.scale, height = kPanoramaHeight * picture.scale;
  if (place.name == QStringLiteral("3lodge")) return paintLodge(spots, width, height);
  if (place.name == QStringLiteral("3range")) return paintRange(spots, width, height);
  if (place.name == mapName(w)) return paintMap(w.letter, spots, width, height);
  // Every size of a place shows the same scene: the painters' seed is the name of the small one.
  const QString variant = imageNameOf(w, place, kSmall).section(u'.', 0, 0);
  QImage image = paintOutdoorPlace(w.letter, variant, place.description, width, height, spots);
  if (picture.scale > 1) paintFineDetail(image, StableRandom::hashOf(variant));
  return image;
}

QList<Spot> withTerrain(QList<Spot> spots, const std::map<QString, int>& terrain) {
  for (Spot& s : spots)
    if (const auto it = terrain.find(s.name); it != terrain.end()) s.terrain = it->second;
  return spots;
}

class PanoramaWriter {
 public:
  explicit PanoramaWriter(const fs::path& root) : folder_(root / "surnd") { fs::create_directories(folder_); }

  // What lies at each trail point of the world, so the picture shows it under its hotspot.
  void learnTerrain(const World& w, const Content& c) {
    for (const LocationRecord& r : locationRecords(w, c)) terrain_[r.hypername] = r.terrain;
  }

  void write(const World& w, const Place& place) {
    if (place.optics) return write(w, place, kOptics, {QStringLiteral("63")});
    write(w, place, kSmall, {"6", "8"});
    write(w, place, kFine, {"1"});
  }

  // Paints the pictures on two threads: each is independent, and they are most of the work.
  // The largest go first, so neither thread is left with a big one at the end.
  void paintAll() {
    std::stable_sort(jobs_.begin(), jobs_.end(),
                     [](const Job& a, const Job& b) { return a.scale > b.scale; });
    std::vector<std::function<void()>> paint;
    for (const Job& job : jobs_) paint.push_back(job.paint);
    runOnTwoThreads(paint);
  }

 private:
  // One picture of a place and the manifests, one per name prefix, that show it.
  void write(const World& w, const Place& place, const Picture& picture, const QStringList& prefixes) {
    const QSize size(kPanoramaWidth * picture.scale, kPanoramaHeight * picture.scale);
    const QList<Spot> spots = withTerrain(layoutSpots(place.hotspots, size.width(), size.height()), terrain_);
    const QString image = imageNameOf(w, place, picture);
    // Hotspot names differ between the groups, but the things painted under them do not.
    if (painted_.insert(image).second)
      jobs_.push_back({picture.scale, [=, path = folder_ / image.toStdString()] {
                         paintInto(path, paintPlace(w, place, spots, picture));
                       }});
    const QByteArray text = manifest(place, image, size, spots);
    for (const QString& prefix : prefixes)
      writeFile(folder_ / (prefix + place.name + ".svh").toStdString(), text);
  }

  static void paintInto(const fs::path& path, const QImage& picture) {
    if (!picture.save(QString::fromStdString(path.string()), "JPG", 85))
      throw std::runtime_error("cannot write panorama " + path.string());
  }

  fs::path folder_;
  std::set<QString> painted_;
  std::map<QString, int> terrain_;
  struct Job {
    int scale;
    std::function<void()> paint;
  };
  std::vector<Job> jobs_;
};

}  // namespace

QList<Place> panoramaPlaces(const World& w, const Content& c) {
  QList<Place> places = placesOf(w, c);
  // At resolution code 6 a stand's name is its optics view's name, so the one file must also
  // carry the paths away from the stand.
  for (Place& optics : places)
    for (const Place& stand : placesOf(w, c))
      if (optics.optics && stand.name == QLatin1Char('3') + optics.name) optics.hotspots = stand.hotspots;
  return places;
}

void writePanoramas(const Content& c, const fs::path& root) {
  PanoramaWriter writer(root);
  for (const World& w : allWorlds()) {
    writer.learnTerrain(w, c);
    for (const Place& place : panoramaPlaces(w, c)) writer.write(w, place);
  }
  writer.paintAll();
}

}  // namespace worldgen
