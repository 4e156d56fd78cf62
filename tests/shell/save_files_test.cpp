// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/save_files.h"

#include "game_fixture.h"
#include "shell/file_names.h"
#include "shell/save_file_layout.h"

#include <QFile>

#include <filesystem>

using platform::Answer;
using platform::Buttons;
using platform::Icon;

namespace {

// A game in the middle of a hunt, touching every field of the file.
void setKnownState() {
  for (int i = 0; i < kEquipSlotCount; ++i) Game.EquipSlots[i] = static_cast<int16_t>(i == 0 ? 0 : 100 + i);
  Game.OwnedItems.fill(kEmptyOwnedEntry);
  Game.OwnedItems[1] = 3;
  Game.OwnedItems[2] = 41;
  Game.TagsOwned.fill(kTagNone);
  Game.TagsOwned[0] = 0;
  Game.TagsOwned[16] = 129;
  Game.TagsOwned[3] = kTagFilled;
  Game.TagsOwned[4] = kTagAbsent;
  Game.SavedFlagA = -1;
  Game.Money = 1875;
  Game.TagSpecies = 16;
  Game.SkillLevel = 1;
  Game.GameDate = rt::dateSerial(1997, 12, 23) + rt::timeSerial(16, 35, 0);
  Game.WorldNum = 0;
  Game.AreaLetter = "P";
  Game.AreaCode = "Piedmo";
  Game.HunterName = "JANE DOE";
  Game.PlaceMode = 3;
  Game.CurHotspot = 14;
  Game.CallUsed = 1;
  Game.OpticsBonus = 0;
  Game.EventCooldown = 2;
  Game.HitVideoName = "";
  Game.EscapeVideoName = "EMPTY";
  Game.VideoName = "wtd03";
  Game.TrophySize = 8.5;
  Game.TrophyWeight = 162.25;
  Game.StartPano = "3Pstnd2";
  Game.StandNum = 2;
  Game.TerrainClass = 1;
  Game.RangeBand = 2;
  Game.RangeYards = 185;
  Game.ClothesScore = -40;
  Game.ToolsScore = 12;
  Game.CurWeapon = 2;
  Game.CurWeaponPic = "wep2";
  Game.WeaponRating = 7;
  Game.ZoneValue = 8;
  Game.ShotQuality = 4;
  Game.TrophyUnit = "Points";
  Game.CurAnimal = 16;
  Game.ShotOutcome = 3;
  Game.HitZoneResult = -32;
  Game.WoundedFlag = 1;
  Game.OpticsUp = 0;
  Game.WindDir = 7;
  Game.WindStrength = 4;
  Game.SayIndex = 5;
  Game.CurLocation = "North ridge";
  for (int w = 0; w < kSightCount; ++w) {
    Game.SightElev[w] = static_cast<int16_t>(w - 10);
    Game.SightWind[w] = static_cast<int16_t>(9 - w);
  }
}

QByteArray goldenGame() {
  QFile file(QStringLiteral(HUNT_TEST_DATA_DIR "/known_state.VNG"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "golden file missing";
  return file.readAll();
}

class SaveFiles : public GameFixture {
 protected:
  QByteArray savedBytes(const QString& name) {
    QFile file(QString::fromStdString(platform::files().resolve(Game.Fileloc + name).string()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QByteArray written(char kind) {
    EXPECT_TRUE(writeSaveFile("C:\\saves\\probe.tmp", kind));
    return savedBytes("probe.tmp");
  }
};

}  // namespace

TEST_F(SaveFiles, AGameFileMatchesTheGoldenFileByteForByte) {
  setKnownState();
  EXPECT_EQ(written(kGameKind), goldenGame());
}

TEST_F(SaveFiles, FilesHaveOneValueALineInTheLayoutsCount) {
  setKnownState();
  EXPECT_EQ(written(kGameKind).count("\r\n"), 162);
  EXPECT_EQ(saveFileLines(kGameKind), 162);
  EXPECT_EQ(written(kEquipmentKind).count("\r\n"), 102);
  EXPECT_EQ(saveFileLines(kEquipmentKind), 102);
}

TEST_F(SaveFiles, AGameReadBackEqualsTheGameSaved) {
  setKnownState();
  const QByteArray before = written(kGameKind);
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  ReadSaveFile("C:\\saves\\probe.tmp", kGameKind);
  EXPECT_EQ(Game.HunterName, "JANE DOE");
  EXPECT_EQ(Game.HitVideoName, "");
  EXPECT_EQ(Game.EscapeVideoName, "EMPTY");
  EXPECT_EQ(Game.GameDate, rt::dateSerial(1997, 12, 23) + rt::timeSerial(16, 35, 0));
  EXPECT_EQ(Game.SightElev[9], -1);
  EXPECT_EQ(Game.SightElev[10], 0);  // never written
  EXPECT_EQ(written(kGameKind), before);
}

TEST_F(SaveFiles, TheSecondSkillLevelWins) {
  setKnownState();
  QByteArray bytes = written(kGameKind);
  QList<QByteArray> lines = bytes.split('\n');
  // Lines 104 and 125 hold the two copies of the skill level.
  ASSERT_EQ(lines[103].trimmed(), "1");
  ASSERT_EQ(lines[124].trimmed(), "1");
  lines[124] = " 2\r";
  saves.write("saves/edited.VNG", lines.join('\n'));
  ReadSaveFile("C:\\saves\\edited.VNG", kGameKind);
  EXPECT_EQ(Game.SkillLevel, 2);
}

TEST_F(SaveFiles, AnEquipmentSetLeavesClockAndWorldAlone) {
  setKnownState();
  ASSERT_EQ(saveNamedFile("KIT", kEquipmentKind), SaveOutcome::Saved);
  const GameState saved = Game;
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  Game.GameDate = rt::dateSerial(1997, 12, 26);
  Game.WorldNum = 3;
  Game.HunterName = "OTHER";
  ReadSaveFile(saveFilePath("KIT", kEquipmentKind), kEquipmentKind);
  EXPECT_EQ(Game.EquipSlots, saved.EquipSlots);
  EXPECT_EQ(Game.OwnedItems, saved.OwnedItems);
  EXPECT_EQ(Game.TagsOwned, saved.TagsOwned);
  EXPECT_EQ(Game.SavedFlagA, -1);
  EXPECT_EQ(Game.Money, 1875);
  EXPECT_EQ(Game.GameDate, rt::dateSerial(1997, 12, 26));
  EXPECT_EQ(Game.WorldNum, 3);
  EXPECT_EQ(Game.HunterName, "OTHER");
}

TEST_F(SaveFiles, AShortFileChangesOnlyWhatItHolds) {
  saves.write("saves/SHORT.VNG", " 7\r\n 8\r\n");
  Game.EquipSlots.fill(-5);
  Game.Money = 999;
  loadNamedFile(QStringLiteral("SHORT"), kGameKind);
  EXPECT_EQ(Game.EquipSlots[0], 7);
  EXPECT_EQ(Game.EquipSlots[1], 8);
  EXPECT_EQ(Game.EquipSlots[2], -5);
  EXPECT_EQ(Game.Money, 999);
  // The loaded message follows all the same.
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"Game Loaded.", Buttons::Ok, Icon::None, "LOADED"}));
}

TEST_F(SaveFiles, ADamagedFileStopsAtTheDamage) {
  setKnownState();
  QByteArray bytes = written(kGameKind);
  bytes.replace("12/23/1997 4:35:00 PM", "garbage\x01\x02");
  saves.write("saves/BAD.VNG", bytes);
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  ReadSaveFile("C:\\saves\\BAD.VNG", kGameKind);
  EXPECT_EQ(Game.SkillLevel, 1);         // before the date
  EXPECT_EQ(Game.GameDate, 0);           // the damaged value
  EXPECT_EQ(Game.HunterName, "Hunter");  // after it, untouched
}

TEST_F(SaveFiles, AMissingOrBinaryFileChangesNothing) {
  Game.Money = 1234;
  ReadSaveFile("C:\\saves\\NONE.VNG", kGameKind);
  QByteArray noise(4096, '\0');
  for (int i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>((i * 7919) % 256);
  saves.write("saves/NOISE.VNG", noise);
  ReadSaveFile("C:\\saves\\NOISE.VNG", kGameKind);
  EXPECT_EQ(Game.Money, 1234);
}

TEST_F(SaveFiles, GameAndEquipmentUnderOneNameNeverCollide) {
  setKnownState();
  ASSERT_EQ(saveNamedFile("BOB", kGameKind), SaveOutcome::Saved);
  ASSERT_EQ(saveNamedFile("BOB", kEquipmentKind), SaveOutcome::Saved);
  EXPECT_EQ(savedBytes("BOB.VNG").count("\r\n"), 162);
  EXPECT_EQ(savedBytes("BOB.VNE").count("\r\n"), 102);
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"BOB"});
  EXPECT_EQ(listSaveNames(kEquipmentKind), QStringList{"BOB"});
  EXPECT_EQ(dialogs->shown()[1],
            (platform::MessageBox{"Equipment Saved.", Buttons::Ok, Icon::None, "SAVED"}));
}

TEST_F(SaveFiles, SpecialPermitSavesAreInvisibleToTheBaseWorlds) {
  Game.SaveExt = ".VX";
  ASSERT_EQ(saveNamedFile("PERMIT", kGameKind), SaveOutcome::Saved);
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"PERMIT"});
  Game.SaveExt = ".VN";
  EXPECT_TRUE(listSaveNames(kGameKind).isEmpty());
  ASSERT_EQ(saveNamedFile("base two", kGameKind), SaveOutcome::Saved);
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"BASE TWO"});
}

