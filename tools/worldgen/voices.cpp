// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/voices.h"

#include "tools/worldgen/wav_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <espeak-ng/speak_lib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace worldgen {

namespace {

constexpr int kGapMs = 300;  // silence between lines, so a stretch never clips the next word

struct Voice {
  const char* language;
  const char* variants[2];  // the worlds take turns, so no two lodges sound alike
  int pitch;
  int rate;
};

// One accent, voice and pace per speaker, so the five people of a lodge are told apart.
const std::map<QString, Voice>& speakerVoices() {
  static const std::map<QString, Voice> kVoices = {{"host", {"en-us", {"m3", "f2"}, 48, 165}},
                                                   {"outfitter", {"en-gb-x-rp", {"m1", "m4"}, 55, 172}},
                                                   {"guide", {"en-us", {"m7", "m2"}, 34, 150}},
                                                   {"warden", {"en-gb-scotland", {"m6", "m2"}, 42, 158}},
                                                   {"range", {"en-029", {"m5", "m1"}, 50, 178}}};
  return kVoices;
}

// Quieter than this is the engine's own lead-in and trail: cut, so lines follow without dead air.
constexpr int kSilence = 200;
constexpr int kMarginMs = 40;

std::vector<int16_t>* gSink = nullptr;

int collect(short* wav, int count, espeak_EVENT*) {
  if (wav && gSink) gSink->insert(gSink->end(), wav, wav + count);
  return 0;
}

int startEngine() {
  static const int rate = [] {
    const int r = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, 0);
    if (r <= 0) throw std::runtime_error("espeak-ng could not start");
    espeak_SetSynthCallback(collect);
    return r;
  }();
  return rate;
}

void selectVoice(const QString& speaker, const World& w) {
  const Voice& v = speakerVoices().at(speaker);
  const int index = int(QStringLiteral("PDBTY").indexOf(w.letter));
  const QByteArray name = QByteArray(v.language) + '+' + v.variants[index % 2];
  if (espeak_SetVoiceByName(name.constData()) != EE_OK)
    throw std::runtime_error("no voice " + name.toStdString());
  espeak_SetParameter(espeakPITCH, v.pitch + (index % 3) * 4, 0);
  espeak_SetParameter(espeakRATE, v.rate, 0);
  espeak_SetParameter(espeakVOLUME, 100, 0);
  espeak_SetParameter(espeakRANGE, 50, 0);
  espeak_SetParameter(espeakWORDGAP, 0, 0);
}

void speak(const QString& text, std::vector<int16_t>& out) {
  gSink = &out;
  const QByteArray utf8 = text.toUtf8();
  espeak_Synth(utf8.constData(), size_t(utf8.size() + 1), 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr,
               nullptr);
  espeak_Synchronize();
  gSink = nullptr;
}

// Cuts the silence before and after the line just spoken, which starts at `from`.
void trimSilence(std::vector<int16_t>& out, size_t from, int rate) {
  const auto loud = [](int16_t v) { return v > kSilence || v < -kSilence; };
  const auto first = std::find_if(out.begin() + long(from), out.end(), loud);
  const auto last = std::find_if(out.rbegin(), out.rend() - long(from), loud).base();
  if (first >= last) return out.resize(from);
  const long margin = long(rate) * kMarginMs / 1000;
  const auto begin = std::max(out.begin() + long(from), first - margin);
  const auto end = std::min(out.end(), last + margin);
  out.erase(end, out.end());
  out.erase(out.begin() + long(from), begin);
}

bool writeVoices(const WorldVoices& voices, const QString& folder) {
  QFile timings(folder + QStringLiteral("/timings.txt"));
  if (!timings.open(QIODevice::WriteOnly)) return false;
  for (const VoicedLine& l : voices.lines)
    timings.write(
        QStringLiteral("%1 %2 %3 %4\n").arg(l.convName).arg(l.waveFile).arg(l.startMs).arg(l.endMs).toUtf8());
  for (const auto& [name, bytes] : voices.files) {
    QFile wav(folder + u'/' + name + QStringLiteral(".wav"));
    if (!wav.open(QIODevice::WriteOnly) || wav.write(bytes) != bytes.size()) return false;
  }
  return true;
}

WorldVoices readVoices(const QString& folder) {
  WorldVoices voices;
  QFile timings(folder + QStringLiteral("/timings.txt"));
  if (!timings.open(QIODevice::ReadOnly)) throw std::runtime_error("the voice process left no timings");
  for (const QByteArray& line : timings.readAll().split('\n')) {
    const QList<QByteArray> f = line.split(' ');
    if (f.size() != 4) continue;
    voices.lines << VoicedLine{f[0].toInt(), QString::fromUtf8(f[1]), f[2].toInt(), f[3].toInt()};
    if (voices.files.count(voices.lines.back().waveFile)) continue;
    QFile wav(folder + u'/' + voices.lines.back().waveFile + QStringLiteral(".wav"));
    if (!wav.open(QIODevice::ReadOnly)) throw std::runtime_error("the voice process left no sound");
    voices.files[voices.lines.back().waveFile] = wav.readAll();
  }
  return voices;
}

WorldVoices synthesize(const QList<SpokenLine>& lines, const World& w) {
  const int rate = startEngine();
  WorldVoices result;
  std::map<int, VoicedLine> byNumber;
  for (const QString& speaker : speakers()) {
    std::vector<int16_t> samples;
    const QString file = waveFileOf(w, speaker);
    for (const SpokenLine& line : lines) {
      if (line.speaker != speaker) continue;
      selectVoice(speaker, w);
      const size_t start = samples.size();
      speak(piecesIn(line, w).join(u' '), samples);
      trimSilence(samples, start, rate);
      const size_t end = samples.size();
      samples.resize(end + size_t(rate) * kGapMs / 1000, 0);
      byNumber[line.convName] = {line.convName, file, int(start * 1000 / size_t(rate)),
                                 int((end * 1000 + size_t(rate) - 1) / size_t(rate))};
    }
    if (!samples.empty()) result.files[file] = wavBytes(samples, rate);
  }
  for (const auto& [number, voiced] : byNumber) result.lines << voiced;
  return result;
}

}  // namespace

// The engine keeps hidden state (its voice flutter runs on from call to call), so the same
// text sounds a little different the second time in one process. Each world is therefore
// spoken by a fresh child process, and sounds the same however often it is generated.
WorldVoices voiceWorld(const QList<SpokenLine>& lines, const World& w) {
  QTemporaryDir exchange;
  const QString timings = exchange.filePath(QStringLiteral("timings.txt"));
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot start the voice process");
  if (child == 0) _exit(writeVoices(synthesize(lines, w), exchange.path()) ? 0 : 1);
  int status = 0;
  if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
    throw std::runtime_error("speaking the lines of " + w.name.toStdString() + " failed");
  return readVoices(exchange.path());
}

}  // namespace worldgen
