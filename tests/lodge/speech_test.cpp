// SPDX-License-Identifier: GPL-2.0-or-later
// The speech service: which line of a key is spoken, what the media window is told, what the
// conversation box shows, and paging through a key's lines.
#include "lodge/speech.h"
#include "lodge/talkform.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/scripted_random.h"
#include "platform/fakes/scripted_screens.h"
#include "platform/picture_box.h"
#include "platform/records/record_file.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "shell/screen_instance.h"
#include "support/temp_drive.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

using platform::FakeMediaWindow;

class SpeechTest : public ::testing::Test {
 protected:
  SpeechTest() {
    Game = GameState{};
    Game.AreaLetter = QStringLiteral("D");
    Game.AreaCode = QStringLiteral("Dakota");
    links({{"Entry", "1", "1"}, {"Entry", "2", "2"}, {"Entry", "3", "3"}, {"nomoney", "9", "1"}});
    lines({{"1", "host", "100", "900", "Welcome to the lodge.", "@", "", "host"},
           {"2", "host", "1000", "1800", "Come in,", "stranger.", "Warm up.", "host"},
           {"3", "guide", "0", "700", "Good luck out there.", "", "", "guide"}});
  }
  ~SpeechTest() override {
    unloadAllScreens();
    Game = GameState{};
  }

  void links(const QList<QStringList>& rows) {
    platform::writeRecordFile(media.root() / "Dbase/Clinks.isd",
                              {{"Hypname", "Conv Name", "sequence"}, rows});
  }
  void lines(const QList<QStringList>& rows) {
    platform::writeRecordFile(
        media.root() / "Dbase/Dsnoun.isd",
        {{"Conv Name", "Wave File", "Engstart", "Engend", "Engtext1", "Engtext2", "Engtext3", "whopic"},
         rows});
  }
  FakeMediaWindow& window() { return static_cast<FakeMediaWindow&>(huntMediaWindow()); }
  Talkform& box() { return ScreenInstance<Talkform>::get(); }

  testing_support::TempDrive media{u'D'};
  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows;
  platform::ScopedService<platform::Random, platform::ScriptedRandom> random;
};

TEST_F(SpeechTest, FillsTheListInSequenceOrderAndCountsTheKeysLines) {
  links({{"Entry", "7", "3"}, {"Entry", "5", "1"}, {"entry ", "6", "2"}, {"Other", "8", "1"}});
  EXPECT_EQ(talk::FillConvArr(QStringLiteral(" Entry ")), 3);
  EXPECT_EQ(Game.ConvCount, 3);
  EXPECT_EQ(Game.ConvLines[0], 5);
  EXPECT_EQ(Game.ConvLines[1], 6);
  EXPECT_EQ(Game.ConvLines[2], 7);
}

TEST_F(SpeechTest, AKeyWithMoreLinesThanTheListHoldsKeepsTheFirstFiftyOne) {
  QList<QStringList> many;
  for (int i = 1; i <= 53; ++i) many.append({"long", QString::number(i), QString::number(i)});
  links(many);
  EXPECT_EQ(talk::FillConvArr(QStringLiteral("long")), kConvLineCount);
  EXPECT_EQ(Game.ConvLines[50], 51);
}

TEST_F(SpeechTest, SaynotextPlaysTheChosenLinesStretchAndShowsNothing) {
  random->push(0.5);  // Int(0.5 * 3) = 1: the second line
  talk::Saynotext(QStringLiteral("Entry"));
  EXPECT_EQ(random->randomizeCalls(), 1);
  EXPECT_EQ(window().log(), QStringList({"file D:\\sound\\host.wav", "PLAY From 1000 to 1800"}));
  EXPECT_EQ(Game.MediaBusy, -1);
  EXPECT_EQ(Game.ConvPath, QStringLiteral("D:\\sound\\host.wav"));
  EXPECT_FALSE(ScreenInstance<Talkform>::exists());
}

TEST_F(SpeechTest, EachLineOfAKeyCanBeChosen) {
  const std::pair<double, QString> draws[] = {{0.0, "100"}, {0.333, "100"}, {0.334, "1000"}, {0.999, "0"}};
  for (const auto& [draw, start] : draws) {
    random->push(draw);
    talk::Saynotext(QStringLiteral("Entry"));
    EXPECT_EQ(Game.ConvStart, start) << draw;
  }
}