TEST_F(SaveFiles, NoToOverwriteLeavesTheOldFileByteForByte) {
  setKnownState();
  ASSERT_EQ(saveNamedFile("KEEP", kGameKind), SaveOutcome::Saved);
  const QByteArray old = savedBytes("KEEP.VNG");
  Game.Money = 5;
  dialogs->answer(Answer::No);
  EXPECT_EQ(saveNamedFile("KEEP", kGameKind), SaveOutcome::Declined);
  EXPECT_EQ(savedBytes("KEEP.VNG"), old);
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"Save game Already Exists.\n\rOverwrite game?",
                                                   Buttons::YesNo, Icon::None, "Save game exists"}));
  dialogs->answer(Answer::Yes);
  EXPECT_EQ(saveNamedFile("KEEP", kGameKind), SaveOutcome::Saved);
  EXPECT_NE(savedBytes("KEEP.VNG"), old);
}

TEST_F(SaveFiles, ASaveWithoutANameWritesNothing) {
  EXPECT_EQ(saveNamedFile("", kGameKind), SaveOutcome::NeedName);
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"You must enter a Save name", Buttons::Ok, Icon::None,
                                                   "Enter a Save Name"}));
  // Nothing of the save alphabet is left of it.
  EXPECT_EQ(saveNamedFile("../,", kGameKind), SaveOutcome::NeedName);
  EXPECT_TRUE(listSaveNames(kGameKind).isEmpty());
}

