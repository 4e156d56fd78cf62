// SPDX-License-Identifier: GPL-2.0-or-later
// Opening another screen over the hunting screen: loaded, shown until it closes, unloaded.
#pragma once

#include "platform/screens_host.h"
#include "shell/screen_instance.h"

template <class Screen>
void showModalScreen() {
  Screen& screen = ScreenInstance<Screen>::get();
  screen.Form_Load();
  platform::screensHost().ShowModal(screen);
  ScreenInstance<Screen>::unload();
}
