// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/panoramas.h"
#include "tools/worldgen/two_painters.h"

#include "tools/worldgen/panorama_scenes.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>

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

constexpr int kOpticsScale = 2;  // the optics picture is twice as fine as the stand's

const char* const kResolutionCodes[] = {"6", "8", "1"};

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
QString imageNameOf(const World& w, const Place& place) {
  if (place.name == QStringLiteral("3lodge") || place.name == QStringLiteral("3range"))
    return place.name + ".jpg";
  QString kind = QStringLiteral("map");
  if (place.name == campName(w)) kind = QStringLiteral("camp");
  if (place.name == forkName(w)) kind = QStringLiteral("fork");
  for (int s = 1; s <= kStandCount; ++s)
    if (place.name == standName(w, s) || place.name == opticsName(w, s))
      kind = QStringLiteral("stand") + QString::number(s);
  return QString(w.letter) + kind + (place.optics ? QStringLiteral("x.jpg") : QStringLiteral(".jpg"));
}

QImage paintPlace(const World& w, const Place& place, const QList<Spot>& spots, int scale) {
  if (place.name == QStringLiteral("3lodge")) return paintLodge(spots);
  if (place.name == QStringLiteral("3range")) return paintRange(spots);
  if (place.name == mapName(w)) return paintMap(w.letter, spots);
  const QString variant = imageNameOf(w, place).section(u'.', 0, 0).remove(QStringLiteral("x"));
  return paintOutdoorPlace(w.letter, variant, place.description, kPanoramaWidth * scale,
                           kPanoramaHeight * scale, spots);
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
    const int scale = place.optics ? kOpticsScale : 1;
    const QSize size(kPanoramaWidth * scale, kPanoramaHeight * scale);
    const QList<Spot> spots = withTerrain(layoutSpots(place.hotspots, size.width(), size.height()), terrain_);
    const QString image = imageNameOf(w, place);
    // Hotspot names differ between the groups, but the things painted under them do not.
    if (painted_.insert(image).second)
      jobs_.push_back(
          [=, path = folder_ / image.toStdString()] { paintInto(path, paintPlace(w, place, spots, scale)); });
    const QByteArray text = manifest(place, image, size, spots);
    if (place.optics) return writeFile(folder_ / ("63" + place.name + ".svh").toStdString(), text);
    for (const char* code : kResolutionCodes)
      writeFile(folder_ / (code + place.name + ".svh").toStdString(), text);
  }

  // Paints the pictures on two threads: each is independent, and they are most of the work.
  void paintAll() { runOnTwoThreads(jobs_); }

 private:
  static void paintInto(const fs::path& path, const QImage& picture) {
    if (!picture.save(QString::fromStdString(path.string()), "JPG", 85))
      throw std::runtime_error("cannot write panorama " + path.string());
  }

  fs::path folder_;
  std::set<QString> painted_;
  std::map<QString, int> terrain_;
  std::vector<std::function<void()>> jobs_;
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
