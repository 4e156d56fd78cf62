// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/talkform.h"

#include "lodge/speech.h"
#include "platform/media/media_window.h"
#include "platform/picture_box.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace {

constexpr QSize kBoxSize{560, 200};
constexpr QSize kSpeakerSize{120, 150};
constexpr int kHeadBoxClearance = 200;

}  // namespace

Talkform::Talkform()
    : Background(new platform::PictureBox(this)),
      Whopic(new platform::PictureBox(this)),
      Convtext(new QLabel(this)),
      Prevconv(new QPushButton(QStringLiteral("<< Back"), this)),
      Nextconv(new QPushButton(QStringLiteral("More >>"), this)),
      Closeframe(new QPushButton(QStringLiteral("Close"), this)) {
  setWindowTitle(QStringLiteral("Conversation"));
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  setStyleSheet(
      QStringLiteral("Talkform { background: #3b2a1a; border: 2px solid #b08d57; }"
                     "QLabel#Convtext { color: #f4ead2; font-size: 13pt; background: rgba(30, 20, 10, 150);"
                     " padding: 8px; border-radius: 4px; }"));
  Convtext->setObjectName(QStringLiteral("Convtext"));
  Convtext->setWordWrap(true);
  Convtext->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  Background->setScaledContents(true);
  Whopic->setScaledContents(true);
  Nextconv->setEnabled(false);
  Prevconv->setEnabled(false);
  connect(Nextconv, &QPushButton::clicked, this, &Talkform::Nextconv_Click);
  connect(Prevconv, &QPushButton::clicked, this, &Talkform::Prevconv_Click);
  connect(Closeframe, &QPushButton::clicked, this, &Talkform::Closeframe_Click);
  resize(kBoxSize);
}

void Talkform::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  Background->setGeometry(rect());
  Whopic->setGeometry(16, 16, kSpeakerSize.width(), kSpeakerSize.height());
  const int textLeft = 16 + kSpeakerSize.width() + 16;
  Convtext->setGeometry(textLeft, 16, width() - textLeft - 16, height() - 70);
  const int buttons = height() - 44;
  Prevconv->setGeometry(textLeft, buttons, 90, 30);
  Nextconv->setGeometry(textLeft + 100, buttons, 90, 30);
  Closeframe->setGeometry(width() - 106, buttons, 90, 30);
}

// Low in the middle of the hunting view, above its head box, where it hides the least.
void Talkform::placeOverHuntingScreen() {
  const QRect screen = QApplication::primaryScreen() ? QApplication::primaryScreen()->geometry() : QRect();
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  const int screenWidth = Game.ScreenWidth > 0 ? Game.ScreenWidth / twips : screen.width();
  const int screenHeight = Game.ScreenHeight > 0 ? Game.ScreenHeight / twips : screen.height();
  move(screen.left() + (screenWidth - width()) / 2,
       screen.top() + screenHeight - height() - kHeadBoxClearance);
}

void Talkform::Form_Load() {
  dress();
  Soundplay();
}

void Talkform::dress() {
  Background->setPicturePath(Game.MediaRoot + QStringLiteral("art\\") + Game.AreaLetter +
                             QStringLiteral("peopbox.bmp"));
  placeOverHuntingScreen();
  unsetCursor();
}

void Talkform::Soundplay() {
  talk::Soundplay();
}

void Talkform::showLine(const QString& picturePath, const QString& text) {
  Whopic->setPicturePath(picturePath);
  QString shown = text;
  Convtext->setText(shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void Talkform::Nextconv_Click() {
  Game.SayIndex = static_cast<int16_t>(Game.SayIndex + 1);
  if (Game.SayIndex >= Game.ConvCount - 1) Nextconv->setEnabled(false);
  Prevconv->setEnabled(true);
  talk::Saylist(Game.SayIndex);
  Soundplay();
}

void Talkform::Prevconv_Click() {
  Game.SayIndex = static_cast<int16_t>(Game.SayIndex - 1);
  if (Game.SayIndex <= 0) Prevconv->setEnabled(false);
  Nextconv->setEnabled(true);
  talk::Saylist(Game.SayIndex);
  Soundplay();
}

void Talkform::Closeframe_Click() {
  huntMediaWindow().command(QStringLiteral("Stop"));
  close();
}
