// SPDX-License-Identifier: GPL-2.0-or-later
// Speaks every line of a world with espeak-ng, one voice per speaker and world, into one
// sound file per speaker, and tells where in its file each line starts and ends.
#pragma once

#include "tools/worldgen/speech_lines.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <map>

namespace worldgen {

struct VoicedLine {
  int convName = 0;
  QString waveFile;  // without ".wav"
  int startMs = 0;
  int endMs = 0;
};

struct WorldVoices {
  QList<VoicedLine> lines;              // in line-number order
  std::map<QString, QByteArray> files;  // wave file name -> WAV bytes
};

// Throws std::runtime_error when the speech engine cannot start.
WorldVoices voiceWorld(const QList<SpokenLine>& lines, const World& w);

}  // namespace worldgen
