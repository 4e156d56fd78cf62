// SPDX-License-Identifier: GPL-2.0-or-later
// The game's entry point: the application object that catches what handlers throw, the
// drive map, the stored settings and the defaults of a new game, then the first screen.
#include "app/error_handler.h"
#include "shell/filer.h"
#include "shell/game_state.h"
#include "shell/help_window.h"
#include "shell/run_settings.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/screen_instance.h"

#include <QDir>
#include <QStandardPaths>

namespace {

// The sample world is generated beside the executable's build; an installed game may
// store another folder in the drive map.
QString bundledWorld() {
  return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../world"));
}

void prepareGame() {
  ensureInstallDefaults(QDir::cleanPath(bundledWorld()),
                        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  mapStoredDrives();
  loadRunSettings();
  Game.HelpFile = Game.MediaRoot + QStringLiteral("varnholt.hlp");
  ReadSaveFile(Game.MediaRoot + QStringLiteral("data\\newgam.csv"), kGameKind);
}

}  // namespace

int main(int argc, char** argv) {
  GameApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Hunting"));
  QApplication::setOrganizationName(QStringLiteral("Hunting"));
  installHelpKey();
  prepareGame();
  // Until the start-up screens arrive, the game opens on its main menu.
  Filer& menu = ScreenInstance<Filer>::get();
  menu.Form_Load();
  menu.showFullScreen();
  menu.exec();
  unloadAllScreens();
  return 0;
}
