// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/speech_lines.h"

#include <stdexcept>

namespace worldgen {

namespace {

constexpr int kMaxPieces = 3;
constexpr int kTerrainClasses = 6;

}  // namespace

QList<SpokenLine> spokenLines(const Content& c) {
  QList<SpokenLine> lines;
  for (int row = 0; row < c.speech.rows.size(); ++row) {
    SpokenLine line;
    line.convName = row + 1;
    line.key = cell(c.speech, row, "Key");
    line.speaker = cell(c.speech, row, "Speaker");
    line.pieces = cell(c.speech, row, "Text").split(u'|');
    if (line.pieces.size() > kMaxPieces || !speakers().contains(line.speaker))
      throw std::runtime_error("speech.csv line " + std::to_string(row + 2) + " is malformed");
    line.sequence = 1;
    for (const SpokenLine& earlier : lines)
      if (earlier.key == line.key) ++line.sequence;
    lines << line;
  }
  return lines;
}

QStringList piecesIn(const SpokenLine& line, const World& w) {
  QStringList pieces = line.pieces;
  for (QString& piece : pieces) piece.replace(QStringLiteral("{world}"), w.name);
  return pieces;
}

QStringList requiredSpeechKeys() {
  QStringList keys = {"Entry",    "endlodge", "endday",   "endrange", "endCamp",  "huntover", "endhunts",
                      "endhuntf", "escape",   "Stand",    "wanimal",  "notag",    "filltag",  "nongame",
                      "protect",  "goodhit",  "wweapon",  "toomuch",  "almost",   "bodyhit",  "toocold",
                      "toohot",   "bodyfind", "tracking", "newstand", "target",   "chstand",  "hconfirm",
                      "alltags",  "score100", "score75",  "score50",  "scorew",   "nomoney",  "already",
                      "oconfirm", "thankyou", "chweap",   "chtag",    "hosttag1", "hosttag2", "hnomoney",
                      "2choice",  "ftag",     "gconfirm", "smallg",   "mediumg",  "largeg",   "anymiss",
                      "leftmiss", "rtmiss",   "highmiss", "lowmiss"};
  for (int t = 1; t <= kTerrainClasses; ++t) keys << QStringLiteral("terrain") + QString::number(t);
  return keys + lodgePeople();
}

QStringList speakers() {
  return {"host", "outfitter", "guide", "warden", "range"};
}

QString waveFileOf(const World& w, const QString& speaker) {
  return w.letter + QStringLiteral("v") + speaker;
}

QString pictureOf(const World& w, const QString& speaker) {
  return w.letter + speaker;
}

}  // namespace worldgen
