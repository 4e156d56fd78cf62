// SPDX-License-Identifier: GPL-2.0-or-later
// The game's entry point: the application object that catches what handlers throw, the
// drive map, the stored settings and the defaults of a new game, then the first screen.
#include "app/command_line.h"
#include "app/error_handler.h"
#include "app/world_folder.h"
#include "hunt/surround.h"
#include "shell/game_state.h"
#include "shell/gamestart.h"
#include "shell/help_window.h"
#include "shell/loadingsrn.h"
#include "shell/postcard.h"
#include "shell/run_settings.h"
#include "shell/screen_instance.h"

#include <QStandardPaths>
#include <QTimer>

namespace {

bool startUp() {
  const QString world = findWorld();
  ensureInstallDefaults(world, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  mapMediaDriveTo(world);
  mapStoredDrives();
  Gamestart& start = ScreenInstance<Gamestart>::get();
  start.Form_Load();
  showGameScreen(start);
  const bool goOn = start.Form_Activate();
  ScreenInstance<Gamestart>::unload();
  return goOn;
}

// The new-hunt screen sets up a hunt, or loads one; false when the player leaves instead.
bool setUpHunt() {
  Postcard& card = ScreenInstance<Postcard>::get();
  showGameScreen(card);
  const bool accepted = card.exec() == QDialog::Accepted;
  ScreenInstance<Postcard>::unload();
  return accepted;
}

// The hunt runs on the hunting screen from the place the new-hunt screen chose; the loading
// screen covers the wait and goes when the hunting screen first paints.
void startHunting() {
  if (!setUpHunt()) {
    QCoreApplication::quit();
    return;
  }
  Loadingsrn& loading = ScreenInstance<Loadingsrn>::get();
  loading.Form_Load();
  loading.showFullScreen();
  QCoreApplication::processEvents();
  surround& hunting = ScreenInstance<surround>::get();
  hunting.Surrinit();
  showGameScreen(hunting);
}

// Starting again goes back through the start screen, as on the first start.
void restart() {
  ScreenInstance<surround>::get().hide();
  if (!startUp()) {
    QCoreApplication::quit();
    return;
  }
  startHunting();
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationVersion(QStringLiteral(HUNT_VERSION));
  if (const std::optional<int> answered = answerHelpOrVersion(argc, argv)) return *answered;
  GameApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Hunting"));
  QApplication::setOrganizationName(QStringLiteral("Hunting"));
  CommandLine options;
  if (const std::optional<int> refused = readRunOptions(app.arguments(), options)) return *refused;
  applyCommandLine(options);
  installHelpKey();
  // Screens come and go between the start screen, the postcard and the hunt; the game ends
  // only when the hunting screen closes or the player quits.
  QApplication::setQuitOnLastWindowClosed(false);
  // Asked for at the end of a handler; the start screen comes up once that handler is done.
  surround::setRestartHandler([] { QTimer::singleShot(0, restart); });
  int result = 0;
  if (startUp()) {
    QTimer::singleShot(0, startHunting);
    result = QApplication::exec();
  }
  unloadAllScreens();
  return result;
}
