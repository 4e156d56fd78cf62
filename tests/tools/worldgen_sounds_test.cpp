// SPDX-License-Identifier: GPL-2.0-or-later
// The world's sounds heard by numbers: every file there, of a length and level that fits what
// it is; the shots ordered by calibre, the calls pitched like the animals and tools they copy,
// and a whole set made even when no recording is installed.
#include "shell/names.h"
#include "tools/generated_world.h"
#include "tools/worldgen/call_models.h"
#include "tools/worldgen/sound_recordings.h"
#include "tools/worldgen/sounds.h"
#include "tools/worldgen/wav_file.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace {

namespace fs = std::filesystem;
using namespace worldgen;

struct Heard {
  int lengthMs = 0;
  Samples samples;
};

Heard hear(const fs::path& file) {
  QFile in(QString::fromStdString(file.string()));
  if (!in.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = in.readAll();
  Heard h{wavLengthMs(bytes).value_or(0), {}};
  for (qsizetype at = 44; at + 1 < bytes.size(); at += 2)
    h.samples.push_back(int16_t(uchar(bytes[at]) | uchar(bytes[at + 1]) << 8) / 32768.0);
  return h;
}

Samples part(const Samples& s, int fromMs, int toMs) {
  const size_t from = std::min(s.size(), samplesIn(fromMs)), to = std::min(s.size(), samplesIn(toMs));
  return Samples(s.begin() + long(from), s.begin() + long(to));
}

double decibels(double rms) {
  return 20 * std::log10(std::max(rms, 1e-9));
}

// Zero crossings per second over two: near the pitch that carries most of a call's sound.
double roughPitch(const Samples& s) {
  int crossings = 0;
  for (size_t i = 1; i < s.size(); ++i) crossings += (s[i - 1] < 0) != (s[i] < 0);
  return s.empty() ? 0 : crossings * kSoundRate / 2.0 / double(s.size());
}

// The strength of one frequency in `s` (Goertzel's single bin).
double strengthAt(const Samples& s, double hz) {
  const double k = 2 * std::cos(2 * 3.141592653589793 * hz / kSoundRate);
  double a = 0, b = 0;
  for (const double v : s) {
    const double c = v + k * a - b;
    b = a;
    a = c;
  }
  return std::sqrt(a * a + b * b - k * a * b);
}

struct Expected {
  std::string file;
  int minMs, maxMs;
  double minPeak, maxPeak;
};

std::vector<Expected> expectedSounds() {
  std::vector<Expected> all;
  for (int n = 1; n <= kWeaponCount; ++n) {
    all.push_back({"wepsnd" + std::to_string(n), 500, 5000, 0.2, 1.0});
    all.push_back({"reload" + std::to_string(n), 300, 1500, 0.3, 0.9});
  }
  for (int id = 25; id <= 30; ++id) all.push_back({"item" + std::to_string(id), 1500, 3500, 0.6, 0.9});
  for (const World& w : distinctAreas())
    all.push_back({"a" + w.areaCode.toStdString(), 11000, 12500, 0.15, 0.6});
  all.push_back({"animals", 2 * kSpeciesCount * 4000, 2 * kSpeciesCount * 4000, 0.5, 0.9});
  all.push_back({"cregstr", 500, 1500, 0.2, 0.6});
  return all;
}

void expectEverySound(const fs::path& folder) {
  for (const Expected& e : expectedSounds()) {
    const Heard h = hear(folder / (e.file + ".wav"));
    EXPECT_GE(h.lengthMs, e.minMs) << e.file;
    EXPECT_LE(h.lengthMs, e.maxMs) << e.file;
    EXPECT_GE(peakOf(h.samples), e.minPeak) << e.file;
    EXPECT_LE(peakOf(h.samples), e.maxPeak) << e.file;
  }
}

TEST(WorldgenSounds, EveryFileIsThereWithItsLengthAndLevel) {
  expectEverySound(fullWorldRoot() / "sound");
}

TEST(WorldgenSounds, BiggerCalibresBangLouderAndRiflesEchoOffTheHills) {
  const fs::path folder = fullWorldRoot() / "sound";
  const auto report = [&](int n) { return hear(folder / ("wepsnd" + std::to_string(n) + ".wav")).samples; };
  const auto blast = [&](int n) { return decibels(rmsOf(part(report(n), 0, 400))); };
  EXPECT_GT(blast(4), blast(1) + 2) << "a .338 against a .257";
  EXPECT_GT(blast(3), blast(2));
  for (const int bow : {8, 9}) EXPECT_LT(blast(bow), blast(1) - 1) << "bow " << bow;
  for (const int rifle : {1, 2, 3, 4}) {
    const double tail = decibels(rmsOf(part(report(rifle), 900, 1800)));
    EXPECT_GT(tail, blast(rifle) - 30) << "rifle " << rifle << " has no echo";
    EXPECT_LT(tail, blast(rifle) - 6) << "rifle " << rifle << " echoes as loud as it bangs";
  }
}

TEST(WorldgenSounds, ModelledCallsSitWhereTheRealOnesDo) {
  StableRandom rnd(5);
  EXPECT_LT(roughPitch(grunt(rnd, 95, 400)), 600) << "a grunt is low";
  EXPECT_GT(roughPitch(distress(rnd, 3)), 1500) << "a hurt rabbit squeals high";
  EXPECT_GT(roughPitch(part(bugle(rnd, 1450), 700, 1400)), 1000) << "a bugle whistles";
  EXPECT_LT(roughPitch(moan(rnd, 2000)), 900) << "a cow moose moans low";
  const Samples yelp = yelps(rnd, 1);
  const Samples high = part(yelp, 5, 55), low = part(yelp, 80, 160);
  EXPECT_GT(strengthAt(high, 1150), 2 * strengthAt(high, 713)) << "a yelp starts high";
  EXPECT_GT(strengthAt(low, 713), 2 * strengthAt(low, 1150)) << "and breaks low";
  for (int id = 25; id <= 30; ++id) EXPECT_FALSE(hunterCall(id).empty()) << id;
  EXPECT_TRUE(hunterCall(24).empty());
}

TEST(WorldgenSounds, RattlingIsClacksWithQuietBetween) {
  StableRandom rnd(8);
  const Samples r = rattle(rnd, 2000);
  int quiet = 0;
  for (size_t at = 0; at + samplesIn(5) <= r.size(); at += samplesIn(5))
    quiet += rmsOf(Samples(r.begin() + long(at), r.begin() + long(at + samplesIn(5)))) < 0.02;
  EXPECT_GT(quiet, 40) << "a steady hum, not clacks";
  EXPECT_GT(peakOf(r), 0.5);
}

TEST(WorldgenSounds, WithoutThePackagesEverySoundIsStillMade) {
  QTemporaryDir emptySystem, out;
  const Recordings none(emptySystem.path().toStdString());
  EXPECT_EQ(none.find("shot-rifle"), nullptr);
  EXPECT_TRUE(none.missing().contains(QStringLiteral("usr/share/games/ufoai/base/0snd.pk3")));
  EXPECT_TRUE(none.missing().contains(QStringLiteral("usr/share/games/lugaru/Sounds/Wind.ogg")));
  writeSounds(content(), out.path().toStdString(), none);
  expectEverySound(fs::path(out.path().toStdString()) / "sound");
}

}  // namespace
