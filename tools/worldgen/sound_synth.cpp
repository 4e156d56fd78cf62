// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/sound_synth.h"

#include "tools/worldgen/wav_file.h"

#include <algorithm>
#include <cmath>

namespace worldgen {

namespace {

constexpr double kPi = 3.141592653589793;

}  // namespace

size_t samplesIn(int ms) {
  return size_t(kSoundRate) * size_t(std::max(ms, 0)) / 1000;
}

Samples silence(int ms) {
  return Samples(samplesIn(ms), 0.0);
}

void addNoise(Samples& s, size_t from, size_t length, double level, double decayPerSecond, double smoothness,
              StableRandom& rnd) {
  double low = 0;
  for (size_t i = 0; i < length && from + i < s.size(); ++i) {
    low = smoothness * low + (1 - smoothness) * rnd.between(-1, 1);
    s[from + i] += level * low * std::exp(-decayPerSecond * double(i) / kSoundRate);
  }
}

void addGlide(Samples& s, size_t from, int ms, double f0, double f1, double level, double buzz) {
  const size_t n = samplesIn(ms);
  double phase = 0;
  for (size_t i = 0; i < n && from + i < s.size(); ++i) {
    const double t = double(i) / double(n);
    phase += 2 * kPi * (f0 + (f1 - f0) * t) / kSoundRate;
    const double envelope = std::sin(kPi * t);
    s[from + i] += level * envelope * (std::sin(phase) + buzz * std::sin(3 * phase));
  }
}

Samples pulseVoice(int ms, const std::function<double(double)>& pitch, double rasp, StableRandom& rnd) {
  Samples s = silence(ms);
  const double n = double(s.size());
  double next = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    if (double(i) < next) continue;
    const double t = double(i) / n;
    const double envelope = std::sin(kPi * std::min(1.0, t * 6)) * std::min(1.0, (1 - t) * 5);
    s[i] = envelope * (1 + rasp * rnd.between(-0.5, 0.5));
    next = double(i) + kSoundRate / std::max(20.0, pitch(t)) * (1 + rasp * rnd.between(-0.15, 0.15));
  }
  return s;
}

Samples resonate(const Samples& s, double hz, double width) {
  const double r = std::exp(-kPi * width / kSoundRate);
  const double a1 = 2 * r * std::cos(2 * kPi * hz / kSoundRate), a2 = -r * r;
  Samples out(s.size());
  double y1 = 0, y2 = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    const double y = (1 - r) * s[i] + a1 * y1 + a2 * y2;
    out[i] = y;
    y2 = y1;
    y1 = y;
  }
  return out;
}

Samples lowPass(const Samples& s, double smoothness) {
  Samples out(s.size());
  double low = 0;
  for (size_t i = 0; i < s.size(); ++i) out[i] = low = smoothness * low + (1 - smoothness) * s[i];
  return out;
}

Samples withoutRumble(const Samples& s) {
  const Samples rumble = lowPass(s, 0.989);
  Samples out(s.size());
  for (size_t i = 0; i < s.size(); ++i) out[i] = s[i] - rumble[i];
  return out;
}

Samples formants(const Samples& source, std::initializer_list<std::pair<double, double>> hzAndGain,
                 double width) {
  Samples out(source.size(), 0.0);
  for (const auto& [hz, gain] : hzAndGain) mixInto(out, resonate(source, hz, width), 0, gain);
  return out;
}

void mixInto(Samples& into, const Samples& s, size_t at, double gain) {
  if (into.size() < at + s.size()) into.resize(at + s.size(), 0.0);
  for (size_t i = 0; i < s.size(); ++i) into[at + i] += gain * s[i];
}

Samples atSpeed(const Samples& s, double speed) {
  Samples out(size_t(double(s.size()) / speed));
  for (size_t i = 0; i < out.size(); ++i) {
    const double x = double(i) * speed;
    const size_t k = size_t(x);
    const double f = x - double(k);
    out[i] = s[k] * (1 - f) + (k + 1 < s.size() ? s[k + 1] : 0) * f;
  }
  return out;
}

Samples fitted(const Samples& s, int ms) {
  Samples out = s;
  const size_t n = samplesIn(ms);
  if (out.size() > n) {
    const size_t fade = std::min(n, samplesIn(150));
    for (size_t i = 0; i < fade; ++i) out[n - fade + i] *= double(fade - i) / double(fade);
  }
  out.resize(n, 0.0);
  return out;
}

double peakOf(const Samples& s) {
  double peak = 0;
  for (const double v : s) peak = std::max(peak, std::abs(v));
  return peak;
}

double rmsOf(const Samples& s) {
  double sum = 0;
  for (const double v : s) sum += v * v;
  return s.empty() ? 0 : std::sqrt(sum / double(s.size()));
}

void normalise(Samples& s, double peak) {
  const double now = peakOf(s);
  if (now <= 0) return;
  for (double& v : s) v *= peak / now;
}

QByteArray toWav(const Samples& s) {
  std::vector<int16_t> out(s.size());
  std::transform(s.begin(), s.end(), out.begin(),
                 [](double v) { return int16_t(std::lround(std::clamp(v, -1.0, 1.0) * 32000)); });
  return wavBytes(out, kSoundRate);
}

}  // namespace worldgen
