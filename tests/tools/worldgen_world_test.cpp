// SPDX-License-Identifier: GPL-2.0-or-later
// The generated sample world read back the way the game reads it: same bytes every run,
// every table the right shape, every record and every name it refers to in place.
#include "platform/files.h"
#include "platform/records/record_data.h"
#include "platform/records/record_file.h"
#include "platform/text_file.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "tools/generated_world.h"
#include "tools/worldgen/content.h"
#include "tools/worldgen/media_refs.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/speech_lines.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/wav_file.h"
#include "tools/worldgen/world_layout.h"
#include "tools/worldgen/world_writer.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

namespace fs = std::filesystem;
using namespace worldgen;

QByteArray readBytes(const fs::path& file) {
  QFile in(QString::fromStdString(file.string()));
  return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

std::map<QString, QByteArray> digests(const fs::path& root) {
  std::map<QString, QByteArray> out;
  QDirIterator it(QString::fromStdString(root.string()), QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QString path = it.next();
    out[path.mid(int(root.string().size()))] =
        QCryptographicHash::hash(readBytes(path.toStdString()), QCryptographicHash::Sha256);
  }
  return out;
}

// Rows of a table as its readers see them: fields split at commas, quotes kept.
QList<QStringList> tableRows(const QString& name) {
  QList<QStringList> rows;
  for (const QByteArray& line : readBytes(worldRoot() / "data" / name.toStdString()).split('\n'))
    if (!line.trimmed().isEmpty()) rows << QString::fromUtf8(line.trimmed()).split(u',');
  return rows;
}

QString gamePath(const QString& relative) {
  return QStringLiteral("W:\\") + relative;
}

class MappedWorld : public ::testing::Test {
 protected:
  void SetUp() override { platform::files().mapDrive(u'W', worldRoot()); }
};

platform::RecordTable records(const World& w, const QString& name) {
  return platform::readRecordFile(platform::files().resolve(gamePath(w.recordFolder() + u'\\' + name)));
}

TEST(WorldgenDeterminism, TwoRunsWriteTheSameBytes) {
  QTemporaryDir dir;
  const fs::path again = fs::path(dir.path().toStdString()) / "again";
  writeWorld(content(), again);
  const auto first = digests(fullWorldRoot());
  const auto second = digests(again);
  EXPECT_GT(first.size(), 900u);
  ASSERT_EQ(first.size(), second.size());
  for (const auto& [name, digest] : first) EXPECT_EQ(second.at(name), digest) << name.toStdString();
}

TEST(WorldgenTables, HaveTheRowsAndColumnsTheirReadersSkipThrough) {
  struct Shape {
    const char* name;
    int rows;
    int columns;
  };
  const Shape shapes[] = {{"items.csv", 61, 4},   {"tools.csv", 15, 17},  {"notequip.csv", 4, 16},
                          {"weptab.csv", 27, 18}, {"tagcost.csv", 1, 17}, {"taglimt.csv", 1, 16}};
  for (const Shape& s : shapes) {
    const auto rows = tableRows(s.name);
    ASSERT_EQ(rows.size(), s.rows) << s.name;
    for (const QStringList& row : rows) EXPECT_EQ(row.size(), s.columns) << s.name;
  }
  for (const World& w : distinctAreas()) {
    const auto habitat = tableRows(QStringLiteral("H") + w.areaCode + QStringLiteral(".csv"));
    ASSERT_EQ(habitat.size(), 1);
    EXPECT_EQ(habitat[0].size(), kSpeciesCount) << qPrintable(w.name);
    EXPECT_EQ(tableRows(QStringLiteral("q") + w.areaCode + QStringLiteral(".csv")).size(), 101);
  }
}

TEST(WorldgenTables, WeaponRatingsFollowTheirRules) {
  for (int band = 0; band <= 2; ++band)
    for (int weapon = 1; weapon <= kWeaponCount; ++weapon) {
      const QStringList row = tableRows("weptab.csv").at(band * 9 + weapon - 1);
      EXPECT_EQ(row[0].toInt(), weapon);
      EXPECT_EQ(row[1].toInt(), 0) << "no species, no rating";
      for (int s = 1; s <= kSpeciesCount; ++s) {
        const int r = row[s + 1].toInt();
        EXPECT_TRUE(r == -10 || (r >= 1 && r <= 12)) << weapon << " " << s << " " << r;
      }
    }
  const int turkey = 15, grizzly = 10, whitetail = 16;
  EXPECT_EQ(weaponRating(content(), 1, turkey, 0), -10) << "rifles are unlawful for turkey";
  EXPECT_EQ(weaponRating(content(), 8, grizzly, 0), -10) << "bows are unsuited to the big bears";
  EXPECT_LT(weaponRating(content(), 8, whitetail, 2), weaponRating(content(), 8, whitetail, 0));
  EXPECT_GT(weaponRating(content(), 4, grizzly, 2), weaponRating(content(), 1, whitetail, 2) - 10);
}

TEST_F(MappedWorld, TheDefaultGameIsAGameFileThatStartsMondayMorning) {
  Game = GameState{};
  Game.Money = 1;
  ReadSaveFile(gamePath("data\\newgam.csv"), kGameKind);
  EXPECT_EQ(readBytes(worldRoot() / "data" / "newgam.csv").count("\r\n"), saveFileLines(kGameKind));
  EXPECT_EQ(Game.Money, 2500);
  EXPECT_EQ(rt::formatDate(Game.GameDate, "dddd h:mm AMPM"), QStringLiteral("Monday 6:00 AM"));
  EXPECT_EQ(rt::day(Game.GameDate), 22);
  EXPECT_EQ(Game.StartPano, QStringLiteral("3lodge"));
  EXPECT_EQ(Game.OwnedItems[1], kEmptyOwnedEntry);
  EXPECT_EQ(Game.TagsOwned[16], kTagNone);
}

TEST_F(MappedWorld, TheTestHoldsEnoughTrueAndFalseQuestions) {
  rt::ListInput in(platform::files().resolve(gamePath("data\\htest.csv")));
  int lines = 0, trues = 0;
  while (!in.eof()) {
    const int answer = in.inputInt16();
    const QString question = in.inputString();
    ASSERT_TRUE(answer == 0 || answer == 1);
    EXPECT_GT(question.size(), 20) << question.toStdString();
    trues += answer;
    ++lines;
  }
  EXPECT_GE(lines, 29);
  EXPECT_GT(trues, lines / 3);
  EXPECT_LT(trues, 2 * lines / 3);
}

TEST_F(MappedWorld, EverySpeechKeyHasOneToThreeLinesWithAVoicedStretch) {
  for (const World& w : allWorlds()) {
    platform::RecordData links, lines;
    links.SetDatabaseName(gamePath(w.recordFolder() + "\\Clinks.isd"));
    lines.SetDatabaseName(gamePath(w.recordFolder() + u'\\' + w.letter + "snoun.isd"));
    for (const QString& key : requiredSpeechKeys()) {
      links.SetCriteria(QStringLiteral("Field(\"Hypname\") = \"%1\"").arg(key));
      links.SetOrderBy("sequence");
      int count = 0;
      for (links.FindFirst(); !links.NoMatch(); links.FindNext()) {
        ++count;
        lines.SetCriteria(QStringLiteral("Field(\"Conv Name\") = ") + links.Field("Conv Name").trimmed());
        lines.FindFirst();
        ASSERT_FALSE(lines.NoMatch()) << key.toStdString();
        const auto length = wavLengthMs(
            readBytes(platform::files().resolve(gamePath("sound\\" + lines.Field("Wave File") + ".wav"))));
        ASSERT_TRUE(length) << lines.Field("Wave File").toStdString();
        EXPECT_LT(lines.Field("Engstart").toInt(), lines.Field("Engend").toInt());
        EXPECT_LE(lines.Field("Engend").toInt(), *length);
        EXPECT_FALSE(lines.Field("Engtext1").trimmed().isEmpty());
      }
      EXPECT_GE(count, 1) << key.toStdString() << " in " << w.name.toStdString();
      EXPECT_LE(count, 3) << key.toStdString();
    }
  }
}

TEST_F(MappedWorld, EverySpeciesOfAWorldHasEncounterClips) {
  for (const World& w : allWorlds()) {
    const auto table = records(w, QString(w.letter) + "video.isd");
    std::map<int, int> clips;
    for (const QStringList& row : table.rows) {
      const int animal = row[0].toInt();
      ASSERT_GE(animal, 1);
      ASSERT_LE(animal, kAnimalCount);
      ++clips[animal];
      bool ok = true;
      if (!row[2].isEmpty()) row[2].toDouble(&ok);
      EXPECT_TRUE(ok) << "size " << row[2].toStdString();
      EXPECT_GT(row[3].toDouble(), 0) << row[1].toStdString();
      EXPECT_EQ(row[6] == kNoClip, animal > kSpeciesCount) << row[1].toStdString();
    }
    const auto habitat = tableRows(QStringLiteral("H") + w.areaCode + QStringLiteral(".csv")).at(0);
    for (int s = 1; s <= kSpeciesCount; ++s)
      EXPECT_EQ(clips[s] > 0, habitat[s - 1] == "1")
          << speciesNameOf(s).toStdString() << " in " << w.name.toStdString();
    int others = 0;
    for (int a = kSpeciesCount + 1; a <= kAnimalCount; ++a) others += clips[a] > 0;
    EXPECT_GE(others, 6) << w.name.toStdString();
  }
}

TEST_F(MappedWorld, EveryPathLeadsToAPlaceTheGameCanName) {
  for (const World& w : allWorlds()) {
    const auto table = records(w, QString(w.letter) + "paths.isd");
    ASSERT_EQ(table.fields, QStringList({"Hypername", "Location", "Loctype", "filejump", "Description",
                                         "Range", "Yards", "Terrain"}));
    QStringList keys;
    for (const QStringList& row : table.rows) {
      keys << row[0].toUpper();
      if (row[0].startsWith(u'^')) {
        int loctype = -1;
        ASSERT_TRUE(isBuildablePlace(w, row[3], &loctype)) << row[3].toStdString();
        EXPECT_EQ(row[2].toInt(), loctype) << row[0].toStdString();
        if (loctype == 3) {
          EXPECT_EQ(row[4].right(1), row[3].right(1)) << "a stand's text ends in its number";
        }
        // The place's text goes into the save file bare; a comma would cut it, and the sights after it.
        EXPECT_FALSE(row[4].contains(u',')) << row[4].toStdString();
      } else {
        ASSERT_TRUE(row[0].startsWith(u'~'));
        EXPECT_GE(row[7].toInt(), 1) << "every trail point has ground to remark on";
        const int band = row[5].toInt(), yards = row[6].toInt();
        EXPECT_TRUE(band >= 0 && band <= 2);
        EXPECT_TRUE(yards >= (band == 0 ? 1 : band * 100) && yards < (band + 1) * 100 + 150);
      }
    }
    EXPECT_TRUE(keys.contains("^CAMP") && keys.contains("^3LODGE"));
    for (int s = 1; s <= kStandCount; ++s) {
      EXPECT_TRUE(keys.contains(QLatin1Char('^') + standName(w, s).toUpper()));
      for (int p = 0; p < kTrailPointsPerStand; ++p) EXPECT_TRUE(keys.contains(trailPointKey(w, s, p)));
    }
    for (const Place& place : placesOf(w, content()))
      for (const QString& hotspot : place.hotspots)
        if (hotspot.startsWith(u'^') || hotspot.startsWith(u'~')) {
          EXPECT_TRUE(keys.contains(hotspot.toUpper())) << hotspot.toStdString();
        }
  }
}

TEST_F(MappedWorld, RecordFilesCarryTheFieldsTheScreensRead) {
  for (const World& w : worldsOf(false) + worldsOf(true)) {
    const auto catalog = records(w, "catalog.isd");
    EXPECT_EQ(catalog.rows.size(), 60);
    for (const QStringList& row : catalog.rows) {
      EXPECT_GT(row[3].toInt(), 0) << row[1].toStdString();
      EXPECT_EQ(row[5].toInt() >= 1 && row[5].toInt() <= 5, true);
      EXPECT_TRUE(row[7].toInt() >= 1 && row[7].toInt() <= 16) << row[1].toStdString();
    }
    const auto weapons = records(w, "weapon.isd");
    ASSERT_EQ(weapons.rows.size(), kWeaponCount);
    for (const QStringList& row : weapons.rows) {
      EXPECT_EQ(row[1], weaponNameIn(w.permit, row[0].toInt()));
      for (const QString& value : row) EXPECT_FALSE(value.trimmed().isEmpty());
    }
    EXPECT_EQ(records(w, "Asounds.isd").rows.size(), 2 * kSpeciesCount);
  }
}

TEST(WorldgenCompleteness, EveryNamedFileIsThere) {
  platform::files().mapDrive(u'W', fullWorldRoot());
  QStringList missing;
  for (const MediaRef& ref : referencedMedia(content()))
    if (!platform::files().exists(gamePath(ref.path))) missing << ref.path;
  EXPECT_TRUE(missing.isEmpty()) << missing.size() << " missing: " << missing.join(u' ').toStdString();
}

// The pictures the screens build, spelled out here as the screens spell them rather than taken
// from the generator's own list, read from the full world's records where they name them.
QStringList picturesTheScreensBuild(const fs::path& root) {
  QStringList paths;
  for (const char* code : {"6", "8", "1"})
    for (const char* name : {"mainmnu", "splash", "Postcd2", "bino", "rngf"})
      paths << QStringLiteral("art\\%1%2.bmp").arg(QLatin1String(code), QLatin1String(name));
  for (int n = 0; n < kWorldCount; ++n) paths << QStringLiteral("art\\world%1.bmp").arg(n);
  for (const char* name : {"load", "nitel", "nitec", "endgame", "bettluk", "jail", "mdnlogo"})
    paths << QStringLiteral("art\\%1.bmp").arg(QLatin1String(name));
  const char* const sightCodes[] = {"rifle0", "bolt0", "rifle0", "bolt0", "hgun0",
                                    "12ga0",  "54hr0", "Bow0",   "RBow0"};
  for (int weapon = 1; weapon <= kWeaponCount; ++weapon) {
    paths << QStringLiteral("pict\\%1%2.bmp").arg(QLatin1String(sightCodes[weapon - 1])).arg(weapon);
    paths << QStringLiteral("pict\\weapon%1.bmp").arg(weapon)
          << QStringLiteral("pict\\wicon%1.bmp").arg(weapon);
  }
  for (int n = 0; n < 10; ++n) paths << QStringLiteral("pict\\bullet%1.bmp").arg(n);
  paths << QStringLiteral("licnpics\\ftag.bmp") << QStringLiteral("licnpics\\natag.bmp");
  for (int s = 1; s <= kSpeciesCount; ++s)
    paths << QStringLiteral("licnpics\\tag%1.bmp").arg(s) << QStringLiteral("art\\Trophy%1.bmp").arg(s);
  for (const World& w : allWorlds()) {
    for (const char* name :
         {"catalog", "invent", "weapon", "license", "htest", "hguide", "peopbox", "award", "trophy"})
      paths << QStringLiteral("art\\") + w.letter + QLatin1String(name) + QStringLiteral(".bmp");
    for (int targetClass = 0; targetClass < 4; ++targetClass)
      paths << QStringLiteral("pict\\") + w.letter + QStringLiteral("range%1.bmp").arg(targetClass);
    const auto read = [&](const QString& name) {
      return platform::readRecordFile(root / w.recordFolder().toStdString() / name.toStdString());
    };
    for (const QStringList& row : read(QString(w.letter) + "snoun.isd").rows)
      paths << QStringLiteral("art\\") + row[7].trimmed() + QStringLiteral(".bmp");
    for (const QStringList& row : read(QString(w.letter) + "video.isd").rows)
      if (row[0].toInt() <= kSpeciesCount)
        paths << QStringLiteral("trophy\\") + row[1].trimmed() + QStringLiteral(".jpg");
    for (const QStringList& row : read("catalog.isd").rows)
      paths << QStringLiteral("invpics\\image%1.bmp").arg(row[0].trimmed())
            << QStringLiteral("invpics\\icon%1.bmp").arg(row[0].trimmed());
  }
  return paths;
}

TEST(WorldgenCompleteness, EveryPictureTheScreensBuildIsThereAndListed) {
  platform::files().mapDrive(u'W', fullWorldRoot());
  std::set<QString> listed;
  for (const MediaRef& ref : referencedMedia(content())) listed.insert(ref.path.toLower());
  QStringList missing, unlisted;
  for (const QString& path : picturesTheScreensBuild(fullWorldRoot())) {
    if (!platform::files().exists(gamePath(path))) missing << path;
    if (!listed.count(path.toLower())) unlisted << path;
  }
  EXPECT_TRUE(missing.isEmpty()) << missing.size() << " missing: " << missing.join(u' ').toStdString();
  EXPECT_TRUE(unlisted.isEmpty()) << unlisted.size()
                                  << " not in the list: " << unlisted.join(u' ').toStdString();
}

TEST(WorldgenCompleteness, PicturesAreReadableAtTheSizesTheScreensDrawThem) {
  const fs::path art = fullWorldRoot() / "art";
  for (const auto& [code, width] : {std::pair{"6", 640}, std::pair{"8", 800}, std::pair{"1", 1024}})
    for (const char* name : {"mainmnu", "splash", "Postcd2", "bino", "rngf"}) {
      const QImage image(QString::fromStdString((art / (std::string(code) + name + ".bmp")).string()));
      ASSERT_FALSE(image.isNull()) << code << name;
      EXPECT_EQ(image.width(), width) << code << name;
      EXPECT_EQ(image.height(), width * 3 / 4) << code << name;
    }
  for (const World& w : distinctAreas()) {
    const QImage box(
        QString::fromStdString((art / (QString(w.letter) + "peopbox.bmp").toStdString()).string()));
    EXPECT_EQ(box.size(), QSize(560, 200));
  }
}

// The optics overlay is seen through where it has the colour of its centre pixel; the sights
// and holes where they are magenta. Each must leave its aim clear and cover something.
TEST(WorldgenPictures, OverlaysAndSightsAreSeeThroughWhereTheGameLooks) {
  const fs::path root = fullWorldRoot();
  for (const char* name : {"1bino.bmp", "1rngf.bmp"}) {
    const QImage overlay(QString::fromStdString((root / "art" / name).string()));
    ASSERT_FALSE(overlay.isNull());
    const QRgb glass = overlay.pixel(overlay.width() / 2, overlay.height() / 2);
    EXPECT_NE(overlay.pixel(2, 2), glass) << name << ": the corners are dark";
    const int off = overlay.height() / 5;  // between the reticle's lines
    EXPECT_EQ(overlay.pixel(overlay.width() / 2 - off, overlay.height() / 2 - off), glass) << name;
  }
  const QImage sight(QString::fromStdString((root / "pict" / "rifle01.bmp").string()));
  ASSERT_EQ(sight.width(), 6 * 320);
  const QRgb key = qRgb(255, 0, 255);
  // Weapons 1-4 aim at (159, 65) of each frame: just off the cross hairs the animal shows.
  EXPECT_EQ(sight.pixel(159 + 20, 65 + 20), key);
  EXPECT_NE(sight.pixel(159 + 30, 65), key) << "the cross hair";
  EXPECT_NE(sight.pixel(159, 239), key) << "the rifle below the scope";
  const QImage hole(QString::fromStdString((root / "pict" / "bullet0.bmp").string()));
  EXPECT_EQ(hole.pixel(0, 0), key);
  EXPECT_NE(hole.pixel(hole.width() / 2, hole.height() / 2), key);
}

}  // namespace
