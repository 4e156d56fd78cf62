// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/world_descriptions.h"

namespace {

const char* const kBase[] = {
    "Take on a challenging autumn hunt for black bear, whitetail deer, and wild turkey in the densely "
    "forested "
    "hills of Virginia's Piedmont.",
    "Set off for the grassy plains and still ponds of South Dakota in pursuit of whitetail, elk, pronghorn, "
    "and "
    "the magnificent bison.",
    "Climb into the open valleys and thick woods of the Montana highlands where you'll track brown bear, "
    "cougar, "
    "grizzly, elk, mule deer, and blacktail.",
    "Test yourself against the harsh winter elements and rocky terrain of the Yukon as you stalk big horn, "
    "caribou, moose, coyote, mountain goats, and whitetail.",
};

const char* const kSpecialPermit[] = {
    "Take on a challenging autumn hunt for black bear and whitetail deer in the densely forested hills of "
    "Virginia's Piedmont.",
    "Set off for the rocky foothills of the Black Hills of South Dakota in pursuit of elk and whitetail.",
    "Visit the magnificent ridges and valleys of the Teton range of Wyoming on a special permit hunt for "
    "elk, "
    "blacktail, and mule deer.",
    "Test yourself against the harsh winter elements and rocky terrain of the Yukon as you stalk caribou and "
    "whitetail.",
};

}  // namespace

QString worldDescription(bool specialPermit, int world) {
  if (world < 0 || world > 3) return {};
  return QString::fromUtf8(specialPermit ? kSpecialPermit[world] : kBase[world]);
}
