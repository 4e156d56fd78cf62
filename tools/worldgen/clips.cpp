// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/clips.h"
#include "tools/worldgen/two_painters.h"

#include "shell/names.h"
#include "tools/worldgen/animal_photos.h"
#include "tools/worldgen/animal_view.h"
#include "tools/worldgen/clip_writer.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/tracking_film.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>
#include <QPainter>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <map>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr int kEscapeFrames = 36;
constexpr int kHitFrames = 42;
constexpr int kPassFrames = 45;
constexpr int kFilmFrames = 60;
constexpr int kSliceMs = 360;
// The encounter's acts, in pictures: out of cover, broadside, and on its way.
constexpr int kArrive = 60;
constexpr int kLeave = 205;
constexpr int kStandFrame = 130;  // a typical moment for a shot, where escapes and hits begin

double smooth(double t) {
  t = std::clamp(t, 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

// The k-th clip of a species is seen at close, middle or long range.
double clipYards(int k) {
  constexpr double yards[] = {45, 45, 110, 190};
  return yards[std::clamp(k, 0, 3)];
}

double bodyPixels(int animal, const Pose& pose) {
  const AnimalPhoto* photo = photoOf(animal);
  return (photo ? photo->metres : lookOf(animal).metres) * pose.pixelsPerMetre;
}

// Size by range as a 9x scope shows it, but never wider than two thirds of the picture nor
// taller than its ground leaves room for.
Pose basePose(int animal, int k) {
  Pose pose;
  const QSizeF extent = animalExtent(animal);
  pose.ground = 222 - (k - 1) * 18;
  pose.pixelsPerMetre =
      std::min({4800 / clipYards(k), 210 / extent.width(), (pose.ground - 12) / extent.height()});
  pose.facing = k % 2 ? 1 : -1;
  pose.haze = clipYards(k) / 900;
  return pose;
}

// Where the animal's middle is in picture n: in from beyond the edge, a step while it feeds,
// and out past the other edge.
double encounterX(int animal, int k, double n) {
  const Pose base = basePose(animal, k);
  const double body = bodyPixels(animal, base), f = base.facing;
  const double stand = 160 + f * (k - 2) * 18;
  const double outside = kClipWidth / 2.0 + body * 0.8 + 10;  // head and tail reach past the middle
  if (n < kArrive) {
    const double t = n / kArrive;
    return stand - f * outside * (1 - t) * (1 - t);  // slows as it comes clear of cover
  }
  const double step = smooth((n - 112) / 16.0) * body * 0.18;
  if (n < kLeave) return stand + f * step;
  const double t = (n - kLeave) / double(kEncounterFrames - kLeave);
  return stand + f * (step + outside * t * (0.6 + 0.4 * t));
}

double headAt(int n) {
  if (n < kArrive + 6) return 0;
  if (n < 100) return -1;                              // feeds
  if (n < 128) return std::min(1.0, (n - 100) / 6.0);  // lifts its head, looks, steps on
  if (n < 165) return -smooth((n - 128) / 6.0);        // feeds again
  if (n < kLeave) return std::min(1.0, (n - 165) / 6.0) * (n < 190 ? 1 : 0.3);
  return 0.2;
}
// Background pictures, one per world and clip number, painted once.
class Backdrops {
 public:
  const QImage& of(QChar world, int k) {
    const QString key = QString(world) + QString::number(k);
    auto it = cache_.find(key);
    if (it == cache_.end())
      it = cache_
               .emplace(key, paintLandscape(
                                 {world, QStringLiteral("clip") + key, kClipWidth, kClipHeight, 0.42, false}))
               .first;
    return it->second;
  }

 private:
  std::map<QString, QImage> cache_;
};

void writeBytes(const fs::path& file, const QByteArray& bytes) {
  fs::create_directories(file.parent_path());
  QFile out(QString::fromStdString(file.string()));
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size())
    throw std::runtime_error("cannot write " + file.string());
}

using PoseAt = std::function<Pose(int)>;
using Job = std::function<void()>;

void writeAnimalClip(const fs::path& file, const QImage& backdrop, int animal, int frames,
                     const PoseAt& poseAt) {
  writeClip(file, frames, [&](QImage& picture, int n) {
    picture = backdrop.copy();
    QPainter p(&picture);
    drawAnimal(p, animal, poseAt(n));
  });
}

Pose standingPose(int animal, int k) {
  Pose pose = encounterPose(animal, k, kStandFrame);
  pose.headLift = 1;
  return pose;
}

// Turns and bounds off the way it came, gathering speed.
Pose escapePose(int animal, int k, int n) {
  Pose pose = standingPose(animal, k);
  const double body = bodyPixels(animal, pose);
  pose.facing = -pose.facing;
  const double run = n * 0.06 * body + n * n * 0.0025 * body;
  pose.x += pose.facing * run;
  pose.swing = 1;
  pose.stride = run / (1.6 * body);
  pose.ground -= std::abs(std::sin(pose.stride * 3.14159265)) * 0.12 * body;  // bounds
  pose.tilt = -6 * std::cos(pose.stride * 6.2831853);
  pose.headLift = 0.4;
  return pose;
}

// Hit: a lunge or a short run, a stagger, the forelegs buckle, then it settles and lies still.
Pose hitPose(int animal, int k, int n, bool arrow) {
  Pose pose = standingPose(animal, k);
  const double body = bodyPixels(animal, pose);
  const int run = arrow ? 10 : 3;
  const double moved = body * 0.035 * std::min(n, run) + body * 0.012 * std::clamp(n - run, 0, 8);
  pose.x += pose.facing * moved;
  pose.stride = moved / (0.9 * body);
  pose.swing = n < run ? 1 : n < run + 8 ? 0.4 : 0;
  const double buckle = smooth((n - run - 6) / 6.0), settle = smooth((n - run - 12) / 8.0);
  const double stagger = n < run + 8 ? std::sin(n * 1.3) * 7 : 0;
  pose.tilt = stagger + 14 * buckle - 11 * settle;
  pose.legFold = 0.55 * buckle + 0.45 * settle;
  pose.headLift = n < run ? 0 : -smooth((n - run) / 14.0);
  return pose;
}

Pose passPose(int animal, int n) {
  Pose pose = basePose(animal, 1);
  pose.pixelsPerMetre = std::min(pose.pixelsPerMetre, 150 / lookOf(animal).metres);
  pose.swing = 0.6;
  pose.x = -60 + n * 440.0 / kPassFrames;
  pose.stride = pose.x / (0.9 * bodyPixels(animal, pose));
  pose.headLift = std::sin(n * 0.2) * 0.3;
  return pose;
}

// The area film: a slow pan across the world under its name.
void paintAreaFilm(QImage& picture, const QImage& wide, const QString& title, int n) {
  picture.fill(Qt::black);
  QPainter p(&picture);
  p.drawImage(QPoint(-n * (wide.width() - kClipWidth) / kFilmFrames, 0), wide);
  QFont font = p.font();
  font.setPixelSize(26);
  font.setBold(true);
  p.setFont(font);
  p.setPen(QColor(0, 0, 0, 140));
  p.drawText(QRect(2, 22, kClipWidth, 40), Qt::AlignCenter, title);
  p.setPen(QColor(0xf4f0e6));
  p.drawText(QRect(0, 20, kClipWidth, 40), Qt::AlignCenter, title);
}

class ClipSet {
 public:
  ClipSet(const Content& c, const fs::path& root) : c_(c), root_(root) {}

  void addWorld(const World& w) {
    for (const int animal : animalsOf(c_, w.letter))
      for (int k = 1; k <= clipsPerAnimal(animal); ++k) addAnimal(w, animal, k);
    addFilms(w);
  }
  const std::vector<Job>& jobs() const { return jobs_; }

 private:
  bool fresh(const QString& path) { return written_.insert(path.toLower()).second; }
  fs::path file(const char* folder, const QString& name, const char* ext) {
    return root_ / folder / (name + ext).toStdString();
  }

  void addClip(const fs::path& path, const QImage& back, int animal, int frames, PoseAt poseAt) {
    jobs_.push_back([=] { writeAnimalClip(path, back, animal, frames, poseAt); });
  }

  void addAnimal(const World& w, int animal, int k) {
    const QImage& back = backdrops_.of(w.letter, k);
    if (animal > kSpeciesCount) {
      const QString name = clipName(w, c_, animal, 'p', k);
      if (fresh(name))
        addClip(file("VProt", name, ".avi"), back, animal, kPassFrames,
                [=](int n) { return passPose(animal, n); });
      return;
    }
    const QString main = clipName(w, c_, animal, 'c', k);
    if (!fresh(main)) return;
    const fs::path mainClip = file("Vmain", main, ".avi");
    jobs_.push_back([=] { writeEncounterClip(mainClip, back, animal, k); });
    writeBytes(file("Vmain", main, ".dat"), hitZoneFile(animal, k));
    addClip(file("VEscapes", clipName(w, c_, animal, 'e', k), ".avi"), back, animal, kEscapeFrames,
            [=](int n) { return escapePose(animal, k, n); });
    addClip(file("VHits", clipName(w, c_, animal, 'h', k), ".avi"), back, animal, kHitFrames,
            [=](int n) { return hitPose(animal, k, n, false); });
    addClip(file("VHits", clipName(w, c_, animal, 'a', k), ".avi"), back, animal, kHitFrames,
            [=](int n) { return hitPose(animal, k, n, true); });
  }

  void addFilms(const World& w) {
    const QString letter(w.letter);
    if (!fresh(letter + "Movie")) return;
    const QImage back = backdrops_.of(w.letter, 9);
    for (int t = 0; t < 2; ++t) {
      const fs::path path = file("art", letter + "trak" + QString::number(t), ".avi");
      jobs_.push_back([=] {
        writeClip(path, kPassFrames, [&, world = w.letter](QImage& picture, int n) {
          paintTrackingFilm(picture, back, world, n, t == 1);
        });
      });
    }
    const QImage wide =
        paintLandscape({w.letter, QStringLiteral("film"), kClipWidth * 3, kClipHeight, 0.45, false});
    addFilm(file("art", letter + "Movie", ".avi"), wide, w.name);
    // The game's intro flies over the first world it paints.
    if (fresh(QStringLiteral("vrnIntro")))
      addFilm(file("art", "vrnIntro", ".avi"), wide, QStringLiteral("Hunting"));
  }

  void addFilm(const fs::path& path, const QImage& wide, const QString& title) {
    jobs_.push_back([=] {
      writeClip(path, kFilmFrames, [&](QImage& picture, int n) { paintAreaFilm(picture, wide, title, n); });
    });
  }

  const Content& c_;
  fs::path root_;
  Backdrops backdrops_;
  std::set<QString> written_;
  std::vector<Job> jobs_;
};

void putZone(QByteArray& out, const HitZone& z) {
  for (const int16_t v : {z.left, z.top, z.right, z.bottom, z.code}) {
    out.append(char(uint16_t(v) & 0xff));
    out.append(char(uint16_t(v) >> 8));
  }
}

// The record the game reads while picture n is on screen.
int recordOfFrame(int n) {
  return std::max(1, frameTimeMs(n) / kSliceMs);
}

// The part of a zone the animal covers in every picture of a slice, so a click inside it hits
// that part whichever picture is on screen; nothing to hit when the part moves too far.
HitZone commonZone(const HitZone& a, const HitZone& b) {
  const HitZone both{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                     std::min(a.bottom, b.bottom), a.code};
  if (both.left <= both.right && both.top <= both.bottom) return both;
  return {-10, -10, -10, -10, a.code};
}

HitRecord sliceRecord(int animal, int k, int record) {
  QList<int> frames;
  for (int n = 0; n < kEncounterFrames; ++n)
    if (recordOfFrame(n) == record) frames << n;
  if (frames.isEmpty()) frames << kEncounterFrames - 1;
  HitRecord out = hitZonesOf(animal, encounterPose(animal, k, frames[frames.size() / 2]));
  for (const int n : frames) {
    const HitRecord zones = hitZonesOf(animal, encounterPose(animal, k, n));
    for (size_t z = 0; z < out.size(); ++z) out[z] = commonZone(out[z], zones[z]);
  }
  return out;
}

}  // namespace

