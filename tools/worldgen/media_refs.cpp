// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/media_refs.h"

#include "shell/names.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/speech_lines.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/world_layout.h"

#include <algorithm>
#include <set>

namespace worldgen {

namespace {

const char* const kResolutionCodes[] = {"6", "8", "1"};

class Collector {
 public:
  void add(const QString& path, MediaKind kind) {
    if (seen_.insert(path.toLower()).second) refs_ << MediaRef{path, kind};
  }
  QList<MediaRef> sorted() {
    std::sort(refs_.begin(), refs_.end());
    return refs_;
  }

 private:
  std::set<QString> seen_;
  QList<MediaRef> refs_;
};

void addTables(Collector& out) {
  for (const char* name : {"items.csv", "tools.csv", "notequip.csv", "weptab.csv", "tagcost.csv",
                           "taglimt.csv", "newgam.csv", "htest.csv", "safety.rtf"})
    out.add(QStringLiteral("data\\") + name, MediaKind::Table);
  for (const World& w : distinctAreas()) {
    out.add(QStringLiteral("data\\H") + w.areaCode + QStringLiteral(".csv"), MediaKind::Table);
    out.add(QStringLiteral("data\\q") + w.areaCode + QStringLiteral(".csv"), MediaKind::Table);
  }
}

void addPanoramas(Collector& out, const World& w, const Content& c) {
  for (const Place& place : placesOf(w, c)) {
    if (place.optics) {
      out.add(QStringLiteral("surnd\\63") + place.name + QStringLiteral(".svh"), MediaKind::Panorama);
      continue;
    }
    for (const char* code : kResolutionCodes)
      out.add(QStringLiteral("surnd\\") + code + place.name + QStringLiteral(".svh"), MediaKind::Panorama);
  }
}

void addClips(Collector& out, const World& w, const Content& c) {
  for (const int animal : animalsOf(c, w.letter)) {
    for (int k = 1; k <= clipsPerAnimal(animal); ++k) {
      if (animal > kSpeciesCount) {
        out.add(QStringLiteral("VProt\\") + clipName(w, c, animal, 'p', k) + QStringLiteral(".avi"),
                MediaKind::Clip);
        continue;
      }
      const QString main = clipName(w, c, animal, 'c', k);
      out.add(QStringLiteral("Vmain\\") + main + QStringLiteral(".avi"), MediaKind::Clip);
      out.add(QStringLiteral("Vmain\\") + main + QStringLiteral(".dat"), MediaKind::HitZone);
      out.add(QStringLiteral("VEscapes\\") + clipName(w, c, animal, 'e', k) + QStringLiteral(".avi"),
              MediaKind::Clip);
      for (const char kind : {'h', 'a'})
        out.add(QStringLiteral("VHits\\") + clipName(w, c, animal, kind, k) + QStringLiteral(".avi"),
                MediaKind::Clip);
    }
  }
  out.add(QStringLiteral("art\\") + w.letter + QStringLiteral("Movie.avi"), MediaKind::Clip);
  out.add(QStringLiteral("art\\vrnIntro.avi"), MediaKind::Clip);
  for (int k = 0; k < 2; ++k)
    out.add(QStringLiteral("art\\") + w.letter + QStringLiteral("trak") + QString::number(k) +
                QStringLiteral(".avi"),
            MediaKind::Clip);
}

void addRecords(Collector& out, const World& w, const Content& c) {
  const QString folder = w.recordFolder() + u'\\';
  for (const char* name : {"catalog.isd", "weapon.isd", "Asounds.isd", "Clinks.isd"})
    out.add(folder + name, MediaKind::Record);
  for (const char* name : {"paths.isd", "video.isd", "snoun.isd"})
    out.add(folder + w.letter + name, MediaKind::Record);
  for (const SpokenLine& line : spokenLines(c)) {
    out.add(QStringLiteral("sound\\") + waveFileOf(w, line.speaker) + QStringLiteral(".wav"),
            MediaKind::Voice);
    out.add(QStringLiteral("art\\") + pictureOf(w, line.speaker) + QStringLiteral(".bmp"),
            MediaKind::Picture);
  }
  out.add(QStringLiteral("sound\\a") + w.areaCode + QStringLiteral(".wav"), MediaKind::Sound);
}

void addItemsAndWeapons(Collector& out, const Content& c) {
  for (int row = 0; row < c.catalog.rows.size(); ++row) {
    const QString id = cell(c.catalog, row, "ID");
    out.add(QStringLiteral("invpics\\image") + id + QStringLiteral(".bmp"), MediaKind::Picture);
    out.add(QStringLiteral("invpics\\icon") + id + QStringLiteral(".bmp"), MediaKind::Picture);
    if (cell(c.catalog, row, "Sub-CatNumber") == QStringLiteral("8"))
      out.add(QStringLiteral("sound\\item") + id + QStringLiteral(".wav"), MediaKind::Sound);
  }
  for (int n = 1; n <= kWeaponCount; ++n) {
    const QString id = QString::number(n);
    out.add(QStringLiteral("pict\\weapon") + id + QStringLiteral(".bmp"), MediaKind::Picture);
    out.add(QStringLiteral("pict\\wicon") + id + QStringLiteral(".bmp"), MediaKind::Picture);
    out.add(QStringLiteral("sound\\wepsnd") + id + QStringLiteral(".wav"), MediaKind::Sound);
    out.add(QStringLiteral("sound\\reload") + id + QStringLiteral(".wav"), MediaKind::Sound);
  }
  for (int s = 1; s <= kSpeciesCount; ++s) {
    out.add(QStringLiteral("licnpics\\tag") + QString::number(s) + QStringLiteral(".bmp"),
            MediaKind::Picture);
    out.add(QStringLiteral("art\\Trophy") + QString::number(s) + QStringLiteral(".bmp"), MediaKind::Picture);
  }
  out.add(QStringLiteral("sound\\animals.wav"), MediaKind::Sound);
  out.add(QStringLiteral("sound\\cregstr.wav"), MediaKind::Sound);
}

}  // namespace

QList<MediaRef> referencedMedia(const Content& c) {
  Collector out;
  addTables(out);
  addItemsAndWeapons(out, c);
  for (const World& w : allWorlds()) {
    addRecords(out, w, c);
    addPanoramas(out, w, c);
    addClips(out, w, c);
  }
  return out.sorted();
}

}  // namespace worldgen
