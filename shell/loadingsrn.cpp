// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/loadingsrn.h"

#include "platform/picture_box.h"
#include "shell/game_state.h"

#include <QResizeEvent>

Loadingsrn::Loadingsrn() : Picture(new platform::PictureBox(this)) {
  setWindowTitle(QStringLiteral("Loading"));
  Picture->setKeepShape(true);
  setStyleSheet(QStringLiteral("Loadingsrn { background: black; }"));
}

void Loadingsrn::Form_Load() {
  // The stored screen size, in twips.
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  if (Game.ScreenWidth > 0 && Game.ScreenHeight > 0)
    resize(Game.ScreenWidth / twips, Game.ScreenHeight / twips);
  Picture->setPicturePath(Game.MediaRoot + QStringLiteral("art\\load.bmp"));
}

void Loadingsrn::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Picture->setGeometry(rect());
}
