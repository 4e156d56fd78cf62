// SPDX-License-Identifier: GPL-2.0-or-later
// The robot player's hunts: from the start screen to the end of the hunt, one step at a time.
#include "hunt_robot.h"

#include "hunt/surround.h"
#include "platform/files.h"
#include "platform/panorama/panorama_manifest.h"
#include "platform/picture_box.h"
#include "platform/settings.h"
#include "shell/game_state.h"
#include "shell/gamestart.h"
#include "shell/postcard.h"
#include "shell/screen_instance.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextStream>
#include <QTimer>

#include <cstdio>
#include <stdexcept>

namespace robot {

namespace {

constexpr int kHeadingsRound = 1296000;  // 360 degrees in 1/3600 degree

// The offscreen platform says so each time a conversation box comes to the front.
QtMessageHandler previousHandler = nullptr;

void dropRaiseNotes(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(u"does not support raise()")) return;
  if (previousHandler) previousHandler(type, context, message);
}

void say(const QString& text) {
  std::fputs(qPrintable(text + u'\n'), stdout);
}

platform::FakeSVControl& viewOf(platform::SVControl& control) {
  return static_cast<platform::FakeSVControl&>(control);
}

}  // namespace

bool TimerGate::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Timer) return true;
  return QObject::eventFilter(watched, event);
}

HuntRobot::HuntRobot(RobotOptions options)
    : options_(std::move(options)),
      choices_(options_.seed * 2 + 1),
      random_(options_.seed),
      clock_(rt::dateSerial(1997, 12, 22) + 0.25, 1.0),
      playback_(0),
      play_{choices_, tally_, *playback_, MenuErrand::Browse, {}, false},
      dialogs_(choices_, tally_),
      screens_(play_) {
  platform::files().mapDrive(u'D', options_.world);
  std::filesystem::create_directories(std::filesystem::path(saveFolder_.path().toStdString()) / "saves");
  platform::files().mapDrive(u'C', saveFolder_.path().toStdString());
  settings_->SaveSetting(platform::kSettingsSection, QStringLiteral("Fileloc"), QStringLiteral("C:\\saves"));
  settings_->SaveSetting(platform::kSettingsSection, QStringLiteral("CDloc"), QStringLiteral("D:\\"));
  settings_->SaveSetting(platform::kSettingsSection, QStringLiteral("VIDON"), QStringLiteral("1"));
  QCoreApplication::instance()->installEventFilter(&gate_);
  previousHandler = qInstallMessageHandler(dropRaiseNotes);
  surround::setRestartHandler([this] { huntOver_ = true; });
}

HuntRobot::~HuntRobot() {
  unloadAllScreens();
  surround::setRestartHandler({});
  QCoreApplication::instance()->removeEventFilter(&gate_);
  qInstallMessageHandler(previousHandler);
  Game = GameState{};
}

const Tally& HuntRobot::run() {
  for (int hunt = 0; hunt < options_.hunts; ++hunt) {
    ++tally_.hunts;
    huntStep_ = 0;
    try {
      if (startHunt()) playHunt();
    } catch (const std::exception& error) {
      tally_.breakInvariant(QStringLiteral("hunt %1 step %2 after %3: %4")
                                .arg(tally_.hunts)
                                .arg(huntStep_)
                                .arg(action_, QString::fromLocal8Bit(error.what())));
      endHunt(QStringLiteral("thrown"));
    }
    unloadAllScreens();
  }
  return tally_;
}

// The start screen with the group question, then the postcard.
bool HuntRobot::startHunt() {
  Game = GameState{};
  invariants_.forgetClock();
  huntOver_ = false;
  restartAsked_ = false;
  dialogs_->setRestartWanted(false);
  dialogs_->setExpansionPack(choices_.chance(0.35));
  action_ = QStringLiteral("start screen");
  Gamestart& start = ScreenInstance<Gamestart>::get();
  start.Form_Load();
  const bool goOn = start.Form_Activate();
  ScreenInstance<Gamestart>::unload();
  if (!goOn) {
    tally_.breakInvariant(QStringLiteral("hunt %1: the start screen ended the program").arg(tally_.hunts));
    return false;
  }
  readCatalog();
  const bool accepted = setUpPostcard();
  ScreenInstance<Postcard>::unload();
  if (!accepted) {
    tally_.breakInvariant(QStringLiteral("hunt %1: the postcard did not start a hunt").arg(tally_.hunts));
    return false;
  }
  checkAfterStep(action_);
  return true;
}

