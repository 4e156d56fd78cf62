// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen's set-up: its widgets, layout, the hooks other screens reach it by, and
// closing.
#include "hunt/surround.h"

#include "hunt/compass_words.h"
#include "hunt/optics_overlay.h"
#include "platform/datetime.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/media/media_window.h"
#include "platform/panorama/panorama_factory.h"
#include "platform/picture_box.h"
#include "platform/runtime.h"
#include "platform/text_file.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "shell/loadingsrn.h"
#include "shell/screen_instance.h"
#include "shell/shared_procedures.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int kTickMs = 5500;
constexpr int kDeferredMoveMs = 30;

// The shell loads the hunting screen at start-up, and when its timer is switched before it
// exists.
[[maybe_unused]] const bool kLoaderRegistered = [] {
  setHuntScreenLoader([](bool openPlace) {
    const bool loaded = ScreenInstance<surround>::exists();
    surround& hunting = ScreenInstance<surround>::get();
    if (!loaded) hunting.Form_Load();
    if (openPlace) hunting.Surrinit();
  });
  return true;
}();

std::function<void()>& restartHandler() {
  static std::function<void()> handler;
  return handler;
}

// Buttons fill a frame two to a row.
QPushButton* headButton(const QString& caption, QWidget* frame) {
  auto* button = new QPushButton(caption, frame);
  button->setFocusPolicy(Qt::NoFocus);
  button->setMinimumSize(130, 30);
  auto* grid = static_cast<QGridLayout*>(frame->layout());
  const int placed = grid->count();
  grid->addWidget(button, placed / 2, placed % 2);
  return button;
}

QFrame* headFrame(QWidget* parent, const char* name) {
  auto* frame = new QFrame(parent);
  frame->setObjectName(QString::fromLatin1(name));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(4, 4, 4, 4);
  grid->setSpacing(6);
  grid->setAlignment(Qt::AlignTop);
  return frame;
}

}  // namespace

surround::surround()
    : svcontrol1(platform::createPanorama(this)),
      SVControl2(platform::createPanorama(this)),
      MCIWnd1(platform::createMediaWindow(this)),
      Timer1(new QTimer(this)),
      Timer2(new QTimer(this)),
      Sleeppic(new platform::PictureBox(this)),
      opticspic(new OpticsOverlay(this)),
      Headbox(new QFrame(this)) {
  setWindowTitle(QStringLiteral("Hunting"));
  setObjectName(QStringLiteral("surround"));
  MCIWnd1->hide();
  Sleeppic->setKeepShape(true);
  Sleeppic->hide();
  opticspic->hide();
  SVControl2->widget()->hide();
  Timer1->setSingleShot(false);
  buildHeadBox();
  connectEvents();
  registerWithShell();
  Form_Initialize();
}

surround::~surround() {
  setHuntMediaWindow(nullptr);
  setHuntTimerSwitch(nullptr);
  setHuntClockDisplay(nullptr);
  setHuntMediaCloser(nullptr);
}

void surround::setRestartHandler(std::function<void()> restart) {
  restartHandler() = std::move(restart);
}

