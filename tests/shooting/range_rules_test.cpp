// SPDX-License-Identifier: GPL-2.0-or-later
// The range's targets for both weapon sets, their scaling, their edges, where holes land and
// how far the sight turns.
#include "shooting/range_rules.h"

#include <gtest/gtest.h>

namespace {

void expectRect(const TargetRect& r, int left, int top, int right, int bottom) {
  EXPECT_EQ(r.left, left);
  EXPECT_EQ(r.top, top);
  EXPECT_EQ(r.right, right);
  EXPECT_EQ(r.bottom, bottom);
}

TEST(TargetLayout, EachWeaponGroupOfBothSets) {
  const struct {
    bool permit;
    int weapon;
    TargetRect rect;
    QPoint offset;
  } cases[] = {
      {false, 1, {252, 44, 638, 370}, {-5, -5}},    {false, 4, {252, 44, 638, 370}, {-5, -5}},
      {false, 5, {150, 147, 490, 280}, {-21, -33}}, {false, 6, {220, 164, 449, 252}, {-7, -7}},
      {false, 7, {220, 164, 449, 252}, {-7, -7}},   {false, 8, {89, 3, 558, 399}, {-21, -33}},
      {false, 9, {89, 3, 558, 399}, {-21, -33}},    {true, 2, {139, 65, 475, 197}, {-5, -5}},
      {true, 5, {164, 74, 483, 200}, {-21, -33}},   {true, 6, {139, 79, 475, 207}, {-5, -5}},
      {true, 7, {139, 79, 475, 207}, {-5, -5}},     {true, 9, {259, 105, 347, 204}, {-21, -33}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << (c.permit ? "permit " : "standard ") << c.weapon);
    const auto layout = targetLayout(c.permit, c.weapon);
    ASSERT_TRUE(layout);
    expectRect(layout->design, c.rect.left, c.rect.top, c.rect.right, c.rect.bottom);
    EXPECT_EQ(layout->holeOffset, c.offset);
  }
  for (int weapon : {-1, 0, 10, 11}) EXPECT_FALSE(targetLayout(false, weapon)) << weapon;
}

TEST(ScaledTarget, RoundsHalvesToEven) {
  expectRect(scaledTarget({252, 44, 638, 370}, 1024.0 / 640), 403, 70, 1021, 592);
  expectRect(scaledTarget({89, 3, 558, 399}, 1.5), 134, 4, 837, 598);
  expectRect(scaledTarget({139, 65, 475, 197}, 1.0), 139, 65, 475, 197);
}

TEST(OnTarget, EdgesAreOnTheTarget) {
  const TargetRect r{100, 50, 200, 150};
  for (QPoint p : {QPoint(100, 50), QPoint(200, 150), QPoint(100, 150), QPoint(150, 100)})
    EXPECT_TRUE(onTarget(r, p)) << p.x() << "," << p.y();
  for (QPoint p : {QPoint(99, 100), QPoint(201, 100), QPoint(150, 49), QPoint(150, 151)})
    EXPECT_FALSE(onTarget(r, p)) << p.x() << "," << p.y();
}

TEST(HolePosition, ElevationMovesAcrossAndWindageUpAndDown) {
  EXPECT_EQ(holePosition({400, 300}, 0, 0, {-5, -5}), QPoint(395, 295));
  EXPECT_EQ(holePosition({400, 300}, 2, 0, {-5, -5}), QPoint(401, 295));
  EXPECT_EQ(holePosition({400, 300}, 0, -3, {-21, -33}), QPoint(379, 258));
  EXPECT_EQ(holePosition({400, 300}, -10, 10, {0, 0}), QPoint(370, 330));
}

TEST(AdjustedSight, StepsAreHeldWithinTen) {
  EXPECT_EQ(adjustedSight(0, 1), 1);
  EXPECT_EQ(adjustedSight(9, 1), 10);
  EXPECT_EQ(adjustedSight(10, 1), 10);
  EXPECT_EQ(adjustedSight(-10, -1), -10);
  EXPECT_EQ(adjustedSight(-9, -1), -10);
  EXPECT_EQ(adjustedSight(10, -1), 9);
  // Only the limit moved toward is checked: a value past the other one steps back freely.
  EXPECT_EQ(adjustedSight(14, 1), 10);
  EXPECT_EQ(adjustedSight(-14, 1), -13);
  EXPECT_EQ(adjustedSight(14, -1), 13);
}

}  // namespace
