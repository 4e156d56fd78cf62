// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/media_refs.h"

#include "shell/names.h"
#include "tools/worldgen/partner_pages.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/speech_lines.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/world_layout.h"

#include <algorithm>
#include <set>

namespace worldgen {

namespace {

const char* const kResolutionCodes[] = {"6", "8", "1"};
// Weapon picture codes by weapon number; the sight picture adds the number itself.
const char* const kWeaponPictureCodes[] = {"rifle0", "bolt0", "rifle0", "bolt0", "hgun0",
                                           "12ga0",  "54hr0", "Bow0",   "RBow0"};

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

void addPicture(Collector& out, const QString& path) {
  out.add(path, MediaKind::Picture);
}

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
      if (animal <= kSpeciesCount)
        addPicture(out, QStringLiteral("trophy\\") + main + QStringLiteral(".jpg"));
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

// Pictures the screens name by resolution code, and those named once for the whole game.
void addScreenPictures(Collector& out) {
  for (const char* code : kResolutionCodes)
    for (const char* name : {"mainmnu", "splash", "Postcd2", "bino", "rngf"})
      addPicture(
          out, QStringLiteral("art\\") + QLatin1String(code) + QLatin1String(name) + QStringLiteral(".bmp"));
  for (int n = 0; n < kWorldCount; ++n) addPicture(out, QStringLiteral("art\\world%1.bmp").arg(n));
  for (const char* name : {"load", "nitel", "nitec", "endgame", "bettluk", "jail", "mdnlogo"})
    addPicture(out, QStringLiteral("art\\") + QLatin1String(name) + QStringLiteral(".bmp"));
  addPicture(out, QStringLiteral("licnpics\\ftag.bmp"));
  addPicture(out, QStringLiteral("licnpics\\natag.bmp"));
  for (int n = 0; n < 10; ++n) addPicture(out, QStringLiteral("pict\\bullet%1.bmp").arg(n));
  for (int weapon = 1; weapon <= kWeaponCount; ++weapon)
    addPicture(out, QStringLiteral("pict\\") + QLatin1String(kWeaponPictureCodes[weapon - 1]) +
                        QString::number(weapon) + QStringLiteral(".bmp"));
  for (const char* folder : kPartnerFolders)
    out.add(QLatin1String(folder) + QStringLiteral("\\index.htm"), MediaKind::Page);
}

// The backgrounds a world's screens build from its area letter, and its range pictures.
void addWorldPictures(Collector& out, const World& w) {
  for (const char* name :
       {"catalog", "invent", "weapon", "license", "htest", "hguide", "peopbox", "award", "trophy"})
    addPicture(out, QStringLiteral("art\\") + w.letter + QLatin1String(name) + QStringLiteral(".bmp"));
  for (int targetClass = 0; targetClass < 4; ++targetClass)
    addPicture(out, QStringLiteral("pict\\") + w.letter + QStringLiteral("range%1.bmp").arg(targetClass));
}

}  // namespace

QList<MediaRef> referencedMedia(const Content& c) {
  Collector out;
  addTables(out);
  addItemsAndWeapons(out, c);
  addScreenPictures(out);
  for (const World& w : allWorlds()) {
    addWorldPictures(out, w);
    addRecords(out, w, c);
    addPanoramas(out, w, c);
    addClips(out, w, c);
  }
  return out.sorted();
}

}  // namespace worldgen
