// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/media_command.h"

#include <QStringList>

#include <cmath>

namespace platform {
namespace {

MediaCommand::Verb verbOf(const QString& word) {
  using Verb = MediaCommand::Verb;
  static const struct {
    const char* word;
    Verb verb;
  } verbs[] = {{"play", Verb::Play}, {"pause", Verb::Pause}, {"resume", Verb::Resume},
               {"stop", Verb::Stop}, {"close", Verb::Close}, {"seek", Verb::Seek}};
  for (const auto& entry : verbs) {
    if (word.compare(QLatin1String(entry.word), Qt::CaseInsensitive) == 0) return entry.verb;
  }
  return Verb::Unknown;
}

// A position may come with a fraction or a sign from the caller's number formatting.
std::optional<int64_t> positionOf(const QString& word) {
  bool ok = false;
  const double value = word.toDouble(&ok);
  if (!ok || value < 0) return std::nullopt;
  return static_cast<int64_t>(std::llround(value));
}

bool readPosition(const QStringList& words, qsizetype& i, std::optional<int64_t>& into) {
  if (i + 1 >= words.size()) return false;
  into = positionOf(words[++i]);
  return into.has_value();
}

bool readOption(const QStringList& words, qsizetype& i, MediaCommand& command) {
  const QString word = words[i].toLower();
  if (word == "wait") {
    command.wait = true;
    return true;
  }
  if (word == "notify") return true;  // events are raised anyway
  if (word == "from") return readPosition(words, i, command.from);
  if (word == "to") {
    if (i + 1 < words.size() && words[i + 1].compare("start", Qt::CaseInsensitive) == 0) {
      command.to = 0;
      ++i;
      return true;
    }
    return readPosition(words, i, command.to);
  }
  return false;
}

}  // namespace

MediaCommand parseMediaCommand(const QString& text) {
  const QStringList words = text.simplified().split(' ', Qt::SkipEmptyParts);
  MediaCommand command;
  if (words.isEmpty()) {
    command.valid = false;
    return command;
  }
  command.verb = verbOf(words.front());
  command.valid = command.verb != MediaCommand::Verb::Unknown;
  for (qsizetype i = 1; command.valid && i < words.size(); ++i) command.valid = readOption(words, i, command);
  return command;
}

}  // namespace platform