TEST_F(SaveFiles, ANameOfBlanksIsAName) {
  EXPECT_EQ(saveNamedFile("   ", kGameKind), SaveOutcome::Saved);
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"   "});
}

TEST_F(SaveFiles, ASaveThatCannotBeWrittenKeepsTheOldFile) {
  setKnownState();
  ASSERT_EQ(saveNamedFile("SAFE", kGameKind), SaveOutcome::Saved);
  const QByteArray old = savedBytes("SAFE.VNG");
  dialogs->clear();
  // The folder vanishes under the game: the new file cannot be made.
  Game.Fileloc = "C:\\gone\\";
  EXPECT_EQ(saveNamedFile("SAFE", kGameKind), SaveOutcome::Failed);
  EXPECT_TRUE(dialogs->shown().empty());
  Game.Fileloc = "C:\\saves\\";
  EXPECT_EQ(savedBytes("SAFE.VNG"), old);
}

TEST_F(SaveFiles, LoadingWantsASelectedNonEmptyEntry) {
  EXPECT_EQ(loadNamedFile(std::nullopt, kGameKind), LoadOutcome::NothingSelected);
  EXPECT_EQ(dialogs->last(),
            (platform::MessageBox{"No Save Game Selected.", Buttons::Ok, Icon::None, "Select Save Game"}));
  EXPECT_EQ(loadNamedFile(QStringLiteral("  "), kGameKind), LoadOutcome::EmptySelection);
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"You must select a save game.", Buttons::Ok, Icon::None,
                                                   "Select a save game"}));
  EXPECT_EQ(Game.ScreenState, "");
}