TEST_F(SpeechTest, ANewLineCutsOffTheOnePlaying) {
  random->push(0.0);
  random->push(0.0);
  talk::Saynotext(QStringLiteral("Entry"));
  talk::Saynotext(QStringLiteral("Entry"));
  EXPECT_EQ(window().commands(), QStringList({"PLAY From 100 to 900", "Close", "PLAY From 100 to 900"}));
}

TEST_F(SpeechTest, SilentForAKeyWithoutLinesOrALineWithoutARecord) {
  talk::Say(QStringLiteral("nothing"));
  random->push(0.0);
  talk::Say(QStringLiteral("nomoney"));  // its line 9 has no record
  EXPECT_TRUE(window().log().isEmpty());
  EXPECT_EQ(Game.MediaBusy, 0);
  EXPECT_FALSE(ScreenInstance<Talkform>::exists());
}

TEST_F(SpeechTest, SayShowsTheSpeakerAndTheTextLeavingOutAbsentPieces) {
  random->push(0.0);
  talk::Say(QStringLiteral("Entry"));
  EXPECT_TRUE(box().isVisible());
  EXPECT_EQ(box().Convtext->text(), QStringLiteral("Welcome to the lodge."));
  EXPECT_EQ(box().Whopic->picturePath(), QStringLiteral("D:\\art\\host.bmp"));
  EXPECT_EQ(box().Background->picturePath(), QStringLiteral("D:\\art\\Dpeopbox.bmp"));

  random->push(0.5);
  talk::Say(QStringLiteral("Entry"));
  EXPECT_EQ(box().Convtext->text(), QStringLiteral("Come in, \nstranger. \nWarm up."));
}

TEST_F(SpeechTest, PagingWalksTheKeysLinesAndStopsAtBothEnds) {
  platform::ScopedService<platform::ScreensHost, platform::ScriptedScreens> screens;
  QStringList seen;
  screens->on(QStringLiteral("Talkform"), [&](QWidget& widget) {
    auto& talk = static_cast<Talkform&>(widget);
    EXPECT_FALSE(talk.Prevconv->isEnabled());
    EXPECT_TRUE(talk.Nextconv->isEnabled());
    seen << talk.Convtext->text();
    talk.Nextconv_Click();
    seen << talk.Convtext->text();
    talk.Nextconv_Click();
    seen << talk.Convtext->text();
    EXPECT_FALSE(talk.Nextconv->isEnabled());
    talk.Prevconv_Click();
    talk.Prevconv_Click();
    EXPECT_FALSE(talk.Prevconv->isEnabled());
    EXPECT_EQ(Game.SayIndex, 0);
    talk.Closeframe_Click();
    return 0;
  });
  talk::InitSaylist(QStringLiteral("Entry"));
  ASSERT_EQ(seen.size(), 3);
  EXPECT_EQ(seen[2], QStringLiteral("Good luck out there."));
  const QStringList played = window().commands();
  EXPECT_EQ(played.first(), QStringLiteral("PLAY From 100 to 900"));
  EXPECT_EQ(played.last(), QStringLiteral("Stop"));
  EXPECT_EQ(played.count(QStringLiteral("PLAY From 0 to 700")), 1);
  EXPECT_FALSE(ScreenInstance<Talkform>::exists());
}

TEST_F(SpeechTest, AKeyWithOneLineCannotBePaged) {
  links({{"Stand", "3", "1"}});
  platform::ScopedService<platform::ScreensHost, platform::ScriptedScreens> screens;
  bool nextUsable = true;
  screens->on(QStringLiteral("Talkform"), [&](QWidget& widget) {
    nextUsable = static_cast<Talkform&>(widget).Nextconv->isEnabled();
    return 0;
  });
  talk::InitSaylist(QStringLiteral("Stand"));
  EXPECT_FALSE(nextUsable);
}

TEST_F(SpeechTest, AreaSoundPlaysASnippetOfTheWorldsRecordingFromARandomStart) {
  window().setLength(10000);
  random->push(0.5);  // start Int(0.5 * 6000)
  random->push(0.0);  // the shortest snippet
  talk::AreaSound();
  random->push(0.0);
  random->push(0.9999);  // the longest
  talk::AreaSound();
  EXPECT_EQ(window().log(), QStringList({"file D:\\sound\\aDakota.wav", "PLAY From 3000 to 3600", "Close",
                                         "file D:\\sound\\aDakota.wav", "PLAY From 0 to 4000"}));
  EXPECT_EQ(Game.MediaBusy, -1);
}

}  // namespace
