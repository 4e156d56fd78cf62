// SPDX-License-Identifier: GPL-2.0-or-later
// What each tag state code shows on the licence board and what a click on it does.
#include "lodge/tag_rules.h"

#include "shell/game_state.h"

#include <gtest/gtest.h>

namespace {

using lodge::BuyStep;
using lodge::QuarryStep;
using lodge::TagPicture;

TEST(TagStates, EveryValueFrom128To137CountsAsHeld) {
  for (int v = 128; v <= 137; ++v) {
    EXPECT_TRUE(lodge::tagHeld(static_cast<int16_t>(v))) << v;
    EXPECT_EQ(lodge::buyStep(static_cast<int16_t>(v)), BuyStep::AlreadyHeld) << v;
    EXPECT_EQ(lodge::quarryStep(static_cast<int16_t>(v)), QuarryStep::Confirm) << v;
  }
  for (int v : {127, 138, 32, 64, 255, 0}) EXPECT_FALSE(lodge::tagHeld(static_cast<int16_t>(v))) << v;
}

TEST(TagStates, BoardPicturesFollowTheValueAndTheWorld) {
  struct Case {
    int16_t value, habitat;
    TagPicture picture;
    bool enabled;
    int16_t stored;
  };
  for (const Case c : {Case{64, 1, TagPicture::Own, true, 64}, Case{128, 1, TagPicture::Held, true, 128},
                       Case{135, 1, TagPicture::Held, true, 135}, Case{32, 1, TagPicture::Filled, true, 32},
                       Case{64, 0, TagPicture::NotAvailable, false, 255},
                       Case{130, 0, TagPicture::NotAvailable, false, 255}}) {
    const lodge::TagView view = lodge::tagView(c.value, c.habitat);
    EXPECT_EQ(view.picture, c.picture) << c.value << "/" << c.habitat;
    EXPECT_EQ(view.enabled, c.enabled) << c.value << "/" << c.habitat;
    EXPECT_EQ(view.value, c.stored) << c.value << "/" << c.habitat;
  }
}

TEST(TagStates, BuyingOffersEveryTagNeitherHeldNorFilled) {
  EXPECT_EQ(lodge::buyStep(kTagFilled), BuyStep::AlreadyFilled);
  EXPECT_EQ(lodge::buyStep(kTagNone), BuyStep::Offer);
  EXPECT_EQ(lodge::buyStep(0), BuyStep::Offer);
}

TEST(TagStates, ChoosingTheQuarryIgnoresAbsentAndUnknownValues) {
  EXPECT_EQ(lodge::quarryStep(kTagNone), QuarryStep::NoTag);
  EXPECT_EQ(lodge::quarryStep(kTagFilled), QuarryStep::Filled);
  EXPECT_EQ(lodge::quarryStep(kTagAbsent), QuarryStep::Nothing);
  EXPECT_EQ(lodge::quarryStep(0), QuarryStep::Nothing);
}

}  // namespace
