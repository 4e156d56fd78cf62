// SPDX-License-Identifier: GPL-2.0-or-later
// What a tag's state code means on the licence board: which picture it shows, and what a
// click on it does when buying tags and when choosing the quarry.
#pragma once

#include <cstdint>

namespace lodge {

// 128 when bought, raised by one per animal taken under it; all of them count as held.
bool tagHeld(int16_t value);

enum class TagPicture { Own, Held, Filled, NotAvailable };
struct TagView {
  TagPicture picture = TagPicture::Own;
  bool enabled = true;
  int16_t value = 0;  // the value to store back: 255 for a species the world lacks
};
// How the board opens on a tag, from its value and the world's habitat entry (0 = absent).
TagView tagView(int16_t value, int16_t habitat);

enum class BuyStep { AlreadyHeld, AlreadyFilled, Offer };
BuyStep buyStep(int16_t value);

// Choosing the quarry: values that are neither 64, 32 nor held do nothing at all.
enum class QuarryStep { NoTag, Filled, Confirm, Nothing };
QuarryStep quarryStep(int16_t value);

}  // namespace lodge