void writeEncounterClip(const fs::path& file, const QImage& backdrop, int animal, int k) {
  writeAnimalClip(file, backdrop, animal, kEncounterFrames,
                  [=](int n) { return encounterPose(animal, k, n); });
}

QImage clipBackdrop(QChar world, int k) {
  return paintLandscape(
      {world, QStringLiteral("clip") + world + QString::number(k), kClipWidth, kClipHeight, 0.42, false});
}

Pose encounterPose(int animal, int k, int n) {
  Pose pose = basePose(animal, k);
  pose.x = encounterX(animal, k, n);
  const double body = bodyPixels(animal, pose);
  pose.stride = std::abs(pose.x - encounterX(animal, k, 0)) / (0.9 * body);
  // Legs swing with the ground covered, so the feet do not slide.
  pose.swing = std::clamp(std::abs(encounterX(animal, k, n + 1) - pose.x) / (0.02 * body), 0.0, 0.8);
  pose.headLift = headAt(n);
  return pose;
}

QByteArray hitZoneFile(int animal, int k) {
  const int lastRecord = frameTimeMs(kEncounterFrames - 1) / kSliceMs;
  QByteArray out;
  for (int r = 1; r <= std::max(1, lastRecord); ++r)
    for (const HitZone& z : sliceRecord(animal, k, r)) putZone(out, z);
  return out;
}

void writeClips(const Content& c, const fs::path& root) {
  ClipSet clips(c, root);
  for (const World& w : allWorlds()) clips.addWorld(w);
  runOnTwoThreads(clips.jobs());
}

}  // namespace worldgen
