// SPDX-License-Identifier: GPL-2.0-or-later
// Screens laid out in a design size: stretched to any size, or kept in shape and centred.
#include "platform/resize_widget.h"

#include <QLabel>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

TEST(ReSize, StretchFollowsEachAxis) {
  QWidget screen;
  screen.resize(640, 480);
  screen.show();  // a hidden widget hears of its new size only when shown
  platform::ReSize resize(&screen, {640, 480});
  auto* label = new QLabel(&screen);
  resize.place(label, {100, 100, 200, 50});
  screen.resize(1920, 1080);
  EXPECT_EQ(label->geometry(), QRect(300, 225, 600, 113));
}

TEST(ReSize, KeepShapeScalesBothAxesAlikeAndCentres) {
  QWidget screen;
  screen.resize(640, 480);
  screen.show();  // a hidden widget hears of its new size only when shown
  platform::ReSize resize(&screen, {640, 480}, platform::ReSize::Fit::KeepShape);
  auto* label = new QLabel(&screen);
  resize.place(label, {0, 0, 640, 480}, 10);
  // Wide: scaled to the height, with equal bars left and right.
  screen.resize(1920, 1080);
  EXPECT_DOUBLE_EQ(resize.scaleX(), 2.25);
  EXPECT_DOUBLE_EQ(resize.scaleY(), 2.25);
  EXPECT_EQ(label->geometry(), QRect(240, 0, 1440, 1080));
  EXPECT_DOUBLE_EQ(label->font().pointSizeF(), 22.5);
  // Tall: scaled to the width, bars above and below.
  screen.resize(640, 600);
  EXPECT_EQ(label->geometry(), QRect(0, 60, 640, 480));
}

}  // namespace
