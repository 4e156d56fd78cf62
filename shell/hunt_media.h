// SPDX-License-Identifier: GPL-2.0-or-later
// The hunting screen's media window, which every lodge and range screen plays its sounds
// through, so that one sound cuts off the last. Screens outside the hunting screen's library
// reach it here.
#pragma once

namespace platform {
class MCIWnd;
}

// The hunting screen's window once it has registered it; before that (a screen opened on its
// own, as in tests) a hidden window of the media service, made on first use.
platform::MCIWnd& huntMediaWindow();
// The hunting screen registers its window when it loads and clears it (nullptr) when unloaded.
void setHuntMediaWindow(platform::MCIWnd* window);