TEST_F(SaveFiles, LoadingAGameHandsOverLoaded) {
  setKnownState();
  ASSERT_EQ(saveNamedFile("HUNT", kGameKind), SaveOutcome::Saved);
  Game.Money = 1;
  EXPECT_EQ(loadNamedFile(QStringLiteral("HUNT"), kGameKind), LoadOutcome::Loaded);
  EXPECT_EQ(Game.Money, 1875);
  EXPECT_EQ(Game.ScreenState, "LOADED");
}

TEST_F(SaveFiles, DeletingAsksFirst) {
  ASSERT_EQ(saveNamedFile("GONE", kEquipmentKind), SaveOutcome::Saved);
  EXPECT_FALSE(deleteNamedFile(std::nullopt, kEquipmentKind));
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"You Must Select a savegame to Delete.", Buttons::Ok,
                                                   Icon::Exclamation, "Select save game"}));
  dialogs->answer(Answer::Cancel);
  EXPECT_FALSE(deleteNamedFile(QStringLiteral("GONE"), kEquipmentKind));
  EXPECT_EQ(dialogs->last(), (platform::MessageBox{"Delete save game GONE?", Buttons::OkCancel,
                                                   Icon::Exclamation, "Delete save game"}));
  EXPECT_EQ(listSaveNames(kEquipmentKind), QStringList{"GONE"});
  dialogs->answer(Answer::Ok);
  EXPECT_TRUE(deleteNamedFile(QStringLiteral("GONE"), kEquipmentKind));
  EXPECT_TRUE(listSaveNames(kEquipmentKind).isEmpty());
}

// Names that would reach outside the save folder: a list entry, a pasted name, a file put
// in the folder by hand.
TEST_F(SaveFiles, NoNameReachesOutsideTheSaveFolder) {
  saves.write("outside.VNG", "keep");
  saves.write("saves/..\\outside.VNG", "odd");  // one file whose name holds a backslash
  saves.write("saves/A.VNG.VNG", "double");
  saves.write("saves/camp.vng", "");
  EXPECT_EQ(listSaveNames(kGameKind), QStringList{"CAMP"});
  dialogs->answer(Answer::Ok);
  for (const QString& name :
       {QStringLiteral("..\\OUTSIDE"), QStringLiteral("../OUTSIDE"), QStringLiteral("..")})
    EXPECT_FALSE(deleteNamedFile(name, kGameKind)) << name.toStdString();
  EXPECT_EQ(saves.read("outside.VNG"), "keep");
  EXPECT_EQ(saves.read("saves/..\\outside.VNG"), "odd");

  EXPECT_EQ(saveNamedFile("../../../x", kGameKind), SaveOutcome::Saved);
  EXPECT_FALSE(std::filesystem::exists(saves.root() / "x.VNG"));
  EXPECT_FALSE(std::filesystem::exists(saves.root() / "saves" / "x.VNG"));
  EXPECT_TRUE(std::filesystem::exists(saves.root() / "saves" / "X.VNG"));
}

