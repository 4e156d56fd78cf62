// SPDX-License-Identifier: GPL-2.0-or-later
// Compositing known pictures, checked pixel by pixel: z order, the see-through colour, the
// whole-number scale and clipping at the edges.
#include "platform/mixer/active_rdx.h"
#include "platform/mixer/compositor.h"
#include "platform/mixer/data_sprite.h"
#include "platform/mixer/image_sequence.h"
#include "platform/mixer/member_call.h"
#include "platform/mixer/scale_effect.h"
#include "platform/mixer/single_image.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

constexpr QRgb kBack = 0xff000000u;
constexpr QRgb kRed = 0xffff0000u;
constexpr QRgb kGreen = 0xff00ff00u;
constexpr QRgb kBlue = 0xff0000ffu;

QImage flat(int w, int h, QRgb colour) {
  QImage image(w, h, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

QImage surface(int w = 20, int h = 20) {
  return QImage(w, h, QImage::Format_RGB32);
}

TEST(MixerCompositor, HigherZIsDrawnOverLowerWhateverTheOrderGiven) {
  const QImage red = flat(10, 10, kRed), green = flat(10, 10, kGreen), blue = flat(10, 10, kBlue);
  QImage out = surface();
  composite(out, kBack,
            {{&red, {5, 5, 10, 10}, 1, 30}, {&green, {0, 0, 10, 10}, 1, 10}, {&blue, {8, 8, 10, 10}, 1, 30}});
  EXPECT_EQ(out.pixel(2, 2), kGreen);
  EXPECT_EQ(out.pixel(6, 6), kRed);    // red (z 30) over green (z 10)
  EXPECT_EQ(out.pixel(9, 9), kBlue);   // equal z: the later one wins
  EXPECT_EQ(out.pixel(19, 0), kBack);  // nothing there
}

TEST(MixerCompositor, WholeNumberScaleMakesEachPixelASquareClippedToTheTarget) {
  QImage checker(2, 2, QImage::Format_RGB32);
  checker.setPixel(0, 0, kRed);
  checker.setPixel(1, 0, kGreen);
  checker.setPixel(0, 1, kBlue);
  checker.setPixel(1, 1, kRed);
  QImage out = surface();
  composite(out, kBack, {{&checker, {1, 1, 5, 6}, 3, 0}});
  EXPECT_EQ(out.pixel(1, 1), kRed);
  EXPECT_EQ(out.pixel(3, 3), kRed);
  EXPECT_EQ(out.pixel(4, 1), kGreen);
  EXPECT_EQ(out.pixel(5, 3), kGreen);
  EXPECT_EQ(out.pixel(6, 3), kBack);  // target is 5 wide: the picture's last column is cut
  EXPECT_EQ(out.pixel(1, 4), kBlue);
  EXPECT_EQ(out.pixel(4, 6), kRed);
  EXPECT_EQ(out.pixel(4, 7), kBack);
}

TEST(MixerCompositor, PicturesPartlyOffTheSurfaceAreCut) {
  const QImage red = flat(8, 8, kRed);
  QImage out = surface(10, 10);
  composite(out, kBack, {{&red, {-6, -6, 8, 8}, 1, 0}, {&red, {7, 7, 8, 8}, 2, 0}});
  EXPECT_EQ(out.pixel(1, 1), kRed);
  EXPECT_EQ(out.pixel(2, 2), kBack);
  EXPECT_EQ(out.pixel(9, 9), kRed);
}

TEST(MixerCompositor, TransparencyColourLetsLowerSpritesShowThrough) {
  QImage sight = flat(5, 5, qRgb(255, 0, 255));
  for (int i = 0; i < 5; ++i) sight.setPixel(i, 2, kBlue);
  SingleImage keyed;
  keyed.setImage(sight);
  keyed.setTransparencyColor(0xff00ff);  // magenta written as 0x00BBGGRR
  const QImage green = flat(10, 10, kGreen);
  QImage out = surface(10, 10);
  composite(out, kBack, {{&green, {0, 0, 10, 10}, 1, 0}, {keyed.picture(), {2, 2, 5, 5}, 1, 1}});
  EXPECT_EQ(out.pixel(3, 3), kGreen);
  EXPECT_EQ(out.pixel(3, 4), kBlue);
  EXPECT_EQ(out.pixel(6, 4), kBlue);
  EXPECT_EQ(out.pixel(7, 4), kGreen);
}

TEST(MixerCompositor, ColourReferencesAreBlueGreenRed) {
  EXPECT_EQ(rgbFromColorRef(0x0000ff), qRgb(255, 0, 0));
  EXPECT_EQ(rgbFromColorRef(0x123456), qRgb(0x56, 0x34, 0x12));
}

class MixerSceneTest : public ::testing::Test {
 protected:
  MixerSceneTest() { mixer.resize(40, 30); }
  SingleImage* image(QRgb colour, int w = 10, int h = 10) {
    auto* made = mixer.create<SingleImage>("RDXCOM.SingleImage");
    made->setImage(flat(w, h, colour));
    return made;
  }
  DataSprite* sprite(QObject* source, const char* kind = "RDXCOM.StaticDataSprite") {
    auto* made = mixer.create<DataSprite>(kind);
    made->SetData(source);
    return made;
  }
  ActiveRDX mixer;
};

TEST_F(MixerSceneTest, ObjectsAreMadeByClassNameInAnyCase) {
  for (const char* name : {"RDXCOM.SingleImage", "RDXCOM.StaticDataSprite", "RDXCOM.ImageSequence",
                           "RDXCOM.DynamicDataSprite", "RDXCOM.AVSource", "rdxcom.scaleeffect"}) {
    RdxObject* made = mixer.CreateObject(name);
    ASSERT_NE(made, nullptr) << name;
    EXPECT_EQ(made->className().toLower(), QString(name).toLower());
  }
  EXPECT_EQ(mixer.CreateObject("RDXCOM.Sound"), nullptr);
}

TEST_F(MixerSceneTest, SpritesShowHideMoveAndScale) {
  mixer.setColor(0x0000ff);
  DataSprite* back = sprite(image(kGreen, 4, 3), "RDXCOM.DynamicDataSprite");
  back->setDestination(2, 2, 12, 9);
  auto* effect = mixer.create<ScaleEffect>("RDXCOM.ScaleEffect");
  effect->setParams(3);
  effect->ApplyEffect(back);
  DataSprite* hole = sprite(image(kBlue, 2, 2));
  hole->setPosition(20, 20, 26);
  hole->Show(false);
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(13, 10), kGreen);
  EXPECT_EQ(mixer.surface().pixel(14, 10), kRed);  // the background colour
  EXPECT_EQ(mixer.surface().pixel(20, 20), kRed);
  hole->Show(true);
  back->removeEffect(effect);
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(20, 20), kBlue);
  EXPECT_EQ(mixer.surface().pixel(6, 2), kRed);  // back to 4 x 3
}

