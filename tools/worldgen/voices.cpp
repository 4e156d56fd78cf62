// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/voices.h"

#include "tools/worldgen/wav_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <espeak-ng/speak_lib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <stdexcept>
#include <vector>

namespace worldgen {

namespace {

constexpr int kGapMs = 300;  // silence between lines, so a stretch never clips the next word

struct Voice {
  const char* language;
  int pitch;
  int rate;
};

// One voice per speaker; the worlds vary pitch and variant so no two lodges sound alike.
const std::map<QString, Voice>& speakerVoices() {
  static const std::map<QString, Voice> kVoices = {{"host", {"en-us", 45, 160}},
                                                   {"outfitter", {"en-gb-x-gbclan", 55, 170}},
                                                   {"guide", {"en-us", 35, 150}},
                                                   {"warden", {"en-gb-scotland", 40, 155}},
                                                   {"range", {"en-029", 50, 165}}};
  return kVoices;
}

const char* const kVariants[] = {"m1", "m3", "m2", "m7", "f2", "m4", "f1", "m6"};

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
  const int index = int(speakers().indexOf(speaker)) * 3 + QStringLiteral("PDBTY").indexOf(w.letter);
  const QByteArray name = QByteArray(v.language) + '+' + kVariants[index % std::size(kVariants)];
  if (espeak_SetVoiceByName(name.constData()) != EE_OK)
    throw std::runtime_error("no voice " + name.toStdString());
  espeak_SetParameter(espeakPITCH, v.pitch + (index % 5) * 4, 0);
  espeak_SetParameter(espeakRATE, v.rate, 0);
  espeak_SetParameter(espeakVOLUME, 100, 0);
  espeak_SetParameter(espeakRANGE, 50, 0);
  espeak_SetParameter(espeakWORDGAP, 0, 0);
  espeak_SetParameter(espeakINTONATION, 0, 0);
}

void speak(const QString& text, std::vector<int16_t>& out) {
  gSink = &out;
  const QByteArray utf8 = text.toUtf8();
  espeak_Synth(utf8.constData(), size_t(utf8.size() + 1), 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr,
               nullptr);
  espeak_Synchronize();
  gSink = nullptr;
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
