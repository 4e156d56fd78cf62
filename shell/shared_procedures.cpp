// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/shared_procedures.h"

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/runtime.h"
#include "platform/shell_open.h"

namespace {

std::function<void(bool)>& huntTimerSwitch() {
  static std::function<void(bool)> onOff;
  return onOff;
}

std::function<void(bool)>& huntScreenLoader() {
  static std::function<void(bool)> load;
  return load;
}

// The hunting screen registers its timer switch as it is created.
void switchHuntTimer(bool on) {
  if (!huntTimerSwitch()) LoadHuntScreen(false);
  if (huntTimerSwitch()) huntTimerSwitch()(on);
}

std::function<void()>& huntMediaCloser() {
  static std::function<void()> close;
  return close;
}

std::function<void()>& huntClockDisplay() {
  static std::function<void()> refresh;
  return refresh;
}

void errorBox(const QString& text, platform::Icon icon) {
  platform::MsgBox(text, platform::Buttons::Ok, icon, QStringLiteral("Error Message"));
}

long long dayMillionths() {
  const double now = platform::clock().Now();
  return static_cast<long long>(rt::Int((now - rt::Int(now)) * 1000000));
}

}  // namespace

int OpenWebPage(QWidget* /*owner*/, const QString& target) {
  const int result = platform::shellOpener().ShellExecute(target);
  // Tested one after the other, so that several boxes can follow each other.
  if (result < 33)
    errorBox(QStringLiteral("Internet browser not found, re-install browser and try again."),
             platform::Icon::Information);
  if (result == 31)
    errorBox(
        QStringLiteral("No file association exists.  Check file links in My Computer>Options>File types"),
        platform::Icon::Information);
  if (result == 0)
    errorBox(QStringLiteral("Can't load Browser. Out of system memory."), platform::Icon::Information);
  if (result < 33)
    errorBox(QStringLiteral("Information on contacting this company can be found in the help file"),
             platform::Icon::None);
  return result;
}

void WaitTicks(int n) {
  const long long start = dayMillionths();
  long long reading = start;
  // A reading below the start means midnight has passed: the wait is over rather than a day long.
  while (reading <= start + n && reading >= start) reading = dayMillionths();
}

void setHuntTimerSwitch(std::function<void(bool)> onOff) {
  huntTimerSwitch() = std::move(onOff);
}

void setHuntScreenLoader(std::function<void(bool)> load) {
  huntScreenLoader() = std::move(load);
}

void LoadHuntScreen(bool openPlace) {
  if (huntScreenLoader()) huntScreenLoader()(openPlace);
}

void StartHuntTimer() {
  switchHuntTimer(true);
}

void StopHuntTimer() {
  switchHuntTimer(false);
}

void setHuntClockDisplay(std::function<void()> refresh) {
  huntClockDisplay() = std::move(refresh);
}

void RefreshHuntClock() {
  if (huntClockDisplay()) huntClockDisplay()();
}

void setHuntMediaCloser(std::function<void()> close) {
  huntMediaCloser() = std::move(close);
}

void CloseHuntMedia() {
  if (huntMediaCloser()) huntMediaCloser()();
}
