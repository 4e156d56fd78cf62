// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/screen_layout.h"

#include "shell/game_state.h"

#include <array>

namespace {

struct Layout {
  int x, w, y;
  const char* code;
};

constexpr Layout k640{106, 630, 369, "6"};
constexpr Layout k800{127, 790, 468, "8"};
constexpr Layout k1024{156, 1014, 607, "1"};

void apply(const Layout& layout, int twips) {
  Game.LayoutX = layout.x * twips;
  Game.LayoutW = layout.w * twips;
  Game.LayoutY = layout.y * twips;
  Game.ResCode = Game.ResCode2 = QString::fromLatin1(layout.code);
}

struct Sight {
  int16_t x, y, z;
};

// Weapons 1..9; rifles 1..4 share one drawing.
constexpr std::array<Sight, 9> kBaseSights{{{159, 65, 6},
                                            {159, 65, 6},
                                            {159, 65, 6},
                                            {159, 65, 6},
                                            {153, 94, 6},
                                            {160, 77, 3},
                                            {148, 132, 1},
                                            {47, 163, 5},
                                            {135, 162, 5}}};
constexpr std::array<Sight, 9> kPermitSights{{{159, 65, 6},
                                              {159, 65, 6},
                                              {159, 65, 6},
                                              {159, 65, 6},
                                              {160, 61, 3},
                                              {168, 116, 6},
                                              {151, 127, 1},
                                              {46, 161, 5},
                                              {154, 130, 5}}};

}  // namespace

void SetScreenLayout() {
  const int w = Game.ScreenWidth;
  const int t = Game.TwipsPerPixel;
  // Three independent tests; the last that holds wins.
  if (w == 640 * t) apply(k640, t);
  if (w == 800 * t) apply(k800, t);
  if (w >= 1024 * t) apply(k1024, t);
}

QSize layoutDisplayPixels() {
  if (Game.ResCode == u"6") return {640, 480};
  if (Game.ResCode == u"8") return {800, 600};
  return {1024, 768};
}

void SetWeaponSight() {
  const int n = Game.CurWeapon;
  if (n < 1 || n > 9) return;
  const Sight& sight = (Game.XpackMode != 0 ? kPermitSights : kBaseSights)[n - 1];
  Game.SightX = sight.x;
  Game.SightY = sight.y;
  Game.SightZ = sight.z;
}