void surround::buildHeadBox() {
  Headbox->setObjectName(QStringLiteral("Headbox"));
  setStyleSheet(QStringLiteral(
      "surround { background: black; }"
      "QFrame#Headbox { background: qlineargradient(y1:0, y2:1, stop:0 #4a3422, stop:1 #2b1d12);"
      " border-top: 2px solid #b08d57; }"
      "QFrame#Headbox QLabel { color: #f1e6cc; }"
      "QLabel#Timebox, QLabel#Daybox { font-size: 15pt; font-weight: bold; }"
      "QLabel#compass { font-size: 20pt; font-weight: bold; color: #ffd27a; }"
      "QLabel#Poidescript { font-size: 12pt; padding: 6px; }"
      "QLabel#Rangelab { font-size: 13pt; color: #ffd27a; }"
      "QFrame#Headbox QPushButton { background: #6b4b2e; color: #f6ecd6; border: 1px solid #c9a36a;"
      " border-radius: 4px; padding: 3px 10px; font-weight: bold; }"
      "QFrame#Headbox QPushButton:hover { background: #85603b; }"
      "QFrame#Headbox QPushButton:disabled { background: #3d2b1b; color: #8a7a62; border-color: #5d4a33; }"));
  auto* row = new QHBoxLayout(Headbox);
  row->setContentsMargins(10, 6, 10, 6);
  auto* clock = new QVBoxLayout;
  Daybox = new QLabel(Headbox);
  Timebox = new QLabel(Headbox);
  compass = new QLabel(Headbox);
  Daybox->setObjectName(QStringLiteral("Daybox"));
  Timebox->setObjectName(QStringLiteral("Timebox"));
  compass->setObjectName(QStringLiteral("compass"));
  for (QLabel* label : {Daybox, Timebox, compass}) {
    label->setAlignment(Qt::AlignCenter);
    clock->addWidget(label);
  }
  row->addLayout(clock, 0);
  auto* place = new QVBoxLayout;
  Poidescript = new QLabel(Headbox);
  Poidescript->setObjectName(QStringLiteral("Poidescript"));
  Poidescript->setWordWrap(true);
  Poidescript->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Rangelab = new QLabel(Headbox);
  Rangelab->setObjectName(QStringLiteral("Rangelab"));
  Rangelab->hide();
  place->addWidget(Poidescript, 1);
  place->addWidget(Rangelab, 0);
  row->addLayout(place, 1);

  frmBlank = headFrame(Headbox, "frmBlank");
  frmMain = headFrame(Headbox, "frmMain");
  frmLodge = headFrame(Headbox, "frmLodge");
  frmCamp = headFrame(Headbox, "frmCamp");
  Huntbox = headFrame(Headbox, "Huntbox");
  Mainmenu = headButton(QStringLiteral("Main Menu"), frmMain);
  butinv = headButton(QStringLiteral("Inventory"), frmMain);
  btnMdnweb = headButton(QStringLiteral("Visit Marden's"), frmMain);
  btnQuillonweb = headButton(QStringLiteral("Publisher"), frmMain);
  btnRedfern = headButton(QStringLiteral("Redfern"), frmMain);
  bntHuntgd = headButton(QStringLiteral("Hunting Guide"), frmLodge);
  ChangeWep = headButton(QStringLiteral("Change Weapon"), frmCamp);
  Campbut = headButton(QStringLiteral("Return to Camp"), Huntbox);
  Callbutton = headButton(QStringLiteral("Use Call"), Huntbox);
  Scope = headButton(QStringLiteral("Optics Up"), Huntbox);
  Windbut = headButton(QString(), Huntbox);
  for (QFrame* frame : {frmMain, frmLodge, frmCamp, Huntbox}) {
    row->addWidget(frame, 0);
    frame->hide();
  }
  row->addWidget(frmBlank, 0);
  frmBlank->setMinimumWidth(160);
}

void surround::connectEvents() {
  svcontrol1->OnEnterHotspot = [this](const QString& name) { SVControl1_OnEnterHotspot(name); };
  svcontrol1->OnLeaveHotspot = [this](const QString& name) { SVControl1_OnLeaveHotspot(name); };
  svcontrol1->OnLocation = [this](int32_t heading) { SVControl1_OnLocation(heading); };
  svcontrol1->OnSelectHotspot = [this](const QString& name) { SVControl1_OnSelectHotspot(name); };
  SVControl2->OnEnterHotspot = [this](const QString& name) { SVControl2_OnEnterHotspot(name); };
  SVControl2->OnLeaveHotspot = [this](const QString& name) { SVControl2_OnLeaveHotspot(name); };
  SVControl2->OnLocation = [this](int32_t heading) { SVControl2_OnLocation(heading); };
  connect(Timer1, &QTimer::timeout, this, &surround::Timer1_Timer);
  connect(Timer2, &QTimer::timeout, this, &surround::Timer2_Timer);
  connect(MCIWnd1, &platform::MCIWnd::Error, this, &surround::MCIWnd1_Error);
  connect(MCIWnd1, &platform::MCIWnd::ExtendedModeChange, this, &surround::MCIWnd1_ExtendedModeChange);
  const std::pair<QPushButton*, void (surround::*)()> clicks[] = {
      {Mainmenu, &surround::Mainmenu_Click},
      {butinv, &surround::butInv_Click},
      {bntHuntgd, &surround::bntHuntgd_Click},
      {ChangeWep, &surround::ChangeWep_Click},
      {Campbut, &surround::Campbut_Click},
      {Callbutton, &surround::Callbutton_Click},
      {Scope, &surround::Scope_Click},
      {btnMdnweb, &surround::btnMdnweb_Click},
      {btnQuillonweb, &surround::btnQuillonweb_Click},
      {btnRedfern, &surround::btnRedfern_Click}};
  for (const auto& [button, handler] : clicks) connect(button, &QPushButton::clicked, this, handler);
}

// Other screens reach the hunting screen's timer, clock and media window through the shell.
void surround::registerWithShell() {
  setHuntMediaWindow(MCIWnd1);
  setHuntTimerSwitch([this](bool on) { on ? Timer2->start() : Timer2->stop(); });
  setHuntClockDisplay([this] { refreshClock(); });
  setHuntMediaCloser([this] { MCIWnd1->command(QStringLiteral("Close")); });
}

