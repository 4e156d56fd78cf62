// SPDX-License-Identifier: GPL-2.0-or-later
// One whole hunt in each world of both groups, played through the screens' handlers on the
// generated sample world: a tag, clothing for the world and a call bought, the walk into the field with
// quarry and weapon, ticks until the quarry shows, a shot at its most vital zone, the trophy page and the
// record book, and the end of the week.
#include "hunt/surround.h"
#include "lodge/catalog.h"
#include "lodge/licence.h"
#include "lodge/weapons.h"
#include "platform/dialogs.h"
#include "platform/fakes/fake_clock.h"
#include "platform/fakes/media_fake_window.h"
#include "platform/fakes/media_manual_clock.h"
#include "platform/fakes/panorama_fake_factory.h"
#include "platform/fakes/scripted_screens.h"
#include "platform/mixer/active_rdx.h"
#include "platform/records/record_data.h"
#include "shell/data_tables.h"
#include "shell/game_state.h"
#include "shell/postcard.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/screen_instance.h"
#include "shell/screen_layout.h"
#include "shooting/hit_zone_file.h"
#include "shooting/videoshot.h"
#include "support/temp_drive.h"

#include <QSet>
#include <QTabBar>
#include <QTimer>

#include <optional>

#include <gtest/gtest.h>

namespace {

constexpr int kMostTicks = 3000;
constexpr int kLastGameSpecies = 16;

// A player who agrees to everything the game asks: buying, confirming, going on.
class AgreeingDialogs final : public platform::Dialogs {
 public:
  platform::Answer MsgBox(const platform::MessageBox& box) override {
    shown.push_back(box);
    return box.buttons == platform::Buttons::Ok ? platform::Answer::Ok : platform::Answer::Yes;
  }
  std::vector<platform::MessageBox> shown;
};

struct WorldCase {
  bool permit;
  int world;
};

std::string caseName(const testing::TestParamInfo<WorldCase>& info) {
  return (info.param.permit ? "Permit" : "Base") + std::to_string(info.param.world);
}

class EndToEnd : public testing::TestWithParam<WorldCase> {
 protected:
  EndToEnd() {
    platform::files().mapDrive(u'D', HUNT_WORLD_DIR);
    Game = GameState{};
    Game.MediaRoot = QStringLiteral("D:\\");
    Game.Fileloc = QStringLiteral("C:\\");
    Game.XpackMode = GetParam().permit ? -1 : 0;
    Game.DbaseDir = GetParam().permit ? QStringLiteral("Xdbase\\") : QStringLiteral("Dbase\\");
    Game.ScreenWidth = 1024 * 15;
    Game.ScreenHeight = 768 * 15;
    SetScreenLayout();
    ReadSaveFile(QStringLiteral("D:\\data\\newgam.csv"), kGameKind);
  }
  ~EndToEnd() override {
    unloadAllScreens();
    Game = GameState{};
  }

  void newHunt() {
    Postcard& card = ScreenInstance<Postcard>::get();
    card.Form_Load();
    card.Nextbox_Click();
    card.Selectworld_Click(GetParam().world);
    card.Diffbutton_Click(0);
    card.Image2_Click();
    ScreenInstance<Postcard>::unload();
  }

  // The first game species of the world that has encounter clips and a tag for sale.
  int16_t quarry() {
    for (int16_t species = 1; species <= kLastGameSpecies; ++species) {
      platform::RecordData videos;
      videos.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + Game.AreaLetter + QStringLiteral("video.isd"));
      videos.SetCriteria(QStringLiteral("Field(\"Animalnum\") = ") + QString::number(species));
      videos.FindFirst();
      if (!videos.NoMatch() && Game.TagsOwned[species] != kTagAbsent) return species;
    }
    return 0;
  }

  // The weapon rated best against the species at close range.
  int16_t bestWeapon(int16_t species) {
    int16_t best = 1;
    int16_t bestRating = -100;
    for (int16_t weapon = 1; weapon <= 9; ++weapon) {
      Game.CurWeapon = weapon;
      Game.CurAnimal = species;
      Game.RangeBand = 0;
      LoadWeaponRating();
      if (Game.WeaponRating > bestRating) {
        best = weapon;
        bestRating = Game.WeaponRating;
      }
    }
    Game.CurWeapon = 0;
    Game.CurAnimal = 0;
    return best;
  }

