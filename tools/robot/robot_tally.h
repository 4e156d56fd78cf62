// SPDX-License-Identifier: GPL-2.0-or-later
// What the robot player counts while it plays, and the summary it prints at the end.
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <map>

namespace robot {

struct Tally {
  int hunts = 0;
  long steps = 0;
  long ticks = 0;
  int encounters = 0;
  std::array<int, 12> shotOutcomes{};  // by the shot's result code 0..11
  int trophies = 0;
  int saves = 0;
  int loads = 0;
  int messageBoxes = 0;
  std::map<QString, int> huntEnds;      // "jail", "week over", "all tags", "restart", "step limit"
  std::map<QString, int> screensShown;  // by class
  std::map<int, int> tagCodesSeen;      // every tag code met after a step
  int invariantBreaks = 0;
  QStringList breakNotes;  // the first few, with hunt and step

  void breakInvariant(const QString& note);
  // The summary, one figure a line.
  QString summary() const;
};

}  // namespace robot
