// SPDX-License-Identifier: GPL-2.0-or-later
// The hunt's clock: what actions cost, nightfall and the night's sleep, and the end of the hunt.
#include "hunt/hunt_calendar.h"
#include "hunt/optics_overlay.h"
#include "hunt/surround.h"
#include "hunt/tag_rules.h"
#include "platform/datetime.h"
#include "platform/dialogs.h"
#include "platform/panorama/sv_control.h"
#include "platform/picture_box.h"
#include "shell/game_state.h"
#include "shell/shared_procedures.h"

#include <QTimer>

namespace {

constexpr int kNightTicks = 100;
constexpr int kEndTicks = 50;

}  // namespace

void surround::AddTimeNoChk(int16_t amount, const QString& interval) {
  Game.GameDate = rt::dateAdd(interval, amount, Game.GameDate);
  refreshClock();
}

void surround::AddTime(int16_t amount, const QString& interval) {
  AddTimeNoChk(amount, interval);
  if (!dayHasEnded(Game.GameDate)) return;
  endDay();
}

void surround::endDay() {
  Timer2->stop();
  svcontrol1->SetTracking(false);
  switch (Game.PlaceMode) {
    case 0:
      Say(QStringLiteral("endlodge"));
      nightPause(QStringLiteral("nitel.bmp"));
      break;
    case 2:
      Say(QStringLiteral("endCamp"));
      nightPause(QStringLiteral("nitec.bmp"));
      break;
    case 3:
      // An animal not found by nightfall is lost.
      if (Game.WoundedFlag) {
        Game.WoundedFlag = 0;
        Game.TrackedSpecies = 0;
        Say(QStringLiteral("escape"));
      }
      Say(QStringLiteral("endday"));
      SetToCamp();
      nightPause(QStringLiteral("nitec.bmp"));
      break;
    case 5:
      Say(QStringLiteral("endrange"));
      Settolodge();
      nightPause(QStringLiteral("nitel.bmp"));
      break;
    default: break;
  }
  svcontrol1->SetTracking(true);
  Game.GameDate = nextMorning(Game.GameDate);
  AddTimeNoChk(0, QStringLiteral("n"));
  if (!isLastDay(Game.GameDate)) return;
  const bool success = huntSuccessful(Game.TagsOwned);
  if (Game.PlaceMode == 0)
    Say(QStringLiteral("huntover"));
  else
    Say(success ? QStringLiteral("endhuntf") : QStringLiteral("endhunts"));
  endHunt(success ? QStringLiteral("endgame.bmp") : QStringLiteral("bettluk.bmp"));
}

// A picture over the whole view, in place of the panorama and the optics.
void surround::showFullPicture(const QString& picture) {
  Sleeppic->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + picture);
  Sleeppic->show();
  Sleeppic->raise();
  svcontrol1->widget()->hide();
  opticspic->hide();
  repaint();
}

// The hunter sleeps where he is; the night passes in a few seconds.
void surround::nightPause(const QString& picture) {
  showFullPicture(picture);
  WaitTicks(kNightTicks);
  Sleeppic->hide();
  svcontrol1->widget()->show();
  if (Game.OpticsUp) opticspic->show();
}

// The hunt is over: its picture, a pause, and the way back to the start.
void surround::endHunt(const QString& picture) {
  showFullPicture(picture);
  WaitTicks(kEndTicks);
  platform::MsgBox(QStringLiteral("Press OK to RESTART"), platform::Buttons::Ok, platform::Icon::None,
                   QStringLiteral("RESTART GAME"));
  Game.ScreenState = QStringLiteral("RESTART");
}
