// SPDX-License-Identifier: GPL-2.0-or-later
// Hit-zone files: which record serves a clip time, and reading 50-byte records byte-exactly.
#include "shooting/hit_zone_file.h"
#include "support/temp_drive.h"

#include <gtest/gtest.h>

namespace {

TEST(HitZoneRecordNumber, ThreeStepsOf120MsToARecordAndZeroReadsOne) {
  const struct {
    int ms, record;
  } cases[] = {{0, 1}, {359, 1}, {360, 1}, {719, 1}, {720, 2}, {1079, 2}, {1080, 3}, {3600, 10}};
  for (const auto& c : cases) EXPECT_EQ(hitZoneRecordNumber(c.ms), c.record) << c.ms;
}

HitZoneRecord numbered(int16_t base) {
  HitZoneRecord r{};
  for (int i = 0; i < kZoneCount; ++i)
    r[i] = {int16_t(base + 10 * i), int16_t(base + 10 * i + 1), int16_t(base + 10 * i + 2),
            int16_t(base + 10 * i + 3), int16_t(i + 1)};
  return r;
}

bool same(const HitZoneRecord& a, const HitZoneRecord& b) {
  for (int i = 0; i < kZoneCount; ++i)
    if (a[i].left != b[i].left || a[i].top != b[i].top || a[i].right != b[i].right ||
        a[i].bottom != b[i].bottom || a[i].code != b[i].code)
      return false;
  return true;
}

class HitZoneFileTest : public ::testing::Test {
 protected:
  testing_support::TempDrive drive{u'D'};
};

TEST_F(HitZoneFileTest, RecordsAreLittleEndianSignedAndFiftyBytes) {
  HitZoneRecord r{};
  r[0] = {-1, 258, 320, 240, 7};
  const QByteArray bytes = hitZoneRecordBytes(r);
  ASSERT_EQ(bytes.size(), kHitZoneRecordBytes);
  EXPECT_EQ(bytes.left(10), QByteArray::fromHex("ffff02014001f0000700"));
  EXPECT_EQ(bytes.mid(10), QByteArray(40, '\0'));
}

TEST_F(HitZoneFileTest, ReadsTheNumberedRecord) {
  drive.write("Vmain/deer.dat", hitZoneRecordBytes(numbered(100)) + hitZoneRecordBytes(numbered(-200)) +
                                    hitZoneRecordBytes(numbered(300)));
  HitZoneRecord read{};
  readHitZoneRecord("D:\\VMAIN\\Deer.dat", 2, read);
  EXPECT_TRUE(same(read, numbered(-200)));
  readHitZoneRecord("D:\\Vmain\\deer.dat", 3, read);
  EXPECT_TRUE(same(read, numbered(300)));
}

TEST_F(HitZoneFileTest, BytesPastTheEndReadAsZeros) {
  drive.write("Vmain/deer.dat", hitZoneRecordBytes(numbered(100)) + hitZoneRecordBytes(numbered(5)).left(12));
  HitZoneRecord read = numbered(77);
  readHitZoneRecord("D:\\Vmain\\deer.dat", 2, read);
  EXPECT_EQ(read[0].left, 5);
  EXPECT_EQ(read[0].code, 1);
  EXPECT_EQ(read[1].left, 15);
  EXPECT_EQ(read[1].top, 0);
  EXPECT_EQ(read[4].code, 0);
  readHitZoneRecord("D:\\Vmain\\deer.dat", 9, read);
  EXPECT_TRUE(same(read, HitZoneRecord{}));
}

TEST_F(HitZoneFileTest, AMissingFileThrowsAndLeavesTheRecord) {
  HitZoneRecord read = numbered(77);
  EXPECT_THROW(readHitZoneRecord("D:\\Vmain\\none.dat", 1, read), std::runtime_error);
  EXPECT_TRUE(same(read, numbered(77)));
}

}  // namespace
