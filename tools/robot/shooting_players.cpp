// SPDX-License-Identifier: GPL-2.0-or-later
// The robot's play on the shooting scenes: the video shot, fired at random or aimed at a hit
// zone of the picture shown; the trophy page; the record book; the target range.
#include "platform/fakes/media_manual_clock.h"
#include "platform/mixer/active_rdx.h"
#include "screen_players.h"
#include "shell/game_state.h"
#include "shooting/hit_zone_file.h"
#include "shooting/record_book.h"
#include "shooting/shotdata.h"
#include "shooting/trange.h"
#include "shooting/videoshot.h"

#include <QPushButton>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <vector>

namespace robot {

namespace {

constexpr int kFrameMs = 40;
constexpr int kLongestSceneFrames = 3000;  // two minutes of clip; no scene runs so long
constexpr QSize kClipSize(320, 240);

QPoint randomClipPoint(Dice& choices) {
  return {choices.below(kClipSize.width()), choices.below(kClipSize.height())};
}

// The middle of a zone of the record that serves `clipMs`, or none when the file has none.
std::optional<QPoint> aimPoint(int clipMs, Dice& choices) {
  HitZoneRecord record{};
  try {
    readHitZoneRecord(Game.MediaRoot + QStringLiteral("Vmain\\") + Game.VideoName + QStringLiteral(".dat"),
                      hitZoneRecordNumber(clipMs), record);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
  std::vector<QPoint> centres;
  for (const HitZone& zone : record)
    if (zone.code > 0) centres.emplace_back((zone.left + zone.right) / 2, (zone.top + zone.bottom) / 2);
  if (centres.empty()) return std::nullopt;
  return centres[choices.below(int(centres.size()))];
}

// Mouse events carry twips, as the mixer raises them.
void fireAt(Videoshot& shot, QPoint clip) {
  const QPoint screen = shot.displayOrigin() + clip * shot.displayScale();
  const double twips = std::max<int>(1, Game.TwipsPerPixel);
  shot.ActiveRDX1_MouseMove(0, 0, screen.x() * twips, screen.y() * twips);
  shot.ActiveRDX1->frame();
  shot.ActiveRDX1_MouseDown(1, 0, screen.x() * twips, screen.y() * twips);
}

}  // namespace

void playVideoshot(QWidget& screen, PlayContext& play) {
  auto& shot = static_cast<Videoshot&>(screen);
  bool over = false;
  QObject::connect(&shot, &QDialog::finished, &shot, [&over] { over = true; });
  if (shot.state() == Videoshot::kNotStarted) shot.vstart();
  ++play.tally.encounters;
  // The quarry is mostly shot at; another animal now and then, to meet the offences.
  const bool quarry = Game.CurAnimal == Game.TagSpecies;
  const bool shoots = play.choices.chance(quarry ? 0.9 : 0.12);
  const int shotFrame = 1 + play.choices.below(60);
  const bool aims = play.choices.chance(quarry ? 0.85 : 0.5);
  int clipMs = 0;
  for (int frame = 0; frame < kLongestSceneFrames && !over; ++frame) {
    play.playback.advance(kFrameMs);
    clipMs += kFrameMs;
    shot.ActiveRDX1->frame();
    if (over || !shoots || frame != shotFrame || shot.shotFired()) continue;
    const auto aimed = aims ? aimPoint(clipMs, play.choices) : std::nullopt;
    fireAt(shot, aimed.value_or(randomClipPoint(play.choices)));
  }
  if (!over) play.tally.breakInvariant(QStringLiteral("video shot of %1 never ended").arg(Game.VideoName));
  const int outcome = Game.ShotOutcome;
  if (outcome >= 0 && outcome < int(play.tally.shotOutcomes.size())) ++play.tally.shotOutcomes[outcome];
}

void playShotdata(QWidget& screen, PlayContext& play) {
  ++play.tally.trophies;
  auto& page = static_cast<Shotdata&>(screen);
  if (play.choices.chance(0.1)) page.printbut_Click();
  page.Closebox_Click();
}

void playRecordBook(QWidget& screen, PlayContext& play) {
  auto& book = static_cast<RecordBook&>(screen);
  const int pages = play.choices.below(6);
  for (int i = 0; i < pages; ++i) {
    if (play.choices.chance(0.6))
      book.Catnext_Click();
    else
      book.catback_Click();
  }
  book.Closebox_Click();
}

void playTrange(QWidget& screen, PlayContext& play) {
  auto& range = static_cast<Trange&>(screen);
  const int actions = 1 + play.choices.below(12);
  const double twips = std::max<int>(1, Game.TwipsPerPixel);
  for (int i = 0; i < actions; ++i) {
    switch (play.choices.below(7)) {
      case 0: range.Dup_Click(); break;
      case 1: range.Ddown_Click(); break;
      case 2: range.Dleft_Click(); break;
      case 3: range.Dright_Click(); break;
      case 4:
        if (!range.Reloadbut->isHidden()) range.Reloadbut_Click();
        break;
      default: {
        // Mostly at the target, sometimes anywhere on the screen.
        const TargetRect& target = range.target();
        const bool atTarget = play.choices.chance(0.7);
        const int x = atTarget ? target.left + play.choices.below(std::max(1, target.right - target.left))
                               : play.choices.below(std::max(1, range.width()));
        const int y = atTarget ? target.top + play.choices.below(std::max(1, target.bottom - target.top))
                               : play.choices.below(std::max(1, range.height()));
        range.ActiveRDX1_MouseMove(0, 0, x * twips, y * twips);
        range.ActiveRDX1_MouseDown(1, 0, x * twips, y * twips);
        break;
      }
    }
  }
  range.ebutton_Click();
}

}  // namespace robot