// The catalogue of the group of worlds now played, for the item checks.
void HuntRobot::readCatalog() {
  invariants_.setCatalog(
      readCatalogSlots(options_.world / Game.DbaseDir.chopped(1).toStdString() / "catalog.isd"));
}

// A new hunt in a random world at a random skill, now and then a quick one, or a saved game.
bool HuntRobot::setUpPostcard() {
  Postcard& card = ScreenInstance<Postcard>::get();
  if (!card.loadgamebut->isHidden() && choices_.chance(0.2)) {
    action_ = QStringLiteral("postcard: load a saved game");
    play_.errand = MenuErrand::Load;
    card.Loadgamebut_Click();
    if (card.result() == QDialog::Accepted) return true;
  }
  action_ = QStringLiteral("postcard: new hunt");
  card.Nextbox_Click();
  card.Selectworld_Click(choices_.below(int(card.Selectworld.size())));
  card.Diffbutton_Click(choices_.below(int(card.Diffbutton.size())));
  if (choices_.chance(0.3)) card.Namebox->setText(QStringLiteral("Robot"));
  card.qhunt->setChecked(choices_.chance(0.3));
  card.Image2_Click();
  return card.result() == QDialog::Accepted;
}

void HuntRobot::playHunt() {
  surround& hunting = ScreenInstance<surround>::get();
  hunting.Form_Load();
  hunting.Surrinit();
  checkAfterStep(QStringLiteral("arrival"));
  while (!huntOver_ && huntStep_ < options_.stepsPerHunt) {
    ++huntStep_;
    ++tally_.steps;
    step(hunting);
    checkAfterStep(action_);
  }
  if (!huntOver_) {
    endHunt(QStringLiteral("step limit"));
    return;
  }
  if (restartAsked_) {
    endHunt(QStringLiteral("restart"));
    return;
  }
  const QString picture = hunting.Sleeppic->picturePath().toLower();
  if (picture.endsWith(u"jail.bmp"))
    endHunt(QStringLiteral("jail"));
  else if (picture.endsWith(u"bettluk.bmp"))
    endHunt(QStringLiteral("week over"));
  else if (picture.endsWith(u"endgame.bmp"))
    endHunt(QStringLiteral("tags filled"));
  else
    endHunt(QStringLiteral("other"));
}

void HuntRobot::endHunt(const QString& how) {
  ++tally_.huntEnds[how];
  if (options_.trace) say(QStringLiteral("hunt %1 ends: %2").arg(tally_.hunts).arg(how));
}

void HuntRobot::step(surround& hunting) {
  // A move the aftermath left pending goes first, as its 30 ms timer would fire at once.
  if (hunting.Timer1->isActive()) {
    action_ = QStringLiteral("deferred move");
    hunting.Timer1_Timer();
    return;
  }
  if (Game.PlaceMode == 3)
    fieldStep(hunting);
  else
    placeStep(hunting);
}

// In the field mostly time passes; now and then the hunter looks about, walks or uses gear.
void HuntRobot::fieldStep(surround& hunting) {
  const int roll = choices_.below(100);
  // A hunter on a wounded animal's trail walks the trail points looking for it.
  if (Game.TrackedSpecies > 0 && roll < 40) {
    useHotspot(hunting, false, u'~');
  } else if (roll < 70 && hunting.Timer2->isActive()) {
    action_ = QStringLiteral("tick");
    ++tally_.ticks;
    hunting.Timer2_Timer();
  } else if (roll < 85) {
    useHotspot(hunting, false);
  } else if (roll < 92) {
    useHotspot(hunting, true);
  } else if (!pressButton(hunting)) {
    useHotspot(hunting, false);
  }
}

// At the lodge, the camp, the map and the range the hunter mostly clicks his way about.
void HuntRobot::placeStep(surround& hunting) {
  const int roll = choices_.below(100);
  if (roll < 50) {
    useHotspot(hunting, true);
  } else if (roll < 65) {
    useHotspot(hunting, false);
  } else if (roll < 75 && hunting.Timer2->isActive()) {
    action_ = QStringLiteral("tick");
    ++tally_.ticks;
    hunting.Timer2_Timer();
  } else if (roll < 85) {
    action_ = QStringLiteral("turn");
    viewOf(*hunting.svcontrol1).turnTo(choices_.below(kHeadingsRound));
  } else if (!pressButton(hunting)) {
    useHotspot(hunting, true);
  }
}

