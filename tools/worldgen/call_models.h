// SPDX-License-Identifier: GPL-2.0-or-later
// Calls made from a model of the throat, the reed or the antler that makes them: the hunter's
// calls, which no package records, and every animal whose recording is not installed.
#pragma once

#include "tools/worldgen/sound_synth.h"

namespace worldgen {

// A deer's or a bull's grunt: a low, raspy pulse train around `pitch` Hz.
Samples grunt(StableRandom& rnd, double pitch, int ms);
// A doe's or a lamb's bleat: a nasal, wavering tone.
Samples bleat(StableRandom& rnd, double pitch, int ms);
// A hen's yelps: short two-note breaks, high then low, one every quarter second.
Samples yelps(StableRandom& rnd, int count);
// Sharp single clucks, as the box's lid is popped.
Samples clucks(StableRandom& rnd, int count);
// A bull elk's bugle: a raspy rise to a high whistle, a fall, then low chuckles.
Samples bugle(StableRandom& rnd, double pitch);
// A hurt rabbit: a high, wavering squeal in a few cries.
Samples distress(StableRandom& rnd, int cries);
// A cow moose in the rut: a long nasal moan that breaks down at its end.
Samples moan(StableRandom& rnd, int ms);
// Two antlers clashed and ground together: resonant clacks in bursts.
Samples rattle(StableRandom& rnd, int ms);
// A coyote: a few yips, then a howl that climbs and falls.
Samples howl(StableRandom& rnd, int ms);
// A cougar's scream: a raspy, falling cry.
Samples scream(StableRandom& rnd, int ms);
// A pronghorn's alarm: sharp blown snorts.
Samples snort(StableRandom& rnd, int count);

// The hunter's call sold as catalogue item `id`; empty for any other item.
Samples hunterCall(int id);

}  // namespace worldgen
