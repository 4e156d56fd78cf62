// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/voices.h"

#include "tools/worldgen/wav_file.h"

#include <espeak-ng/speak_lib.h>

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
}

void speak(const QString& text, std::vector<int16_t>& out) {
  gSink = &out;
  const QByteArray utf8 = text.toUtf8();
  espeak_Synth(utf8.constData(), size_t(utf8.size() + 1), 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr,
               nullptr);
  espeak_Synchronize();
  gSink = nullptr;
}

}  // namespace

WorldVoices voiceWorld(const QList<SpokenLine>& lines, const World& w) {
  const int rate = startEngine();
  WorldVoices result;
  std::map<int, VoicedLine> byNumber;
  for (const QString& speaker : speakers()) {
    std::vector<int16_t> samples;
    selectVoice(speaker, w);
    const QString file = waveFileOf(w, speaker);
    for (const SpokenLine& line : lines) {
      if (line.speaker != speaker) continue;
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

}  // namespace worldgen
