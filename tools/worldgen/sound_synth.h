// SPDX-License-Identifier: GPL-2.0-or-later
// Mono sample buffers and the few building blocks the world's sounds are made of: noise,
// tones, pulse trains through resonances, filters, echoes and level.
#pragma once

#include "tools/worldgen/stable_random.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <vector>

namespace worldgen {

inline constexpr int kSoundRate = 22050;

using Samples = std::vector<double>;

Samples silence(int ms);
size_t samplesIn(int ms);

// Noise through a one-pole low pass: `smoothness` near 1 gives a dull rumble.
void addNoise(Samples& s, size_t from, size_t length, double level, double decayPerSecond, double smoothness,
              StableRandom& rnd);
// A tone gliding from `f0` to `f1` Hz with a soft start and end; `buzz` adds the third harmonic.
void addGlide(Samples& s, size_t from, int ms, double f0, double f1, double level, double buzz = 0);

// A voice: one pulse per period of `pitch(t)` (t from 0 to 1), its period jittered by `rasp`,
// under a soft envelope. Run it through resonances to give it a throat.
Samples pulseVoice(int ms, const std::function<double(double)>& pitch, double rasp, StableRandom& rnd);
// A two-pole band pass at `hz`, `width` Hz wide.
Samples resonate(const Samples& s, double hz, double width);
Samples lowPass(const Samples& s, double smoothness);
// Takes out the rumble below about 40 Hz that no speaker plays and that only eats headroom.
Samples withoutRumble(const Samples& s);
// Weighted resonances of one source, summed: the formants of a throat or a tube.
Samples formants(const Samples& source, std::initializer_list<std::pair<double, double>> hzAndGain,
                 double width);

void mixInto(Samples& into, const Samples& s, size_t at, double gain = 1);
// Plays `s` at `speed` times its rate (below 1: slower and lower).
Samples atSpeed(const Samples& s, double speed);
// Fits `s` into `ms`: cut with a short fade, or padded with silence.
Samples fitted(const Samples& s, int ms);
// Scales `s` so its loudest sample reaches `peak`.
void normalise(Samples& s, double peak);
double peakOf(const Samples& s);
double rmsOf(const Samples& s);

QByteArray toWav(const Samples& s);

}  // namespace worldgen
