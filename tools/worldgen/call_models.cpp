// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/call_models.h"

#include <cmath>

namespace worldgen {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kPeak = 0.8;

// Sounds in a row, `gapMs` apart.
Samples inRow(const std::function<Samples(int)>& make, int count, int gapMs) {
  Samples out;
  for (int k = 0; k < count; ++k) mixInto(out, make(k), out.size() + (k ? samplesIn(gapMs) : 0));
  return out;
}

Samples finished(Samples s) {
  normalise(s, kPeak);
  return s;
}

}  // namespace

Samples grunt(StableRandom& rnd, double pitch, int ms) {
  const Samples pulses = pulseVoice(
      ms, [pitch](double t) { return pitch * (1.1 - 0.25 * t); }, 0.7, rnd);
  return finished(formants(pulses, {{280, 1.0}, {750, 0.5}, {2100, 0.12}}, 140));
}

Samples bleat(StableRandom& rnd, double pitch, int ms) {
  const double seconds = ms / 1000.0;
  const auto contour = [=](double t) {
    return pitch * (1 + 0.15 * std::sin(kPi * t)) * (1 + 0.05 * std::sin(2 * kPi * 7 * t * seconds));
  };
  return finished(
      formants(pulseVoice(ms, contour, 0.15, rnd), {{pitch * 2.2, 1.0}, {1700, 0.5}, {2800, 0.25}}, 180));
}

Samples yelps(StableRandom& rnd, int count) {
  return finished(inRow(
      [&rnd](int k) {
        const double high = 1150 + 40 * (k % 3), low = high * 0.62;
        // The break: the high note through a small mouth, then the low note through an open one.
        Samples y = formants(pulseVoice(65, [high](double) { return high; }, 0.35, rnd),
                             {{high, 1.0}, {high * 2, 0.4}}, 160);
        normalise(y, 1);
        Samples second = formants(pulseVoice(110, [low](double) { return low; }, 0.35, rnd),
                                  {{low, 1.0}, {low * 2, 0.5}, {low * 3, 0.2}}, 160);
        normalise(second, 1);
        mixInto(y, second, y.size() - samplesIn(5));
        normalise(y, 1);
        addNoise(y, 0, y.size(), 0.02, 10, 0.3, rnd);  // the chalk on the lid
        return y;
      },
      count, 90));
}

Samples clucks(StableRandom& rnd, int count) {
  return finished(inRow(
      [&rnd](int) {
        Samples c = silence(60);
        addNoise(c, 0, samplesIn(8), 1.0, 200, 0.1, rnd);
        return formants(c, {{1500, 1.0}, {2900, 0.5}}, 120);
      },
      count, 320));
}

Samples bugle(StableRandom& rnd, double pitch) {
  const auto contour = [pitch](double t) {
    if (t < 0.25) return pitch * (0.35 + 0.65 * t / 0.25);
    if (t < 0.7) return pitch * (1 + 0.02 * std::sin(2 * kPi * 30 * t));
    return pitch * (1 - 0.6 * (t - 0.7) / 0.3);
  };
  Samples call = formants(pulseVoice(2200, contour, 0.1, rnd), {{pitch, 1.0}, {pitch * 2, 0.25}}, 220);
  normalise(call, 1);
  mixInto(call, grunt(rnd, 130, 900), call.size(), 0.6);  // the chuckles after the whistle
  return finished(call);
}

Samples distress(StableRandom& rnd, int cries) {
  return finished(inRow(
      [&rnd](int k) {
        const double base = 1900 + 150 * (k % 2);
        const auto contour = [base](double t) {
          return base * (1 + 0.25 * std::sin(kPi * t)) * (1 + 0.12 * std::sin(2 * kPi * 5 * t));
        };
        return formants(pulseVoice(520, contour, 0.2, rnd), {{2100, 1.0}, {3300, 0.6}, {4400, 0.3}}, 300);
      },
      cries, 160));
}

Samples moan(StableRandom& rnd, int ms) {
  const auto contour = [](double t) {
    return t < 0.8 ? 170 + 90 * std::sin(kPi * t / 0.8) : 150 - 60 * (t - 0.8);
  };
  return finished(formants(pulseVoice(ms, contour, 0.4, rnd), {{520, 1.0}, {1150, 0.55}, {2300, 0.15}}, 160));
}

Samples rattle(StableRandom& rnd, int ms) {
  Samples ticks = silence(ms);
  size_t at = samplesIn(30);
  while (at + samplesIn(60) < ticks.size()) {
    const bool clash = rnd.unit() < 0.3;  // a hard clash now and then between the grinding ticks
    ticks[at] += clash ? 1.0 : rnd.between(0.15, 0.45);
    at += samplesIn(clash ? 70 : int(rnd.between(18, 55)));
  }
  return finished(formants(ticks, {{1700, 1.0}, {3100, 0.7}, {4700, 0.4}}, 90));
}

Samples howl(StableRandom& rnd, int ms) {
  Samples out = inRow([&rnd](int) { return bleat(rnd, 700, 110); }, 3, 120);
  const auto contour = [](double t) { return 520 + 420 * std::sin(kPi * std::min(1.0, t * 1.4)); };
  const int rest = std::max(400, ms - int(out.size() * 1000 / kSoundRate));
  mixInto(out, formants(pulseVoice(rest, contour, 0.05, rnd), {{900, 1.0}, {1800, 0.2}}, 400), out.size());
  return finished(out);
}

Samples scream(StableRandom& rnd, int ms) {
  const auto contour = [](double t) { return 950 - 350 * t; };
  return finished(formants(pulseVoice(ms, contour, 0.6, rnd), {{1100, 1.0}, {2500, 0.6}, {3800, 0.3}}, 260));
}

Samples snort(StableRandom& rnd, int count) {
  return finished(inRow(
      [&rnd](int) {
        Samples s = silence(220);
        addNoise(s, 0, s.size(), 1.0, 12, 0.55, rnd);
        return s;
      },
      count, 260));
}

Samples hunterCall(int id) {
  StableRandom rnd(uint64_t(id) * 977);
  switch (id) {
    case 25: {  // box call: a run of yelps, then two clucks
      Samples s = yelps(rnd, 6);
      mixInto(s, clucks(rnd, 2), s.size() + samplesIn(200));
      return s;
    }
    case 26: {  // grunt tube: three grunts, then the doe's bleat through the same tube
      Samples s = inRow([&rnd](int) { return grunt(rnd, 95, 380); }, 3, 250);
      mixInto(s, bleat(rnd, 330, 700), s.size() + samplesIn(400));
      return s;
    }
    case 27: return bugle(rnd, 1450);
    case 28: return distress(rnd, 4);
    case 29: return moan(rnd, 2600);
    case 30: return rattle(rnd, 2800);
    default: return {};
  }
}

}  // namespace worldgen
