// SPDX-License-Identifier: GPL-2.0-or-later
// A small world for the hunting screen: a lodge, a camp, two stands with trail points, the
// world's voices filed one line per key (so a test can read what was said from the media
// window's log), fake panoramas and media, scripted dice, boxes and screens, and a fake clock.
#pragma once

#include "hunt/surround.h"
#include "platform/fakes/fake_clock.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/panorama_fake_control.h"
#include "platform/fakes/panorama_fake_factory.h"
#include "platform/fakes/scripted_dialogs.h"
#include "platform/fakes/scripted_random.h"
#include "platform/fakes/scripted_screens.h"
#include "platform/records/record_file.h"
#include "shell/game_state.h"
#include "shell/screen_instance.h"
#include "support/temp_drive.h"

#include <QFrame>
#include <QStringList>
#include <QTimer>

#include <gtest/gtest.h>

class SurroundTest : public ::testing::Test {
 protected:
  SurroundTest() {
    Game = GameState{};
    Game.AreaCode = QStringLiteral("Dakota");
    Game.AreaLetter = QStringLiteral("D");
    Game.ResCode2 = QStringLiteral("1");
    Game.Fileloc = QStringLiteral("C:\\");
    Game.GameDate = rt::dateSerial(1997, 12, 22) + rt::timeSerial(6, 0, 0);
    Game.TagsOwned.fill(kTagNone);
    places({{"^camp", "90", "2", "Dcamp", "The camp by the creek", "0", "0", "0"},
            {"^3lodge", "0", "0", "3lodge", "The lodge", "0", "0", "0"},
            {"^3Dstnd1", "180", "3", "3Dstnd1", "Cottonwood stand 1", "0", "0", "0"},
            {"^3Dstnd2", "270", "3", "3Dstnd2", "Slough stand 2", "0", "0", "0"},
            {"^Dtrail", "45", "3", "3Dstnd1", "Along the draw to stand 1", "0", "0", "0"},
            {"^3Dchoose", "10", "1", "3Dchoose", "Where the trails part", "0", "0", "0"},
            {"~DPOI11", "0", "0", "", "A fallen cottonwood", "1", "120", "2"},
            {"~DPOI23", "0", "0", "", "A muddy wallow", "2", "240", "3"}});
    media.write("data/taglimt.csv", "2,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
    writeRecords("Dbase/Clinks.isd", {"Hypname", "Conv Name", "sequence"}, {});
    writeRecords(
        "Dbase/Dsnoun.isd",
        {"Conv Name", "Wave File", "Engstart", "Engend", "Engtext1", "Engtext2", "Engtext3", "whopic"}, {});
  }
  ~SurroundTest() override {
    unloadAllScreens();
    Game = GameState{};
  }

  void places(const QList<QStringList>& rows) {
    writeRecords("Dbase/Dpaths.isd",
                 {"Hypername", "Location", "Loctype", "filejump", "Description", "Range", "Yards", "Terrain"},
                 rows);
  }
  void writeRecords(const std::string& file, const QStringList& fields, const QList<QStringList>& rows) {
    platform::writeRecordFile(media.root() / file, {fields, rows});
  }
  // Gives each key one line whose sound file is named after the key; every line spoken then
  // takes one draw of the dice.
  void voice(const QStringList& keys) {
    QList<QStringList> links;
    QList<QStringList> lines;
    for (int i = 0; i < keys.size(); ++i) {
      const QString number = QString::number(i + 1);
      links.append({keys[i], number, "1"});
      lines.append({number, keys[i], "0", "1000", keys[i] + " line", "", "", "guide"});
    }
    writeRecords("Dbase/Clinks.isd", {"Hypname", "Conv Name", "sequence"}, links);
    writeRecords(
        "Dbase/Dsnoun.isd",
        {"Conv Name", "Wave File", "Engstart", "Engend", "Engtext1", "Engtext2", "Engtext3", "whopic"},
        lines);
  }
  // The keys spoken, in order, read from the sound files the media window was given.
  QStringList said() const {
    QStringList keys;
    for (const QString& entry : window().log()) {
      static const QString prefix = QStringLiteral("file D:\\sound\\");
      if (entry.startsWith(prefix) && entry.endsWith(u".wav")) keys << entry.mid(prefix.size()).chopped(4);
    }
    return keys;
  }
  platform::FakeMediaWindow& window() const { return *windows->made().front(); }

  surround& screen() {
    if (!ScreenInstance<surround>::exists()) {
      ScreenInstance<surround>::get().Form_Load();
    }
    return ScreenInstance<surround>::get();
  }
  platform::FakeSVControl& view() { return static_cast<platform::FakeSVControl&>(*screen().svcontrol1); }
  platform::FakeSVControl& optics() { return static_cast<platform::FakeSVControl&>(*screen().SVControl2); }
  void placeAt(int16_t placeMode, const QString& location) {
    Game.PlaceMode = placeMode;
    Game.StartPano = location;
    screen().Surrinit();
  }
  void setClock(int day, int hour, int minute) {
    Game.GameDate = rt::dateSerial(1997, 12, day) + rt::timeSerial(hour, minute, 0);
  }
  void dice(std::initializer_list<double> values) {
    for (double value : values) random->push(value);
  }

  testing_support::TempDrive media{u'D'};
  testing_support::TempDrive saves{u'C'};
  platform::ScopedService<platform::PanoramaFactory, platform::FakePanoramaFactory> panoramas;
  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows;
  platform::ScopedService<platform::Random, platform::ScriptedRandom> random;
  platform::ScopedService<platform::Dialogs, platform::ScriptedDialogs> dialogs;
  platform::ScopedService<platform::ScreensHost, platform::ScriptedScreens> screens;
  platform::ScopedService<platform::Clock, platform::FakeClock> clock;
};
