// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/clips.h"
#include "tools/worldgen/two_painters.h"

#include "shell/names.h"
#include "tools/worldgen/clip_writer.h"
#include "tools/worldgen/landscape.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/tables.h"
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

constexpr int kEscapeFrames = 30;
constexpr int kHitFrames = 27;
constexpr int kPassFrames = 45;
constexpr int kFilmFrames = 60;
constexpr double kGround = 205;
constexpr int kSliceMs = 360;

double pixelsPerMetre(const AnimalLook& look) {
  return std::clamp(95 / look.metres, 22.0, 75.0);
}

double smooth(double t) {
  t = std::clamp(t, 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

Pose basePose(int animal, int k) {
  Pose pose;
  pose.pixelsPerMetre = pixelsPerMetre(lookOf(animal));
  pose.facing = k % 2 ? 1 : -1;
  pose.ground = kGround - k * 6;
  return pose;
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
  const AnimalLook& look = lookOf(animal);
  writeClip(file, frames, [&](QImage& picture, int n) {
    picture = backdrop.copy();
    QPainter p(&picture);
    drawAnimal(p, look, poseAt(n));
  });
}

Pose escapePose(int animal, int k, int n) {
  Pose pose = encounterPose(animal, k, kEncounterFrames - 1);
  pose.facing = -pose.facing;  // turns and bolts back the way it came
  pose.swing = 1;
  pose.stride = n * 0.16;
  pose.headLift = 0.3;
  pose.x += pose.facing * (n * n * 0.35 + n * 3);
  pose.ground -= std::abs(std::sin(n * 0.5)) * 6;  // bounding
  return pose;
}

Pose hitPose(int animal, int k, int n, bool arrow) {
  Pose pose = encounterPose(animal, k, kEncounterFrames - 1);
  const int run = arrow ? 10 : 4;  // an arrowed animal runs a few bounds before it drops
  pose.swing = n < run ? 1 : 0;
  pose.stride = n * 0.16;
  pose.x += pose.facing * std::min(n, run) * 6;
  const double fall = n < run ? 0 : smooth((n - run) / 8.0);  // legs give way, it rolls and lies still
  pose.tilt = n < run ? -8 : 14 * fall;
  pose.legFold = fall;
  pose.headLift = -fall;
  return pose;
}

Pose passPose(int animal, int n) {
  Pose pose = basePose(animal, 1);
  pose.swing = 0.5;
  pose.stride = n * 0.08;
  pose.x = -40 + n * 400.0 / kPassFrames;
  pose.headLift = std::sin(n * 0.2) * 0.3;
  return pose;
}

// Hoof prints in the ground, panning by; blood drops on the second film.
void paintTracks(QImage& picture, const QImage& backdrop, int n, bool blood) {
  picture = backdrop.copy();
  QPainter p(&picture);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  for (int i = -2; i < 12; ++i) {
    const double x = i * 34 - std::fmod(n * 3.0, 68.0) + (i % 2) * 10;
    const double y = 170 + (i % 2) * 18;
    p.setBrush(QColor(60, 45, 35, 170));
    p.drawEllipse(QRectF(x, y, 7, 11));
    p.drawEllipse(QRectF(x + 8, y, 7, 11));
    if (blood && i % 3 == 0) {
      p.setBrush(QColor(150, 10, 10));
      p.drawEllipse(QRectF(x + 20, y + 14, 4, 3));
    }
  }
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
        writeClip(path, kPassFrames, [&](QImage& picture, int n) { paintTracks(picture, back, n, t == 1); });
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
// that part whichever picture is on screen; the middle picture's zone when they share none.
HitZone commonZone(const HitZone& a, const HitZone& b) {
  const HitZone both{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                     std::min(a.bottom, b.bottom), a.code};
  return both.left <= both.right && both.top <= both.bottom ? both : a;
}

HitRecord sliceRecord(int animal, int k, int record) {
  QList<int> frames;
  for (int n = 0; n < kEncounterFrames; ++n)
    if (recordOfFrame(n) == record) frames << n;
  if (frames.isEmpty()) frames << kEncounterFrames - 1;
  HitRecord out = hitZonesOf(lookOf(animal), encounterPose(animal, k, frames[frames.size() / 2]));
  for (const int n : frames) {
    const HitRecord zones = hitZonesOf(lookOf(animal), encounterPose(animal, k, n));
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
  const double walkIn = smooth(n / 30.0);
  pose.x = 160 - pose.facing * (110 - 90 * walkIn) + pose.facing * k * 12;
  pose.swing = n < 30 ? 0.5 : 0;
  pose.stride = std::min(n, 30) * 0.07;
  // Walks in, grazes, then lifts its head and looks about.
  pose.headLift = n < 30 ? 0 : n < 52 ? -1 : std::min(1.0, (n - 52) / 4.0);
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
