// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/save_file_ranges.h"

#include "shell/names.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"

#include <algorithm>
#include <functional>

namespace {

constexpr int kLastPlaceType = 5;
constexpr int kLastStand = 4;
constexpr int kLastItem = 999;

bool inRange(int value, int low, int high) {
  return value >= low && value <= high;
}

bool isTagCode(int16_t code) {
  // Held tags count up from 128 with every animal taken, as far as the world's limit allows.
  return code == 0 || code == kTagFilled || code == kTagNone || inRange(code, kTagHeld, kTagAbsent);
}

// A text that the game puts into a file name: no separator, drive colon or climb.
bool isNamePart(const QString& text) {
  return !text.contains(u'\\') && !text.contains(u'/') && !text.contains(u':') &&
         !text.contains(QStringLiteral(".."));
}

bool isWorldCode(const QString& code) {
  for (int world = 0; world < kWorldCount; ++world)
    if (code == WorldName(world).left(6)) return true;
  return false;
}

// The code of the world whose letter `letter` is, or "" when there is none.
QString worldCodeStarting(const QString& letter) {
  for (int world = 0; world < kWorldCount; ++world)
    if (WorldName(world).startsWith(letter)) return WorldName(world).left(6);
  return {};
}

class Mender {
 public:
  Mender(const QStringList& read, const GameState& defaults) : read_(read), defaults_(defaults) {}

  template <class T>
  void check(const char* name, T GameState::*member, const std::function<bool(const T&)>& fits) {
    if (!wasRead(name) || fits(Game.*member)) return;
    Game.*member = defaults_.*member;
    replaced_ << QLatin1String(name);
  }

  void checkNumber(const char* name, int16_t GameState::*member, int low, int high) {
    check<int16_t>(name, member, [low, high](const int16_t& v) { return inRange(v, low, high); });
  }

  void checkNamePart(const char* name, QString GameState::*member) {
    check<QString>(name, member, isNamePart);
  }

  template <size_t N>
  void checkEntries(const char* name, std::array<int16_t, N> GameState::*member, bool (*fits)(int16_t)) {
    if (!wasRead(name)) return;
    auto& entries = Game.*member;
    for (size_t i = 0; i < N; ++i) {
      if (fits(entries[i])) continue;
      entries[i] = (defaults_.*member)[i];
      replaced_ << QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i);
    }
  }

  // An area's code and letter are those of one of the worlds; any other text becomes the
  // world's own, as a new hunt sets them.
  void checkArea() {
    const QString code = WorldName(Game.WorldNum).left(6);
    check<QString>("AreaCode", &GameState::AreaCode, isWorldCode);
    check<QString>("AreaLetter", &GameState::AreaLetter, [](const QString& letter) {
      return letter.size() == 1 && !worldCodeStarting(letter).isEmpty();
    });
    if (replaced_.contains(QStringLiteral("AreaCode"))) Game.AreaCode = code;
    if (replaced_.contains(QStringLiteral("AreaLetter"))) Game.AreaLetter = code.left(1);
  }

  const QStringList& replaced() const { return replaced_; }

 private:
  bool wasRead(const char* name) const { return read_.contains(QLatin1String(name)); }

  const QStringList& read_;
  const GameState& defaults_;
  QStringList replaced_;
};

bool isItem(int16_t item) {
  return inRange(item, 0, kLastItem);
}

void checkEquipment(Mender& mend) {
  mend.checkEntries("EquipSlots", &GameState::EquipSlots, isItem);
  mend.checkEntries("OwnedItems", &GameState::OwnedItems, isItem);
  mend.checkEntries("TagsOwned", &GameState::TagsOwned, isTagCode);
}

void checkGame(Mender& mend) {
  mend.checkNumber("TagSpecies", &GameState::TagSpecies, 0, kSpeciesCount);
  mend.checkNumber("SkillLevel", &GameState::SkillLevel, 0, 2);
  mend.checkNumber("WorldNum", &GameState::WorldNum, 0, kWorldCount - 1);
  mend.checkNumber("PlaceMode", &GameState::PlaceMode, 0, kLastPlaceType);
  mend.checkNumber("StandNum", &GameState::StandNum, 0, kLastStand);
  mend.checkNumber("CurWeapon", &GameState::CurWeapon, 0, kWeaponCount);
  mend.checkNumber("CurAnimal", &GameState::CurAnimal, 0, kSpeciesCount);
  mend.checkArea();
  mend.checkNamePart("StartPano", &GameState::StartPano);
  mend.checkNamePart("HitVideoName", &GameState::HitVideoName);
  mend.checkNamePart("EscapeVideoName", &GameState::EscapeVideoName);
  mend.checkNamePart("VideoName", &GameState::VideoName);
  mend.checkNamePart("CurWeaponPic", &GameState::CurWeaponPic);
}

}  // namespace

GameState newGameDefaults() {
  const GameState kept = Game;
  Game = GameState{};
  Game.MediaRoot = kept.MediaRoot;
  Game.XpackMode = kept.XpackMode;
  ReadSaveFile(Game.MediaRoot + QStringLiteral("data\\newgam.csv"), kGameKind);
  GameState defaults = Game;
  Game = kept;
  return defaults;
}

QStringList replaceOutOfRange(const QStringList& read, const GameState& defaults) {
  Mender mend(read, defaults);
  checkEquipment(mend);
  checkGame(mend);
  return mend.replaced();
}
