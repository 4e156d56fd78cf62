// SPDX-License-Identifier: GPL-2.0-or-later
// The hit-zone files beside the animal clips: fixed 50-byte records, one per time slice of
// the clip, each five zones of five little-endian 16-bit numbers.
#pragma once

#include <QString>

#include <array>
#include <cstdint>

inline constexpr int kZoneCount = 5;
inline constexpr int kHitZoneRecordBytes = 50;

// One zone in pixels of the 320 x 240 clip; a code of 0 or less is an empty zone.
struct HitZone {
  int16_t left = 0;
  int16_t top = 0;
  int16_t right = 0;
  int16_t bottom = 0;
  int16_t code = 0;
};

using HitZoneRecord = std::array<HitZone, kZoneCount>;

// The last record the video shot read; it stays for as long as the game runs.
extern HitZoneRecord LastHitZoneRecord;

// The record that serves the picture shown at `clipMs`: three 120 ms steps to a record, and
// record 0 is read as record 1.
int hitZoneRecordNumber(int clipMs);

// Reads record `number` (from 1) of the file at game path `gamePath` into `record`. Bytes
// past the end of the file read as zeros, as a record never written. Throws
// std::runtime_error when the file cannot be opened.
void readHitZoneRecord(const QString& gamePath, int number, HitZoneRecord& record);

// The 50 bytes of a record, as the world generator and the tests write them.
QByteArray hitZoneRecordBytes(const HitZoneRecord& record);
