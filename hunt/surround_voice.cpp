// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen's voice, and its media window's events.
#include "hunt/surround.h"
#include "lodge/speech.h"
#include "platform/media/media_window.h"
#include "shell/game_state.h"

int16_t surround::FillConvArr(const QString& key) {
  return talk::FillConvArr(key);
}

void surround::Saynotext(const QString& key) {
  talk::Saynotext(key);
}

void surround::Say(const QString& key) {
  talk::Say(key);
}

void surround::InitSaylist(const QString& key) {
  talk::InitSaylist(key);
}

void surround::Saylist(int16_t position) {
  talk::Saylist(position);
}

void surround::MCIWnd1_Error(int, const QString&) {
  // A sound that will not play is skipped; the hunt goes on in silence.
  Game.MediaBusy = 0;
}

void surround::MCIWnd1_ExtendedModeChange(int mode) {
  if (mode == platform::kModeStopped) Game.MediaBusy = 0;
}
