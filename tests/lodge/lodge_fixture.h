// SPDX-License-Identifier: GPL-2.0-or-later
// A fresh game in a tiny world for each lodge test: a media drive, scripted message boxes,
// a fake clock and media window, and a speech table in which every key owns one line whose
// sound file is named after the key, so a test can read what was said from the media log.
#pragma once

#include "platform/clock.h"
#include "platform/fakes/fake_clock.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/random.h"
#include "platform/records/record_data.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "support/temp_drive.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

namespace lodge_testing {

// Writes a record file at `gamePath` with `fields` and one record per row.
inline void writeRecords(const QString& gamePath, const QStringList& fields,
                         const std::vector<QStringList>& rows) {
  platform::RecordData data;
  data.SetDatabaseName(gamePath);
  for (const QStringList& row : rows) {
    data.AddNew();
    for (int i = 0; i < fields.size(); ++i) data.SetField(fields[i], row.value(i));
    data.Update();
  }
}

// The speech keys any lodge screen says.
inline const QStringList& lodgeSpeechKeys() {
  static const QStringList keys{"already",  "nomoney",  "oconfirm", "thankyou", "chweap", "chtag",
                                "hosttag1", "hosttag2", "hnomoney", "2choice",  "ftag",   "gconfirm",
                                "score100", "score75",  "score50",  "scorew"};
  return keys;
}

class LodgeFixture : public ::testing::Test {
 protected:
  LodgeFixture() {
    Game = GameState{};
    Game.MediaRoot = QStringLiteral("D:\\");
    Game.AreaCode = QStringLiteral("Piedmo");
    Game.AreaLetter = QStringLiteral("P");
    Game.OwnedItems.fill(kEmptyOwnedEntry);
    Game.OwnedItems[0] = 0;
    setHuntMediaWindow(&media);
    writeSpeech();
  }
  ~LodgeFixture() override {
    setHuntMediaWindow(nullptr);
    Game = GameState{};
  }

  // What the speech service said, in order, read from the sound files it opened.
  QStringList spoken() const {
    QStringList keys;
    for (const QString& entry : media.log()) {
      if (!entry.startsWith(QStringLiteral("file D:\\sound\\say_"))) continue;
      keys << entry.section(QStringLiteral("say_"), 1).chopped(4);
    }
    return keys;
  }

  testing_support::TempDrive drive{u'D'};
  platform::ScopedService<platform::Dialogs, platform::ScriptedDialogs> dialogs;
  platform::ScopedService<platform::Clock, platform::FakeClock> clock;
  platform::ScopedService<platform::Random, platform::SeededRandom> random{7};
  platform::FakeMediaWindow media;

 private:
  void writeSpeech() {
    std::vector<QStringList> links;
    std::vector<QStringList> lines;
    for (int n = 0; n < lodgeSpeechKeys().size(); ++n) {
      const QString key = lodgeSpeechKeys()[n];
      links.push_back({key, QString::number(n + 1), QStringLiteral("1")});
      lines.push_back({QString::number(n + 1), QStringLiteral("say_") + key, QStringLiteral("0"),
                       QStringLiteral("500"), key, QStringLiteral("@"), QStringLiteral("@"),
                       QStringLiteral("Phost")});
    }
    writeRecords(QStringLiteral("D:\\Dbase\\Clinks.isd"), {"Hypname", "Conv Name", "sequence"}, links);
    writeRecords(
        QStringLiteral("D:\\Dbase\\Psnoun.isd"),
        {"Conv Name", "Wave File", "Engstart", "Engend", "Engtext1", "Engtext2", "Engtext3", "whopic"},
        lines);
  }
};

}  // namespace lodge_testing
