// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/sounds.h"

#include "shell/names.h"
#include "tools/worldgen/call_models.h"
#include "tools/worldgen/records.h"
#include "tools/worldgen/tables.h"
#include "tools/worldgen/world_layout.h"

#include <QFile>

#include <cmath>
#include <cstdio>
#include <functional>
#include <stdexcept>

namespace worldgen {

namespace {

namespace fs = std::filesystem;

// How a weapon's report differs from the next one's: the recording it starts from, how much
// low end its charge adds, how loud it is and how long the hills answer it.
struct Report {
  const char* recording;
  double speed;
  double boom;   // weight of the low end added under the crack
  double level;  // peak
  double echo;   // level of the first echo off the hills
};

// By weapon number: .257/.243, .280/.308, .300/7mm, .338/8mm, the handguns, the shotgun and the
// lever gun, the black powder rifle and the Sharps.
const Report kReports[] = {{"shot-rifle", 1.08, 0.3, 0.62, 0.22}, {"shot-rifle", 1.0, 0.5, 0.72, 0.28},
                           {"shot-sniper", 1.0, 0.7, 0.84, 0.34}, {"shot-sniper", 0.9, 1.0, 0.97, 0.4},
                           {"shot-pistol", 1.0, 0.5, 0.8, 0.18},  {"shot-shotgun", 1.0, 0.8, 0.86, 0.3},
                           {"shot-rifle", 0.78, 1.2, 0.92, 0.36}};
constexpr int kFirearms = int(std::size(kReports));

const char* const kReloads[] = {"reload-sniper", "reload-sniper",  "reload-sniper", "reload-sniper",
                                "reload-pistol", "reload-shotgun", "reload-rifle"};

// What to use when the recordings are not installed: a crack of noise over a falling thump.
Samples synthesisedShot(const Report& r, StableRandom& rnd) {
  Samples s = silence(700);
  addNoise(s, 0, s.size(), 1.0, 14 / r.speed, 0.35, rnd);
  addGlide(s, 0, 260, 90 / r.speed, 45, 0.8);
  return s;
}

// The hills answer: late, dull copies fading one after another, over a low roll.
void addEcho(Samples& s, double level, StableRandom& rnd) {
  const Samples dull = lowPass(s, 0.85);
  const size_t length = s.size();
  for (const int ms : {230, 520, 900, 1350}) {
    mixInto(s, dull, samplesIn(ms), level);
    level *= 0.55;
  }
  addNoise(s, length / 3, samplesIn(1800), level * 4, 2.2, 0.97, rnd);
}

Samples shot(int weapon, const Recordings& rec) {
  StableRandom rnd(uint64_t(weapon) * 31 + 7);
  const Report& r = kReports[weapon - 1];
  const Samples* recorded = rec.find(r.recording);
  Samples s = recorded ? atSpeed(*recorded, r.speed) : synthesisedShot(r, rnd);
  normalise(s, 1);
  mixInto(s, lowPass(lowPass(s, 0.96), 0.96), 0, r.boom * 6);
  normalise(s, 1);
  addEcho(s, r.echo, rnd);
  s = withoutRumble(s);
  normalise(s, r.level);
  return s;
}

// A bow: the string's twang and the limbs' thump, then the arrow's hiss.
Samples bowShot(int weapon) {
  StableRandom rnd(uint64_t(weapon) * 31 + 7);
  const bool compound = weapon == kFirearms + 1;
  Samples s = silence(600);
  addGlide(s, 0, compound ? 160 : 240, compound ? 210 : 150, compound ? 140 : 100, 0.6, 0.5);
  addNoise(s, 0, samplesIn(40), 0.5, 60, 0.5, rnd);
  addNoise(s, samplesIn(60), samplesIn(300), 0.12, 8, 0.2, rnd);
  normalise(s, 0.3);
  return s;
}

// Three clicks: the bolt, the round, the bolt home; or the arrow nocked on the string.
Samples synthesisedReload(int weapon) {
  StableRandom rnd(uint64_t(weapon) * 53 + 11);
  Samples s = silence(700);
  for (const int at : {40, 260 + weapon * 10, 430})
    addNoise(s, samplesIn(at), samplesIn(25), 0.6, 200, 0.1, rnd);
  normalise(s, 0.6);
  return s;
}

Samples reload(int weapon, const Recordings& rec) {
  const Samples* recorded = weapon <= kFirearms ? rec.find(kReloads[weapon - 1]) : nullptr;
  if (!recorded) return synthesisedReload(weapon);
  Samples s = atSpeed(*recorded, 1.0 - 0.03 * (weapon % 4));
  normalise(s, 0.7);
  return s;
}

// Each species' two calls: a recording played at a speed that makes it this species' own, or
// a model of the call when no recording exists or it is not installed.
struct CallPlan {
  const char* recording;  // null: always modelled
  double speed;
  std::function<Samples(StableRandom&, int ms)> model;
};

CallPlan recorded(const char* name, double speed, std::function<Samples(StableRandom&, int)> model) {
  return {name, speed, std::move(model)};
}
CallPlan modelled(std::function<Samples(StableRandom&, int)> model) {
  return {nullptr, 1, std::move(model)};
}

auto grunting(double pitch) {
  return [pitch](StableRandom& r, int ms) { return grunt(r, pitch, ms * 2 / 3); };
}
auto bleating(double pitch) {
  return [pitch](StableRandom& r, int ms) { return bleat(r, pitch, ms / 2); };
}

// Two plans per species, in species order.
std::vector<CallPlan> callPlans() {
  return {
      recorded("ram", 0.85, bleating(260)),
      recorded("ram", 0.78, grunting(110)),  // bighorn
      recorded("bison", 1.0, grunting(70)),
      recorded("bison", 0.92, grunting(60)),  // bison
      recorded("bear", 1.1, grunting(120)),
      recorded("bear", 1.18, grunting(140)),  // black bear
      recorded("bear", 0.9, grunting(85)),
      recorded("bear", 0.85, grunting(80)),  // brown bear
      recorded("caribou", 1.0, grunting(110)),
      recorded("caribou", 0.93, grunting(100)),                                 // caribou
      modelled([](StableRandom& r, int ms) { return scream(r, ms * 3 / 4); }),  // cougar
      modelled([](StableRandom& r, int ms) { return scream(r, ms / 2); }),      //
      recorded("doe", 1.05, bleating(360)),
      recorded("deer", 1.05, grunting(105)),                                    // blacktail
      modelled([](StableRandom& r, int ms) { return howl(r, ms * 4 / 5); }),    // coyote
      modelled([](StableRandom& r, int ms) { return howl(r, ms / 2); }),        //
      modelled([](StableRandom& r, int) { return bugle(r, 1500); }),            // elk
      modelled([](StableRandom& r, int ms) { return bleat(r, 600, ms / 3); }),  //
      recorded("bear", 0.8, grunting(75)),
      recorded("bear", 0.75, grunting(70)),                                   // grizzly
      modelled([](StableRandom& r, int ms) { return moan(r, ms * 3 / 4); }),  // moose
      modelled([](StableRandom& r, int) { return grunt(r, 90, 500); }),       //
      recorded("goat", 1.1, bleating(420)),
      recorded("goat", 1.2, bleating(460)),  // mountain goat
      recorded("deer", 0.95, grunting(95)),
      recorded("doe", 0.95, bleating(320)),                                       // mule deer
      modelled([](StableRandom& r, int) { return snort(r, 2); }),                 // pronghorn
      modelled([](StableRandom& r, int) { return snort(r, 3); }),                 //
      recorded("turkey", 1.0, [](StableRandom& r, int) { return yelps(r, 5); }),  // turkey
      modelled([](StableRandom& r, int) { return yelps(r, 7); }),                 //
      recorded("deer", 1.0, grunting(100)),
      recorded("doe", 1.0, bleating(340)),  // whitetail
  };
}

Samples animalCalls(const Content& c, const Recordings& rec) {
  const RecordTable ranges = animalSoundRecords(c);
  const std::vector<CallPlan> plans = callPlans();
  Samples s = silence(kCallSlotMs * int(ranges.rows.size()));
  for (const QStringList& row : ranges.rows) {
    const int id = row[0].toInt(), start = row[1].toInt(), stop = row[2].toInt();
    const CallPlan& plan = plans.at(size_t(id - 1));
    StableRandom rnd(uint64_t(id) * 7919);
    const Samples* recording = plan.recording ? rec.find(plan.recording) : nullptr;
    Samples call = recording ? atSpeed(*recording, plan.speed) : plan.model(rnd, stop - start);
    normalise(call, 0.8);
    mixInto(s, fitted(call, stop - start), samplesIn(start));
  }
  return s;
}

constexpr int kAmbientMs = 12000;
constexpr int kSeamMs = 600;

// The end of the track faded into its start, so it loops without a click.
Samples looped(Samples s) {
  const size_t seam = samplesIn(kSeamMs), keep = s.size() - seam;
  for (size_t i = 0; i < seam; ++i) {
    const double fade = double(i) / double(seam);
    s[i] = s[i] * fade + s[keep + i] * (1 - fade);
  }
  s.resize(keep);
  return s;
}

// Wind in every world; the hawk over open country, something in the brush in the woods, and
// steps in the snow of the north.
Samples ambient(const World& w, const Recordings& rec) {
  StableRandom rnd(w.areaCode);
  Samples s = silence(kAmbientMs + kSeamMs);
  const int windOffset = 3000 + 7000 * int(w.letter.unicode() % 5);
  if (const Samples* wind = rec.find("wind");
      wind && wind->size() > samplesIn(windOffset + kAmbientMs + kSeamMs))
    mixInto(s,
            Samples(wind->begin() + long(samplesIn(windOffset)),
                    wind->begin() + long(samplesIn(windOffset) + s.size())),
            0);
  else
    addNoise(s, 0, s.size(), 1, 0, 0.985, rnd);
  normalise(s, w.letter == u'Y' || w.letter == u'D' ? 0.45 : 0.3);
  const bool open = w.letter != u'P';
  const auto place = [&](const char* name, int atMs, double gain, const std::function<Samples()>& fallback) {
    const Samples* found = rec.find(name);
    Samples clip = found ? *found : fallback();
    normalise(clip, gain);
    mixInto(s, clip, samplesIn(atMs));
  };
  const auto bird = [&rnd] {
    Samples b = silence(700);
    addGlide(b, 0, 600, rnd.between(2600, 3200), rnd.between(1800, 2400), 1);
    return b;
  };
  const auto rustle = [&rnd] {
    Samples b = silence(400);
    addNoise(b, 0, b.size(), 1, 6, 0.4, rnd);
    return b;
  };
  if (open) place("hawk", 4200, 0.22, bird);
  if (!open || w.letter == u'B') place("brush", 7600, 0.2, rustle);
  const char* step = w.letter == u'Y' ? "step-snow" : "step-grass";
  for (int k = 0; k < 3; ++k) place(step, 9000 + 520 * k, 0.12, rustle);
  s.resize(std::min(s.size(), samplesIn(kAmbientMs + kSeamMs)));
  return looped(withoutRumble(s));
}

Samples cashRegister() {
  StableRandom rnd(99);
  Samples s = silence(900);
  addNoise(s, 0, samplesIn(200), 0.4, 20, 0.2, rnd);
  addGlide(s, samplesIn(250), 600, 2093, 2093, 0.35);
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

void writeSounds(const Content& c, const fs::path& root, const Recordings& rec) {
  const fs::path folder = root / "sound";
  for (int n = 1; n <= kWeaponCount; ++n) {
    writeWav(folder / ("wepsnd" + std::to_string(n) + ".wav"), n <= kFirearms ? shot(n, rec) : bowShot(n));
    writeWav(folder / ("reload" + std::to_string(n) + ".wav"), reload(n, rec));
  }
  for (int row = 0; row < c.catalog.rows.size(); ++row) {
    if (cell(c.catalog, row, "Sub-CatNumber") != QStringLiteral("8")) continue;
    const int id = cell(c.catalog, row, "ID").toInt();
    writeWav(folder / ("item" + std::to_string(id) + ".wav"), hunterCall(id));
  }
  writeWav(folder / "animals.wav", animalCalls(c, rec));
  for (const World& w : distinctAreas())
    writeWav(folder / ("a" + w.areaCode.toStdString() + ".wav"), ambient(w, rec));
  writeWav(folder / "cregstr.wav", cashRegister());
}

void writeSounds(const Content& c, const fs::path& root) {
  const Recordings& rec = Recordings::installed();
  if (!rec.missing().isEmpty())
    std::fprintf(stderr, "worldgen: not installed, so synthesised instead: %s\n",
                 qPrintable(rec.missing().join(QStringLiteral(", "))));
  writeSounds(c, root, rec);
}

}  // namespace worldgen
