// SPDX-License-Identifier: GPL-2.0-or-later
// Command strings as the screens write them, whatever their case and spacing.
#include "platform/media/media_command.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using Verb = MediaCommand::Verb;

struct Case {
  const char* text;
  Verb verb;
  std::optional<int64_t> from, to;
  bool wait;
};

TEST(MediaCommand, ReadsEveryFormTheScreensSend) {
  const Case cases[] = {
      {"Play", Verb::Play, {}, {}, false},
      {"Play ", Verb::Play, {}, {}, false},
      {"PLAY", Verb::Play, {}, {}, false},
      {"PLAY From 1200 to 4800", Verb::Play, 1200, 4800, false},
      {"  play   from  0\tTO 15 ", Verb::Play, 0, 15, false},
      {"Play wait", Verb::Play, {}, {}, true},
      {"play from 10 wait", Verb::Play, 10, {}, true},
      {"pause wait", Verb::Pause, {}, {}, true},
      {"PAUSE", Verb::Pause, {}, {}, false},
      {"resume", Verb::Resume, {}, {}, false},
      {"Stop", Verb::Stop, {}, {}, false},
      {"Close", Verb::Close, {}, {}, false},
      {"seek to start", Verb::Seek, {}, 0, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const MediaCommand command = parseMediaCommand(c.text);
    EXPECT_TRUE(command.valid);
    EXPECT_EQ(command.verb, c.verb);
    EXPECT_EQ(command.from, c.from);
    EXPECT_EQ(command.to, c.to);
    EXPECT_EQ(command.wait, c.wait);
  }
}

TEST(MediaCommand, PositionsWithAFractionRoundToTheMillisecond) {
  const MediaCommand command = parseMediaCommand("PLAY From 99.6 to 200.4");
  EXPECT_EQ(command.from, 100);
  EXPECT_EQ(command.to, 200);
}

TEST(MediaCommand, RejectsUnknownWordsAndMissingPositions) {
  EXPECT_EQ(parseMediaCommand("rewind").verb, Verb::Unknown);
  EXPECT_FALSE(parseMediaCommand("").valid);
  EXPECT_FALSE(parseMediaCommand("PLAY From").valid);
  EXPECT_FALSE(parseMediaCommand("PLAY From x to 10").valid);
  EXPECT_FALSE(parseMediaCommand("PLAY From -5 to 10").valid);
  EXPECT_FALSE(parseMediaCommand("play loudly").valid);
}

}  // namespace
}  // namespace platform