// One of the head box's buttons that a player could press now; false when none is.
bool HuntRobot::pressButton(surround& hunting) {
  const std::vector<std::pair<QPushButton*, void (surround::*)()>> buttons = {
      {hunting.Campbut, &surround::Campbut_Click},
      {hunting.Callbutton, &surround::Callbutton_Click},
      {hunting.Scope, &surround::Scope_Click},
      {hunting.butinv, &surround::butInv_Click},
      {hunting.ChangeWep, &surround::ChangeWep_Click},
      {hunting.bntHuntgd, &surround::bntHuntgd_Click},
      {hunting.Mainmenu, nullptr},
      {hunting.btnMdnweb, &surround::btnMdnweb_Click},
      {hunting.btnQuillonweb, &surround::btnQuillonweb_Click},
      {hunting.btnRedfern, &surround::btnRedfern_Click},
  };
  // The partners' pages are a rare click.
  const bool webToo = choices_.chance(0.05);
  const QList<QPushButton*> web = {hunting.btnMdnweb, hunting.btnQuillonweb, hunting.btnRedfern};
  std::vector<std::pair<QPushButton*, void (surround::*)()>> usable;
  for (const auto& button : buttons) {
    const bool open = button.first->isVisibleTo(&hunting) && button.first->isEnabled();
    if (open && (webToo || !web.contains(button.first))) usable.push_back(button);
  }
  if (usable.empty()) return false;
  const auto& [button, handler] = usable[choices_.below(int(usable.size()))];
  action_ = QStringLiteral("button ") + button->objectName() + u' ' + button->text();
  if (!handler)
    openMenu(hunting);
  else
    (hunting.*handler)();
  return true;
}

void HuntRobot::openMenu(surround& hunting) {
  const int roll = choices_.below(100);
  play_.errand = roll < 35   ? MenuErrand::Save
                 : roll < 65 ? MenuErrand::Load
                 : roll < 67 ? MenuErrand::Restart
                             : MenuErrand::Browse;
  restartAsked_ = play_.errand == MenuErrand::Restart;
  dialogs_->setRestartWanted(restartAsked_);
  action_ = QStringLiteral("main menu");
  hunting.Mainmenu_Click();
  if (play_.loadedGame) {
    play_.loadedGame = false;
    invariants_.forgetClock();
    readCatalog();
  }
}

// Points at a hotspot of the view in front, and clicks it when asked; the pointer then moves off.
void HuntRobot::useHotspot(surround& hunting, bool click, QChar kind) {
  const bool optics = Game.OpticsUp != 0;
  auto& view = viewOf(optics ? *hunting.SVControl2 : *hunting.svcontrol1);
  QStringList names = hotspotsOf(view.loaded());
  if (!kind.isNull()) {
    QStringList ofKind;
    for (const QString& name : names)
      if (name.startsWith(kind)) ofKind << name;
    if (!ofKind.isEmpty()) names = ofKind;
  }
  if (names.isEmpty()) {
    action_ = QStringLiteral("nothing to point at in ") + view.loaded();
    return;
  }
  const QString name = names[choices_.below(int(names.size()))];
  action_ = (click ? QStringLiteral("click ") : QStringLiteral("point at ")) + name + QStringLiteral(" in ") +
            view.loaded();
  view.pointAt(name);
  if (click && !huntOver_) view.click();
  if (!huntOver_) view.pointAt({});
}

QStringList HuntRobot::hotspotsOf(const QString& gamePath) {
  const auto known = hotspots_.find(gamePath);
  if (known != hotspots_.end()) return known->second;
  QStringList names;
  const auto manifest = platform::readManifest(platform::files().resolve(gamePath));
  if (const auto* read = std::get_if<platform::PanoramaManifest>(&manifest)) {
    for (const auto& hotspot : read->hotspots) names << hotspot.name;
  } else if (!gamePath.isEmpty()) {
    tally_.breakInvariant(QStringLiteral("panorama %1 unreadable: %2")
                              .arg(gamePath, std::get<platform::ManifestError>(manifest).message));
  }
  hotspots_[gamePath] = names;
  return names;
}

void HuntRobot::checkAfterStep(const QString& action) {
  if (options_.trace) say(QStringLiteral("%1.%2 %3").arg(tally_.hunts).arg(huntStep_).arg(action));
  for (int species = 1; species < kTagCount; ++species) ++tally_.tagCodesSeen[Game.TagsOwned[species]];
  QStringList notes = invariants_.check(Game);
  if (screens_->depth() != 0) notes << QStringLiteral("a modal screen is still running");
  for (const QString& note : notes)
    tally_.breakInvariant(QStringLiteral("seed %1 hunt %2 step %3 after %4: %5")
                              .arg(options_.seed)
                              .arg(tally_.hunts)
                              .arg(huntStep_)
                              .arg(action, note));
}

}  // namespace robot