  // The path from camp into the field.
  QString fieldPath() {
    platform::RecordData paths;
    paths.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + Game.AreaLetter + QStringLiteral("paths.isd"));
    paths.SetCriteria(QStringLiteral("Field(\"Loctype\") = 3"));
    for (paths.FindFirst(); !paths.NoMatch(); paths.FindNext()) {
      const QString name = paths.Field(QStringLiteral("Hypername")).trimmed();
      if (name.startsWith(u'^')) return name;
    }
    return {};
  }

  // The clothing worth wearing in this world: per slot, the item that scores best here, when it
  // beats going without.
  QSet<int16_t> clothingToBuy() {
    std::map<int, std::pair<int16_t, int16_t>> best;  // slot -> item, score
    platform::RecordData catalog;
    catalog.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + QStringLiteral("catalog.isd"));
    catalog.SetCriteria(QStringLiteral("Field(\"Category\") = \"Clothing\""));
    for (catalog.FindFirst(); !catalog.NoMatch(); catalog.FindNext()) {
      const auto item = int16_t(catalog.Field(QStringLiteral("ID")).toInt());
      const int slot = catalog.Field(QStringLiteral("Sub-CatNumber")).toInt();
      const int16_t score = ItemScore(item);
      if (score > Game.NotEquipScore[slot] && (!best.count(slot) || score > best[slot].second))
        best[slot] = {item, score};
    }
    QSet<int16_t> items;
    for (const auto& [slot, choice] : best) items.insert(choice.first);
    return items;
  }

  // Dresses for the world, then buys a call from the outfitter's tools.
  void outfit(Catalog& shop) {
    const QSet<int16_t> clothing = clothingToBuy();
    shop.TabCat->setCurrentIndex(0);
    for (int page = 0; page < 40; ++page) {
      if (clothing.contains(shop.currentItem())) shop.Buybutton_Click();
      shop.Catnext_Click();
    }
    shop.TabCat->setCurrentIndex(2);
    for (int page = 0; page < 20 && Game.EquipSlots[8] == 0; ++page) {
      if (shop.currentItem() >= 25 && shop.currentItem() <= 28) shop.Buybutton_Click();
      shop.Catnext_Click();
    }
  }

  // The most vital zone of a slice that lies wholly in the picture, or none.
  static std::optional<HitZone> vitalInView(const HitZoneRecord& zones) {
    std::optional<HitZone> vital;
    for (const HitZone& zone : zones) {
      const bool inView = zone.left >= 0 && zone.top >= 0 && zone.right < 320 && zone.bottom < 240;
      if (inView && zone.code >= 1 && zone.code <= 7 && (!vital || zone.code > vital->code)) vital = zone;
    }
    return vital;
  }

  // Waits for the first slice that shows the heart and lungs, as a hunter waits for the
  // broadside, and fires at their middle.
  void shootVitals(Videoshot& scene) {
    scene.vstart();
    const QString clip = Game.MediaRoot + QStringLiteral("Vmain\\") + Game.VideoName + QStringLiteral(".dat");
    std::optional<HitZone> vital;
    int number = 2;
    for (HitZoneRecord zones{}; number <= 60; ++number) {
      readHitZoneRecord(clip, number, zones);
      vital = vitalInView(zones);
      if (vital && vital->code == 7) break;
    }
    ASSERT_TRUE(vital && vital->code == 7) << Game.VideoName.toStdString();
    playback->advance(number * 360 + 180);
    scene.ActiveRDX1->frame();
    scene.ActiveRDX1_BeforeDraw();
    const int scale = scene.displayScale();
    const QPoint at = scene.displayOrigin() +
                      QPoint((vital->left + vital->right) / 2, (vital->top + vital->bottom) / 2) * scale;
    scene.ActiveRDX1_MouseDown(1, 0, at.x() * 15.0, at.y() * 15.0);
    shots << Game.ShotOutcome;
  }

  testing_support::TempDrive saves{u'C'};
  platform::ScopedService<platform::PanoramaFactory, platform::FakePanoramaFactory> panoramas;
  platform::ScopedService<platform::MediaWindows, platform::FakeMediaWindows> windows;
  platform::ScopedService<platform::Dialogs, AgreeingDialogs> dialogs;
  platform::ScopedService<platform::ScreensHost, platform::ScriptedScreens> screens;
  platform::ScopedService<platform::Clock, platform::FakeClock> clock;
  platform::ScopedService<platform::PlaybackClock, platform::ManualPlaybackClock> playback{0};
  QList<int16_t> shots;
};

