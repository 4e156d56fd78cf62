// SPDX-License-Identifier: GPL-2.0-or-later
// The game's entry point: the application object that catches what handlers throw, the
// drive map, the stored settings and the defaults of a new game, then the first screen.
#include "app/error_handler.h"
#include "shell/filer.h"
#include "shell/game_state.h"
#include "shell/gamestart.h"
#include "shell/help_window.h"
#include "shell/postcard.h"
#include "shell/run_settings.h"
#include "shell/screen_instance.h"

#include <QDir>
#include <QStandardPaths>

namespace {

// The sample world is generated beside the executable's build; an installed game may
// store another folder in the drive map.
QString bundledWorld() {
  return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../world"));
}

bool startUp() {
  ensureInstallDefaults(QDir::cleanPath(bundledWorld()),
                        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  mapStoredDrives();
  Gamestart& start = ScreenInstance<Gamestart>::get();
  start.Form_Load();
  start.showFullScreen();
  const bool goOn = start.Form_Activate();
  ScreenInstance<Gamestart>::unload();
  return goOn;
}

// Until the hunting screen arrives, a hunt set up on the postcard continues on the main
// menu, which can save it, start again or quit.
void runHunts() {
  for (;;) {
    Postcard& card = ScreenInstance<Postcard>::get();
    card.showFullScreen();
    if (card.exec() != QDialog::Accepted) return;
    ScreenInstance<Postcard>::unload();
    Game.ScreenState.clear();
    Filer& menu = ScreenInstance<Filer>::get();
    menu.Form_Load();
    menu.showFullScreen();
    menu.exec();
    ScreenInstance<Filer>::unload();
    if (Game.ScreenState != u"RESTART") return;
    ScreenInstance<Postcard>::get().Form_Load();
  }
}

}  // namespace

int main(int argc, char** argv) {
  GameApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Hunting"));
  QApplication::setOrganizationName(QStringLiteral("Hunting"));
  installHelpKey();
  if (startUp()) runHunts();
  unloadAllScreens();
  return 0;
}
