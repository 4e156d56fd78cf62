// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/hit_zone_file.h"

#include "platform/files.h"
#include "platform/runtime.h"

#include <QByteArray>

#include <fstream>
#include <stdexcept>

HitZoneRecord LastHitZoneRecord{};

namespace {

int16_t readLittle16(const char* bytes) {
  const auto low = static_cast<uint8_t>(bytes[0]);
  const auto high = static_cast<uint8_t>(bytes[1]);
  return static_cast<int16_t>(static_cast<uint16_t>(low | (high << 8)));
}

void writeLittle16(QByteArray& out, int16_t value) {
  const auto bits = static_cast<uint16_t>(value);
  out.append(static_cast<char>(bits & 0xff));
  out.append(static_cast<char>(bits >> 8));
}

}  // namespace

int hitZoneRecordNumber(int clipMs) {
  const auto number = static_cast<int>(rt::Int(clipMs / 120.0 / 3.0));
  return number == 0 ? 1 : number;
}

void readHitZoneRecord(const QString& gamePath, int number, HitZoneRecord& record) {
  std::ifstream in(platform::files().resolve(gamePath), std::ios::binary);
  if (!in) throw std::runtime_error("hit-zone file will not open: " + gamePath.toStdString());
  char bytes[kHitZoneRecordBytes] = {};
  in.seekg(static_cast<std::streamoff>(number - 1) * kHitZoneRecordBytes);
  if (in) in.read(bytes, kHitZoneRecordBytes);
  for (int i = 0; i < kZoneCount; ++i) {
    const char* zone = bytes + i * 10;
    record[i] = {readLittle16(zone), readLittle16(zone + 2), readLittle16(zone + 4), readLittle16(zone + 6),
                 readLittle16(zone + 8)};
  }
}

QByteArray hitZoneRecordBytes(const HitZoneRecord& record) {
  QByteArray out;
  for (const HitZone& zone : record)
    for (int16_t value : {zone.left, zone.top, zone.right, zone.bottom, zone.code}) writeLittle16(out, value);
  return out;
}
