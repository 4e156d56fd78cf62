// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/fakes/scripted_screens.h"

#include <QPointer>
#include <QWidget>

#include <stdexcept>

namespace platform {

int ScriptedScreens::ShowModal(QWidget& screen) {
  const QString name = QString::fromLatin1(screen.metaObject()->className());
  shown_ << name;
  auto script = scripts_.find(name);
  if (script == scripts_.end()) script = scripts_.find(name.section(QStringLiteral("::"), -1));
  if (script == scripts_.end())
    throw std::logic_error("ScriptedScreens: no script for screen " + name.toStdString());
  QPointer<QWidget> alive(&screen);  // the script may unload the screen
  const int result = script->second(screen);
  if (alive && alive->isVisible()) alive->close();
  return result;
}

}  // namespace platform
