// SPDX-License-Identifier: GPL-2.0-or-later
// What the tag states mean on the hunting ground: whether the hunt went well, whether any tag
// is still open, and how a kill counts against its tag.
#pragma once

#include "shell/game_state.h"

#include <QString>

#include <array>
#include <cstdint>

using TagStates = std::array<int16_t, kTagCount>;

// A hunt went well when some tag, species 1..16, is held with an animal taken or filled.
bool huntSuccessful(const TagStates& tags);
// Some tag, species 1..16, can still be used (neither filled, absent, nor unknown).
bool anyTagOpen(const TagStates& tags);
// The tag after one more animal: raised by one, and filled once the animals taken reach the
// species' limit.
int16_t tagAfterKill(int16_t tag, int16_t limit);

// The target class a weapon may shoot at the range: "3" rifles, "0" the muzzle-loader, "2" the
// shotguns, "1" the bows; empty for no weapon.
QString targetClassOf(int weapon);
// What the guide says about the quarry chosen on the way into the field; empty for none.
QString guideKeyForQuarry(int species);