TEST_F(MixerSceneTest, ImageSequenceShowsTheCurrentElementCutFromAStrip) {
  QImage strip(6, 2, QImage::Format_RGB32);
  strip.fill(kRed);
  for (int y = 0; y < 2; ++y)
    for (int x = 2; x < 4; ++x) strip.setPixel(x, y, kGreen);
  auto* picture = mixer.create<SingleImage>("RDXCOM.SingleImage");
  picture->setImage(strip);
  auto* frames = mixer.create<ImageSequence>("RDXCOM.ImageSequence");
  frames->Initialize(3);
  for (int i = 0; i < 3; ++i) frames->setElementAt(i, picture, 2 * i, 0, 2, 2);
  DataSprite* shown = sprite(frames);
  shown->setPosition(5, 5);
  frames->setCurrentImageNumber(1);
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(6, 6), kGreen);
  frames->setCurrentImageNumber(2);
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(6, 6), kRed);
  EXPECT_EQ(mixer.surface().pixel(7, 7), kBack);  // elements are 2 x 2
  frames->setCurrentImageNumber(7);               // out of range shows nothing
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(5, 5), kBack);
}

TEST_F(MixerSceneTest, SightSequenceShowsItselfWhenPlacedAndIsDrivenByName) {
  QImage strip(4, 2, QImage::Format_RGB32);
  strip.fill(kRed);
  strip.setPixel(2, 0, kGreen);
  auto* picture = mixer.create<SingleImage>("RDXCOM.SingleImage");
  picture->setImage(strip);
  auto* sight = mixer.create<ImageSequence>("RDXCOM.ImageSequence");
  callMember(sight, "initialize", {2});
  callMember(sight, "setElementAt", {0, QVariant::fromValue<QObject*>(picture), 0, 0, 2, 2});
  callMember(sight, "setElementAt", {1, QVariant::fromValue<QObject*>(picture), 2, 0, 2, 2});
  callMember(sight, "setPosition", {30, 20, 99});
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(30, 20), kBack);  // hidden until shown
  callMember(sight, "Show", {true});
  callMember(sight, "setCurrentImageNumber", {1});
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(30, 20), kGreen);
  EXPECT_EQ(mixer.surface().pixel(31, 20), kRed);
}

TEST_F(MixerSceneTest, ReleasedImageLeavesItsSpriteEmpty) {
  SingleImage* picture = image(kGreen);
  sprite(picture);
  mixer.release(picture);
  mixer.draw();
  EXPECT_EQ(mixer.surface().pixel(1, 1), kBack);
}

}  // namespace
}  // namespace platform
