// SPDX-License-Identifier: GPL-2.0-or-later
// The spoken lines of the sample world: every speech key the game says, with one to three
// lines each, numbered once for all worlds so that one link table serves every world.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/world_layout.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace worldgen {

struct SpokenLine {
  int convName = 0;  // line number, 1..
  int sequence = 0;  // order within its key, 1..
  QString key;
  QString speaker;
  QStringList pieces;  // one to three pieces of text
};

QList<SpokenLine> spokenLines(const Content& c);

// The pieces of a line as said in world `w` (names of the world filled in).
QStringList piecesIn(const SpokenLine& line, const World& w);

// Every key the game can ask the speech service for.
QStringList requiredSpeechKeys();

// Speakers in a fixed order; each has a voice, a picture and a sound file per world.
QStringList speakers();
QString waveFileOf(const World& w, const QString& speaker);  // without ".wav"
QString pictureOf(const World& w, const QString& speaker);   // without ".bmp"

}  // namespace worldgen
