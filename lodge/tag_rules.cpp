// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/tag_rules.h"

#include "shell/game_state.h"

namespace lodge {
namespace {

constexpr int16_t kLastHeldValue = 137;

}  // namespace

bool tagHeld(int16_t value) {
  return value >= kTagHeld && value <= kLastHeldValue;
}

TagView tagView(int16_t value, int16_t habitat) {
  TagView view{TagPicture::Own, true, value};
  if (tagHeld(value)) view.picture = TagPicture::Held;
  if (value == kTagFilled) view.picture = TagPicture::Filled;
  if (habitat == 0) view = {TagPicture::NotAvailable, false, kTagAbsent};
  return view;
}

BuyStep buyStep(int16_t value) {
  if (tagHeld(value)) return BuyStep::AlreadyHeld;
  if (value == kTagFilled) return BuyStep::AlreadyFilled;
  return BuyStep::Offer;
}

QuarryStep quarryStep(int16_t value) {
  if (value == kTagNone) return QuarryStep::NoTag;
  if (value == kTagFilled) return QuarryStep::Filled;
  if (tagHeld(value)) return QuarryStep::Confirm;
  return QuarryStep::Nothing;
}

}  // namespace lodge
