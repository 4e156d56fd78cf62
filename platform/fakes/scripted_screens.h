// SPDX-License-Identifier: GPL-2.0-or-later
// A screens host that shows nothing: for each screen it runs the callback the test gave
// for that screen's class, which acts on it as the player would and closes it.
#pragma once

#include "platform/screens_host.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>

namespace platform {

class ScriptedScreens final : public ScreensHost {
 public:
  using Script = std::function<int(QWidget&)>;

  // `className` is the screen's class as Qt knows it ("lodge::Catalog" or "Catalog").
  void on(const QString& className, Script script) { scripts_[className] = std::move(script); }
  // Records the screen, runs its script and closes the screen if the script left it open.
  // A screen with no script throws std::logic_error, so no test passes by accident.
  int ShowModal(QWidget& screen) override;

  const QStringList& shown() const { return shown_; }

 private:
  std::map<QString, Script> scripts_;
  QStringList shown_;
};

}  // namespace platform
