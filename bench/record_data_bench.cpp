// SPDX-License-Identifier: GPL-2.0-or-later
// Record look-ups on a 10,000-record file: one criterion look-up, and walking 100 matches.
#include "platform/files.h"
#include "platform/records/record_data.h"
#include "platform/records/record_file.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int kRecords = 10000;
constexpr int kGroups = kRecords / 100;  // every group value has 100 records

// Ten fields like the video table's, written once for the whole run.
const QString& recordFile() {
  static QTemporaryDir dir;
  static const QString path = [] {
    platform::RecordTable table{{"ID", "Animalnum", "Videoname", "Size", "Weight", "HitGun", "HitArrow",
                                 "Escape", "Group", "Description"},
                                {}};
    for (int i = 0; i < kRecords; ++i) {
      const QString n = QString::number(i);
      table.rows << QStringList{
          n,         QString::number(i % 42),      "Clip" + n,           "12.5", "310", "Hit" + n, "EMPTY",
          "Run" + n, QString::number(i % kGroups), "A clip of an animal"};
    }
    const QString file = dir.filePath("video.isd");
    platform::writeRecordFile(file.toStdString(), table);
    return file;
  }();
  return path;
}

void CriterionLookUp(benchmark::State& state) {
  platform::RecordData data;
  data.SetDatabaseName(recordFile());
  int id = 0;
  for (auto _ : state) {
    data.SetCriteria(QStringLiteral("Field(\"Videoname\") = \"clip%1\"").arg(id));
    data.FindFirst();
    benchmark::DoNotOptimize(data.Field(QStringLiteral("Escape")));
    id = (id + 997) % kRecords;
  }
}
BENCHMARK(CriterionLookUp)->Unit(benchmark::kMicrosecond);

void NumberCriterionLookUp(benchmark::State& state) {
  platform::RecordData data;
  data.SetDatabaseName(recordFile());
  int id = 0;
  for (auto _ : state) {
    data.SetCriteria(QStringLiteral("Field(\"ID\") = %1").arg(id));
    data.FindFirst();
    benchmark::DoNotOptimize(data.Field(QStringLiteral("Videoname")));
    id = (id + 997) % kRecords;
  }
}
BENCHMARK(NumberCriterionLookUp)->Unit(benchmark::kMicrosecond);

// The walk alone: the criterion is set and its matches found once, outside the timing.
void FindNextWalkOver100Matches(benchmark::State& state) {
  platform::RecordData data;
  data.SetDatabaseName(recordFile());
  data.SetCriteria(QStringLiteral("Field(\"Group\") = 7"));
  data.FindFirst();
  for (auto _ : state) {
    int seen = 0;
    for (data.FindFirst(); !data.NoMatch(); data.FindNext()) {
      benchmark::DoNotOptimize(data.Field(QStringLiteral("Videoname")));
      ++seen;
    }
    if (seen != 100) state.SkipWithError("the walk did not see 100 matches");
  }
}
BENCHMARK(FindNextWalkOver100Matches)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
