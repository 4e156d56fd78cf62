// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/world_writer.h"

#include "tools/worldgen/clips.h"
#include "tools/worldgen/guide_rtf.h"
#include "tools/worldgen/panoramas.h"
#include "tools/worldgen/pictures.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/sounds.h"
#include "tools/worldgen/start_files.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/voices.h"

#include <QFile>

#include <map>
#include <stdexcept>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

void writeBytes(const fs::path& file, const QByteArray& bytes) {
  fs::create_directories(file.parent_path());
  QFile out(QString::fromStdString(file.string()));
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size())
    throw std::runtime_error("cannot write " + file.string());
}

void writeTables(const Content& c, const fs::path& data) {
  writeBytes(data / "items.csv", itemsTable(c));
  writeBytes(data / "tools.csv", toolsTable(c));
  writeBytes(data / "notequip.csv", notEquipTable(c));
  writeBytes(data / "weptab.csv", weaponTable(c));
  writeBytes(data / "tagcost.csv", tagCostTable(c));
  writeBytes(data / "taglimt.csv", tagLimitTable(c));
  writeBytes(data / "htest.csv", testTable(c));
  writeBytes(data / "safety.rtf", guideRtf(c.guide));
  for (const World& w : distinctAreas()) {
    writeBytes(data / ("H" + w.areaCode.toStdString() + ".csv"), habitatTable(c, w));
    writeBytes(data / ("q" + w.areaCode.toStdString() + ".csv"), quickHuntTable(c, w));
  }
  writeNewGame(data / "newgam.csv");
}

void writeGroup(const Content& c, const fs::path& root, bool permit,
                const std::map<QChar, WorldVoices>& voices) {
  const QList<World> worlds = worldsOf(permit);
  const fs::path folder = root / worlds.first().recordFolder().toStdString();
  platform::writeRecordFile(folder / "catalog.isd", catalogRecords(c));
  platform::writeRecordFile(folder / "weapon.isd", weaponRecords(c, permit));
  platform::writeRecordFile(folder / "Asounds.isd", animalSoundRecords(c));
  platform::writeRecordFile(folder / "Clinks.isd", conversationLinks(c));
  for (const World& w : worlds) {
    const std::string letter(1, char(w.letter.unicode()));
    platform::writeRecordFile(folder / (letter + "paths.isd"), pathRecords(w, c));
    platform::writeRecordFile(folder / (letter + "video.isd"), videoRecords(w, c));
    platform::writeRecordFile(folder / (letter + "snoun.isd"), spokenLineRecords(w, c, voices.at(w.letter)));
  }
}

}  // namespace

void writeWorld(const Content& c, const fs::path& root, WorldParts parts, const StageReport& onStage) {
  const auto stage = [&onStage](std::string_view name) {
    if (onStage) onStage(name);
  };
  stage("tables");
  writeTables(c, root / "data");
  stage("voices");
  const QList<SpokenLine> lines = spokenLines(c);
  std::map<QChar, WorldVoices> voices;
  for (const World& w : distinctAreas()) {
    voices[w.letter] = voiceWorld(lines, w);
    for (const auto& [name, bytes] : voices[w.letter].files)
      writeBytes(root / "sound" / (name.toStdString() + ".wav"), bytes);
  }
  stage("records");
  writeGroup(c, root, false, voices);
  writeGroup(c, root, true, voices);
  if (parts != WorldParts::Everything) return;
  stage("panoramas");
  writePanoramas(c, root);
  stage("clips");
  writeClips(c, root);
  stage("pictures");
  writePictures(c, root);
  stage("sounds");
  writeSounds(c, root);
}

}  // namespace worldgen
