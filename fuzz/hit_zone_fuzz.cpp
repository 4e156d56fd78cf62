// SPDX-License-Identifier: GPL-2.0-or-later
// Fuzzes the hit-zone file reader: the first two bytes pick the record, the rest is the file.
#include "fuzz_support.h"
#include "shooting/hit_zone_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const int number = int(int16_t(data[0] | data[1] << 8));
  const QString path = fuzzing::writeInput(data + 2, size - 2, QStringLiteral("clip.dat"));
  HitZoneRecord record{};
  readHitZoneRecord(path, number, record);
  readHitZoneRecord(path, hitZoneRecordNumber(number * 120), record);
  return 0;
}
