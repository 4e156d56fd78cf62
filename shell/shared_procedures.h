// SPDX-License-Identifier: GPL-2.0-or-later
// Small procedures every screen shares: opening web pages, the busy wait, and switching
// the hunting screen's timer around modal screens.
#pragma once

#include <QString>

#include <functional>

class QWidget;

// Opens `target` with the desktop's program for it and explains a failure in message boxes.
// Returns the shell's result: above 32 is success.
int OpenWebPage(QWidget* owner, const QString& target);

// Waits, without yielding to the event loop, until the time of day has moved on by more
// than `n` millionths of a day (86.4 ms each).
void WaitTicks(int n);

// The hunting screen tells the shell how it is loaded and how its timer is switched; the
// shell library cannot see that screen. Switching the timer loads the screen first when it
// does not exist.
void setHuntTimerSwitch(std::function<void(bool on)> onOff);
void setHuntScreenLoader(std::function<void(bool openPlace)> load);
// Loads the hunting screen when it does not exist; with `openPlace` it (re)opens the current
// place as well.
void LoadHuntScreen(bool openPlace);
void StartHuntTimer();
void StopHuntTimer();

// The hunting screen's own media window is closed before a film plays, so that only one
// clip plays at a time.
void setHuntMediaCloser(std::function<void()> close);
void CloseHuntMedia();

// The hunting screen shows the game clock; the main menu refreshes it after a load.
void setHuntClockDisplay(std::function<void()> refresh);
void RefreshHuntClock();
