// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/aviplay.h"

#include "platform/media/media_window.h"
#include "shell/game_state.h"
#include "shell/shared_procedures.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize kClipSize{320, 240};

}  // namespace

Aviplay::Aviplay()
    : MCIWnd1(platform::createMediaWindow(this)),
      Closebut(new QPushButton(QStringLiteral("Close"), this)),
      Trackinglab(new QLabel(QStringLiteral("Tracking the wounded animal..."), this)),
      Hintlab(new QLabel(QStringLiteral("Press Close to end the film"), this)) {
  setWindowTitle(QStringLiteral("Video"));
  setStyleSheet(QStringLiteral("Aviplay { background: black; } QLabel { color: #e8dcc0; font-size: 14pt; }"));
  for (QLabel* label : {Trackinglab, Hintlab}) label->setAlignment(Qt::AlignCenter);
  connect(Closebut, &QPushButton::clicked, this, &Aviplay::Closebut_Click);
  connect(MCIWnd1, &platform::MCIWnd::ExtendedModeChange, this, &Aviplay::MCIWnd1_ExtendedModeChange);
  connect(MCIWnd1, &platform::MCIWnd::Error, this, &Aviplay::MCIWnd1_Error);
  MCIWnd1->hide();
  resize(800, 600);
}

void Aviplay::placeWidgets() {
  // The clip at the largest whole scale that fits, centred, with the controls below it.
  const int scale = std::max(1, std::min(width() / kClipSize.width(), (height() - 80) / kClipSize.height()));
  const QSize clip = kClipSize * scale;
  const QPoint origin((width() - clip.width()) / 2, (height() - 80 - clip.height()) / 2);
  MCIWnd1->setGeometry(QRect(origin, clip));
  const int below = origin.y() + clip.height() + 12;
  Trackinglab->setGeometry(0, below, width(), 28);
  Hintlab->setGeometry(0, below, width(), 28);
  Closebut->setGeometry((width() - 120) / 2, below + 34, 120, 30);
}

void Aviplay::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  placeWidgets();
}

void Aviplay::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  Form_Activate();
}

void Aviplay::keyPressEvent(QKeyEvent* event) {
  // A key ends the film as the Close button does; Escape must not reject the screen
  // without stopping the clip.
  event->accept();
  Closebut_Click();
}

void Aviplay::Form_Activate() {
  Trackinglab->setVisible(Game.AviTracking == 1);
  Hintlab->setVisible(Game.AviTracking != 1);
  setCursor(Qt::BlankCursor);
  Closebut->setCursor(Qt::ArrowCursor);
  CloseHuntMedia();
  hasPaused_ = 0;
  placeWidgets();
  MCIWnd1->setFileName(Game.MediaRoot + QStringLiteral("art\\") + Game.ScreenState.trimmed() +
                       QStringLiteral(".avi"));
  Game.VideoBusy = -1;
  MCIWnd1->command(QStringLiteral("play "));
  MCIWnd1->command(QStringLiteral("pause wait"));
  MCIWnd1->show();
  MCIWnd1->command(QStringLiteral("resume"));
}

void Aviplay::Closebut_Click() {
  MCIWnd1->command(QStringLiteral("Stop"));
  close();
}

void Aviplay::MCIWnd1_ExtendedModeChange(int mode) {
  if (mode == platform::kModePaused) hasPaused_ = -1;
  // A stop before the first pause comes while the clip opens, not at its end.
  if (mode != platform::kModeStopped || hasPaused_ == 0) return;
  MCIWnd1->hide();
  Game.VideoBusy = 0;
  QApplication::processEvents();
  close();
}

void Aviplay::MCIWnd1_Error(int, const QString&) {
  // A film that cannot play is skipped; the player closes the screen.
}