TEST_P(EndToEnd, AWholeHuntFromTheLodgeToTheEndOfTheWeek) {
  newHunt();
  const int16_t species = quarry();
  ASSERT_GT(species, 0);
  const int16_t weapon = bestWeapon(species);
  const QString field = fieldPath();
  ASSERT_FALSE(field.isEmpty());

  screens->on(QStringLiteral("Licence"), [&](QWidget& w) {
    static_cast<Licence&>(w).Tagpic_Click(species);
    return 0;
  });
  screens->on(QStringLiteral("Catalog"), [&](QWidget& w) {
    outfit(static_cast<Catalog&>(w));
    return 0;
  });
  screens->on(QStringLiteral("Weapons"), [&](QWidget& w) {
    auto& rack = static_cast<Weapons&>(w);
    while (rack.page() != weapon) rack.Catnext_Click();
    rack.selwep_Click();
    return 0;
  });
  screens->on(QStringLiteral("Videoshot"), [&](QWidget& w) {
    auto& scene = static_cast<Videoshot&>(w);
    // Only the quarry is shot; anything else is let go.
    if (Game.CurAnimal == species) shootVitals(scene);
    scene.GetOut();
    return 0;
  });
  screens->on(QStringLiteral("Shotdata"), [](QWidget&) { return 0; });
  screens->on(QStringLiteral("RecordBook"), [](QWidget&) { return 0; });
  screens->on(QStringLiteral("Aviplay"), [](QWidget&) { return 0; });
  int restarts = 0;
  surround::setRestartHandler([&] { ++restarts; });

  surround& hunting = ScreenInstance<surround>::get();
  hunting.Form_Load();
  hunting.Surrinit();
  hunting.SVControl1_OnSelectHotspot(QStringLiteral("*tags"));
  ASSERT_EQ(Game.TagsOwned[species], kTagHeld);
  hunting.SVControl1_OnSelectHotspot(QStringLiteral("!outfit"));
  EXPECT_GT(Game.EquipSlots[8], 0) << "no call bought";

  for (int tick = 0; tick < kMostTicks && Game.TagsOwned[species] == kTagHeld; ++tick) {
    if (Game.PlaceMode != 3) hunting.SVControl1_OnSelectHotspot(field);
    ASSERT_EQ(Game.CurWeapon, weapon);
    hunting.Timer2_Timer();
  }
  ASSERT_FALSE(shots.isEmpty()) << "the quarry never showed";
  EXPECT_TRUE(shots.last() == 2 || shots.last() == 3)
      << "outcome " << shots.last() << " species " << species << " weapon " << weapon << " rating "
      << Game.WeaponRating << " clothes " << Game.ClothesScore << " zone " << Game.ZoneValue << " quality "
      << Game.ShotQuality;
  EXPECT_NE(Game.TagsOwned[species], kTagHeld);

  platform::RecordData book;
  book.SetDatabaseName(Game.Fileloc + Game.DbaseDir + QStringLiteral("trophy.isd"));
  book.FindFirst();
  EXPECT_FALSE(book.NoMatch()) << "no trophy in the record book";

  // The week ends on Friday night.
  Game.PlaceMode = 2;
  Game.GameDate = rt::dateSerial(1997, 12, 26) + rt::timeSerial(18, 55, 0);
  hunting.Timer2_Timer();
  surround::setRestartHandler(nullptr);
  EXPECT_EQ(restarts, 1);
  EXPECT_EQ(dialogs->shown.back().text, QStringLiteral("Press OK to RESTART"));
}

INSTANTIATE_TEST_SUITE_P(EveryWorld, EndToEnd,
                         testing::Values(WorldCase{false, 0}, WorldCase{false, 1}, WorldCase{false, 2},
                                         WorldCase{false, 3}, WorldCase{true, 0}, WorldCase{true, 1},
                                         WorldCase{true, 2}, WorldCase{true, 3}),
                         caseName);

}  // namespace
