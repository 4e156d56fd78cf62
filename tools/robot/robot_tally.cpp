// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's counters and its summary.
#include "robot_tally.h"

#include <type_traits>

namespace robot {

namespace {

constexpr int kNotesKept = 40;

const char* const kOutcomeNames[12] = {"left unshot", "miss",         "down",      "down (clean)",
                                       "body hit",    "non-game",     "protected", "no tag",
                                       "tag filled",  "wrong weapon", "hit, lost", "other legal animal"};

QString line(const QString& label, long long value) {
  return label.leftJustified(24, u' ') + QString::number(value) + u'\n';
}

template <class Key>
QString breakdown(const std::map<Key, int>& counts) {
  QString text;
  for (const auto& [key, count] : counts) {
    if constexpr (std::is_same_v<Key, int>)
      text += QStringLiteral("  ") + QString::number(key) + u':' + QString::number(count);
    else
      text += QStringLiteral("  ") + key + u':' + QString::number(count);
  }
  return text;
}

}  // namespace

void Tally::breakInvariant(const QString& note) {
  ++invariantBreaks;
  if (breakNotes.size() < kNotesKept) breakNotes << note;
}

QString Tally::summary() const {
  QString text;
  text += line(QStringLiteral("hunts"), hunts);
  text += QStringLiteral("hunt ends              ") + breakdown(huntEnds) + u'\n';
  text += line(QStringLiteral("steps"), steps);
  text += line(QStringLiteral("ticks"), ticks);
  text += line(QStringLiteral("encounters"), encounters);
  text += QStringLiteral("shots by outcome\n");
  for (int code = 0; code < int(shotOutcomes.size()); ++code)
    text += line(QStringLiteral("  ") + QString::number(code) + u' ' + QLatin1String(kOutcomeNames[code]),
                 shotOutcomes[code]);
  text += line(QStringLiteral("trophies"), trophies);
  text += line(QStringLiteral("saves"), saves);
  text += line(QStringLiteral("loads"), loads);
  text += line(QStringLiteral("message boxes"), messageBoxes);
  text += QStringLiteral("tag codes seen         ") + breakdown(tagCodesSeen) + u'\n';
  text += QStringLiteral("screens shown          ") + breakdown(screensShown) + u'\n';
  text += line(QStringLiteral("invariant breaks"), invariantBreaks);
  for (const QString& note : breakNotes) text += QStringLiteral("  ") + note + u'\n';
  return text;
}

}  // namespace robot