// Every text field comes back as it went, the hunter's name holding every character a
// player can type into the postcard.
TEST_F(SaveFiles, EveryTextFieldReadsBackWhole) {
  setKnownState();
  QString typed = QStringLiteral("A");
  for (char16_t c = 0x20; c < 0x7f; ++c) typed += QChar(c);
  typed += QString::fromUtf8("\u00e9\u00df\u00fc\u00c5\u00f1 \u65e5\u672c\u8a9e \U0001F98C Z");
  Game.HunterName = hunterNameFrom(typed);
  ASSERT_FALSE(Game.HunterName.contains(u',') || Game.HunterName.contains(u'"'));
  ASSERT_GT(Game.HunterName.size(), 100);
  Game.TrophyUnit = "Curl (in inches)";
  Game.CurLocation = "Jane's draw; 2nd (upper) stand";
  Game.HitVideoName = "hit01";
  const GameState saved = Game;
  ASSERT_EQ(saveNamedFile("ROUND TRIP", kGameKind), SaveOutcome::Saved);
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  ASSERT_EQ(loadNamedFile(QStringLiteral("ROUND TRIP"), kGameKind), LoadOutcome::Loaded);
  for (QString GameState::*field :
       {&GameState::AreaLetter, &GameState::AreaCode, &GameState::HunterName, &GameState::HitVideoName,
        &GameState::EscapeVideoName, &GameState::VideoName, &GameState::StartPano, &GameState::CurWeaponPic,
        &GameState::TrophyUnit, &GameState::CurLocation})
    EXPECT_EQ(Game.*field, saved.*field);
  EXPECT_EQ(Game.SightWind[9], saved.SightWind[9]);  // the last value: nothing shifted
}

// A damaged file never leaves the hunter without buttons or in a black view: each value out
// of its field's range becomes the new game's, the rest is kept.
TEST_F(SaveFiles, ValuesOutOfRangeBecomeTheNewGamesOnLoad) {
  media.write("data/.keep", "");
  Game.WorldNum = 1;
  Game.StartPano = "3lodge";
  Game.TagsOwned.fill(kTagNone);
  ASSERT_TRUE(writeSaveFile("D:\\data\\newgam.csv", kGameKind));
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  setKnownState();
  QList<QByteArray> lines = written(kGameKind).split('\n');
  const auto set = [&lines](int line, const QByteArray& value) { lines[line - 1] = value + '\r'; };
  set(5, "-5");              // a carried item
  set(92, " 77");            // a tag code
  set(106, " 99");           // WorldNum
  set(107, "..\\..\\etc");   // AreaLetter
  set(110, " 32767");        // PlaceMode
  set(117, "..\\..\\pano");  // VideoName
  set(120, "C:\\x");         // StartPano
  set(121, "-1");            // StandNum
  set(128, " 50");           // CurWeapon
  saves.write("saves/BROKEN.VNG", lines.join('\n'));
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  Game.MediaRoot = "D:\\";
  ASSERT_EQ(loadNamedFile(QStringLiteral("BROKEN"), kGameKind), LoadOutcome::Loaded);
  EXPECT_EQ(Game.EquipSlots[4], 0);
  EXPECT_EQ(Game.EquipSlots[5], 105);
  EXPECT_EQ(Game.TagsOwned[8], kTagNone);
  EXPECT_EQ(Game.WorldNum, 1);
  EXPECT_EQ(Game.AreaCode, "Piedmo");  // a world's code, though not this one's
  EXPECT_EQ(Game.AreaLetter, "D");
  EXPECT_EQ(Game.PlaceMode, 0);
  EXPECT_EQ(Game.VideoName, "");
  EXPECT_EQ(Game.StartPano, "3lodge");
  EXPECT_EQ(Game.StandNum, 0);
  EXPECT_EQ(Game.CurWeapon, 0);
  EXPECT_EQ(Game.Money, 1875);
  EXPECT_EQ(Game.HunterName, "JANE DOE");
  EXPECT_EQ(Game.CurLocation, "North ridge");
}

TEST_F(SaveFiles, AValidGameLoadsUnchanged) {
  setKnownState();
  ASSERT_EQ(saveNamedFile("VALID", kGameKind), SaveOutcome::Saved);
  Game = GameState{};
  Game.Fileloc = "C:\\saves\\";
  ASSERT_EQ(loadNamedFile(QStringLiteral("VALID"), kGameKind), LoadOutcome::Loaded);
  EXPECT_EQ(written(kGameKind), goldenGame());
}
