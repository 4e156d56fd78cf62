// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/sounds.h"

#include "shell/names.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/stable_random.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/wav_file.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

constexpr int kRate = 22050;
constexpr double kTurn = 6.283185307179586;

using Samples = std::vector<double>;

Samples silence(int ms) {
  return Samples(size_t(kRate) * size_t(ms) / 1000, 0.0);
}

// Noise through a one-pole low pass: `smoothness` near 1 gives a dull rumble.
void addNoise(Samples& s, size_t from, size_t length, double level, double decayPerSecond, double smoothness,
              StableRandom& rnd) {
  double low = 0;
  for (size_t i = 0; i < length && from + i < s.size(); ++i) {
    low = smoothness * low + (1 - smoothness) * rnd.between(-1, 1);
    s[from + i] += level * low * std::exp(-decayPerSecond * double(i) / kRate);
  }
}

// A tone gliding from `f0` to `f1` Hz with a soft start and end.
void addGlide(Samples& s, size_t from, int ms, double f0, double f1, double level, double buzz = 0) {
  const size_t n = size_t(kRate) * size_t(ms) / 1000;
  double phase = 0;
  for (size_t i = 0; i < n && from + i < s.size(); ++i) {
    const double t = double(i) / double(n);
    phase += kTurn * (f0 + (f1 - f0) * t) / kRate;
    const double envelope = std::sin(3.141592653589793 * t);
    s[from + i] += level * envelope * (std::sin(phase) + buzz * std::sin(3 * phase));
  }
}

QByteArray toWav(const Samples& s) {
  std::vector<int16_t> out(s.size());
  std::transform(s.begin(), s.end(), out.begin(),
                 [](double v) { return int16_t(std::lround(std::clamp(v, -1.0, 1.0) * 30000)); });
  return wavBytes(out, kRate);
}

Samples shot(int weapon) {
  StableRandom rnd(uint64_t(weapon) * 31 + 7);
  Samples s = silence(900);
  const bool bow = weapon >= 8;  // the last weapons are bows: a twang, not a bang
  if (bow) {
    addGlide(s, 0, 250, 180, 120, 0.5, 0.4);
    addNoise(s, 0, s.size(), 0.2, 30, 0.6, rnd);
  } else {
    addNoise(s, 0, s.size(), 0.95, 9 + weapon, 0.3 + weapon * 0.03, rnd);
    addNoise(s, size_t(kRate / 8), s.size(), 0.3, 4, 0.9, rnd);  // the echo off the hills
  }
  return s;
}

Samples reload(int weapon) {
  StableRandom rnd(uint64_t(weapon) * 53 + 11);
  Samples s = silence(700);
  for (const int at : {40, 260 + weapon * 10, 430})
    addNoise(s, size_t(kRate) * size_t(at) / 1000, size_t(kRate / 40), 0.6, 200, 0.1, rnd);
  return s;
}

// A species' call: pitch and roughness from its number, so each one sounds its own.
void addCall(Samples& s, size_t from, int species, int ms, int which) {
  const double pitch = 90 + (species * 37) % 500 + which * 40;
  const int notes = 1 + (species + which) % 3;
  for (int k = 0; k < notes; ++k)
    addGlide(s, from + size_t(k) * size_t(kRate) * size_t(ms) / size_t(1000 * notes), ms / notes - 20,
             pitch * (1.5 + 0.3 * k), pitch, 0.45, species % 2 ? 0.5 : 0.1);
}

Samples animalCalls(const Content& c) {
  const RecordTable ranges = animalSoundRecords(c);
  Samples s = silence(kCallSlotMs * int(ranges.rows.size()));
  for (const QStringList& row : ranges.rows) {
    const int id = row[0].toInt(), start = row[1].toInt(), stop = row[2].toInt();
    addCall(s, size_t(kRate) * size_t(start) / 1000, (id + 1) / 2, stop - start, (id + 1) % 2);
  }
  return s;
}

Samples ambient(const World& w) {
  StableRandom rnd(w.areaCode);
  Samples s = silence(8000);
  addNoise(s, 0, s.size(), 0.25, 0, 0.985, rnd);  // wind
  for (int k = 0; k < 4; ++k)                     // a far bird now and then
    addGlide(s, size_t(rnd.between(0.5, 7.0) * kRate), 180, rnd.between(1800, 3200), rnd.between(1500, 2600),
             0.06);
  return s;
}

Samples cashRegister() {
  StableRandom rnd(99);
  Samples s = silence(900);
  addNoise(s, 0, size_t(kRate / 5), 0.4, 20, 0.2, rnd);
  addGlide(s, size_t(kRate / 4), 600, 2093, 2093, 0.35);
  return s;
}

void writeWav(const fs::path& file, const Samples& s) {
  fs::create_directories(file.parent_path());
  const QByteArray bytes = toWav(s);
  QFile out(QString::fromStdString(file.string()));
  if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size())
    throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

void writeSounds(const Content& c, const fs::path& root) {
  const fs::path folder = root / "sound";
  for (int n = 1; n <= kWeaponCount; ++n) {
    writeWav(folder / ("wepsnd" + std::to_string(n) + ".wav"), shot(n));
    writeWav(folder / ("reload" + std::to_string(n) + ".wav"), reload(n));
  }
  for (int row = 0; row < c.catalog.rows.size(); ++row) {
    if (cell(c.catalog, row, "Sub-CatNumber") != QStringLiteral("8")) continue;
    const int id = cell(c.catalog, row, "ID").toInt();
    Samples call = silence(1600);
    addCall(call, 0, id, 1500, 0);
    writeWav(folder / ("item" + std::to_string(id) + ".wav"), call);
  }
  writeWav(folder / "animals.wav", animalCalls(c));
  for (const World& w : distinctAreas())
    writeWav(folder / ("a" + w.areaCode.toStdString() + ".wav"), ambient(w));
  writeWav(folder / "cregstr.wav", cashRegister());
}

}  // namespace worldgen