void surround::Form_Initialize() {
  WindStrengths = {QStringLiteral("Light"), QStringLiteral("Breezy"), QStringLiteral("Steady"),
                   QStringLiteral("Gusty"), QStringLiteral("Strong")};
  WindDirections = {QStringLiteral("N"), QStringLiteral("NE"), QStringLiteral("E"), QStringLiteral("SE"),
                    QStringLiteral("S"), QStringLiteral("SW"), QStringLiteral("W"), QStringLiteral("NW")};
  btnMdnweb->setVisible(Game.SponsorOn);
  btnMdnweb->setText(Game.SponsorOn ? QStringLiteral("Visit Marden's") : QString());
  readTagLimits();
}

// Damaged or short tables leave the remaining limits at 0.
void surround::readTagLimits() {
  try {
    rt::ListInput table(platform::files().resolve(Game.MediaRoot + QStringLiteral("data\\taglimt.csv")));
    for (int species = 1; species < kTagCount; ++species) {
      try {
        Game.TagLimit[species] = table.inputInt16();
      } catch (const rt::InputPastEnd&) {
        return;
      } catch (const std::exception&) {
        continue;  // a bad value is skipped; the field is consumed
      }
    }
  } catch (const std::exception&) {
  }
}

void surround::Form_Load() {
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  if (Game.ScreenWidth > 0 && Game.ScreenHeight > 0)
    resize(Game.ScreenWidth / twips, Game.ScreenHeight / twips);
  Timer2->setInterval(kTickMs);
  Timer1->setInterval(kDeferredMoveMs);
  refreshClock();
  Windbut->setText(windCaption(Game.WindDir, Game.WindStrength));
}

void surround::refreshClock() {
  Timebox->setText(rt::formatDate(Game.GameDate, QStringLiteral("h:mm AMPM")));
  Daybox->setText(rt::formatDate(Game.GameDate, QStringLiteral("dddd")));
}

void surround::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  placeWidgets();
}

void surround::placeWidgets() {
  const int headHeight = std::clamp(height() / 6, 130, 190);
  const QRect view(0, 0, width(), height() - headHeight);
  svcontrol1->widget()->setGeometry(view);
  SVControl2->widget()->setGeometry(view);
  opticspic->setGeometry(view);
  Sleeppic->setGeometry(view);
  Headbox->setGeometry(0, view.bottom() + 1, width(), headHeight);
}

void surround::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  // The loading screen stays up until the hunting screen has drawn itself.
  if (ScreenInstance<Loadingsrn>::exists())
    QTimer::singleShot(0, [] { ScreenInstance<Loadingsrn>::unload(); });
}

bool surround::Form_QueryUnload() {
  return platform::MsgBox(QStringLiteral("Do you want to exit the program."), platform::Buttons::YesNo,
                          platform::Icon::None, QStringLiteral("Quit Program")) != platform::Answer::No;
}

void surround::closeEvent(QCloseEvent* event) {
  if (Game.ScreenState != u"QUIT GAME" && !Form_QueryUnload()) {
    event->ignore();
    return;
  }
  Timer2->stop();
  Timer1->stop();
  event->accept();
  // Closing the hunting screen ends the game.
  QCoreApplication::quit();
}

void surround::Setheadbox() {
  struct Frames {
    bool main, lodge, camp, hunt;
  };
  Frames shown{};
  switch (Game.PlaceMode) {
    case 0: shown = {true, true, false, false}; break;
    case 2:
      shown = {true, false, true, false};
      ChangeWep->setVisible(false);
      break;
    case 3: shown = {true, false, false, true}; break;
    case 5:
      shown = {true, false, true, false};
      ChangeWep->setVisible(true);
      break;
    default: return;
  }
  frmBlank->hide();
  frmMain->setVisible(shown.main);
  frmLodge->setVisible(shown.lodge);
  frmCamp->setVisible(shown.camp);
  Huntbox->setVisible(shown.hunt);
}

void surround::Clearheadbox() {
  StopHuntTimer();
  frmBlank->show();
  for (QFrame* frame : {frmMain, frmLodge, Huntbox, frmCamp}) frame->hide();
}

void surround::SetItembuttons() {
  Callbutton->setEnabled(Game.EquipSlots[8] > 0);
  Windbut->setEnabled(Game.EquipSlots[11] > 0);
  Scope->setEnabled(Game.EquipSlots[7] > 0);
}

void surround::CHKRestartGame() {
  if (Game.ScreenState != u"RESTART") return;
  Game.ScreenState.clear();
  Timer2->stop();
  QCoreApplication::processEvents();
  if (restartHandler()) restartHandler()();
}
