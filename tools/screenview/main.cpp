// SPDX-License-Identifier: GPL-2.0-or-later
// screenview: opens one screen over the sample world, as a new hunt in the chosen world would
// see it, to look at while authoring the world or the screen.
//
//   screenview <Screen> [--world-num 0..3] [--permit] [--size 1024x768] [--grab shot.png]
//              [--media build/world]
#include "tools/screenview/screen_registry.h"

#include "platform/files.h"
#include "shell/data_tables.h"
#include "shell/game_state.h"
#include "shell/names.h"
#include "shell/panorama_names.h"
#include "shell/save_file_layout.h"
#include "shell/save_files.h"
#include "shell/screen_instance.h"
#include "shell/screen_layout.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

std::map<QString, ScreenOpener>& screenRegistry() {
  static std::map<QString, ScreenOpener> screens;
  return screens;
}

namespace {

void startHunt(const QString& media, const QString& saves, int world, bool permit, QSize size) {
  platform::files().mapDrive(u'D', media.toStdString());
  platform::files().mapDrive(u'C', saves.toStdString());
  Game.MediaRoot = QStringLiteral("D:\\");
  Game.Fileloc = QStringLiteral("C:\\");
  Game.XpackMode = permit ? -1 : 0;
  Game.DbaseDir = permit ? QStringLiteral("Xdbase\\") : QStringLiteral("Dbase\\");
  Game.ScreenWidth = size.width() * Game.TwipsPerPixel;
  Game.ScreenHeight = size.height() * Game.TwipsPerPixel;
  SetScreenLayout();
  ReadSaveFile(Game.MediaRoot + QStringLiteral("data\\newgam.csv"), kGameKind);
  Game.WorldNum = static_cast<int16_t>(world);
  Game.AreaCode = WorldName(Game.WorldNum).left(6);
  Game.AreaLetter = Game.AreaCode.left(1);
  Game.StartPano = lodgeLocation();
  LoadNotEquipScores();
}

// The screen where it stands on a dark screen of the chosen size, as a player would see it.
void saveScreenPicture(QWidget& screen, QSize size, const QString& file) {
  QImage canvas(size, QImage::Format_RGB32);
  canvas.fill(QColor(24, 22, 20));
  QPainter painter(&canvas);
  painter.drawPixmap(screen.isWindow() ? screen.pos() : QPoint(), screen.grab());
  painter.end();
  canvas.save(file);
}

int listScreens() {
  std::fputs("Screens:\n", stdout);
  for (const auto& [name, open] : screenRegistry()) std::printf("  %s\n", qPrintable(name));
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QCommandLineParser options;
  options.addHelpOption();
  options.addPositionalArgument(QStringLiteral("screen"), QStringLiteral("the screen's class name"));
  options.addOption(
      {QStringLiteral("world-num"), QStringLiteral("world 0..3"), QStringLiteral("n"), QStringLiteral("0")});
  options.addOption({QStringLiteral("permit"), QStringLiteral("the second group of worlds")});
  options.addOption({QStringLiteral("size"), QStringLiteral("screen size"), QStringLiteral("WxH"),
                     QStringLiteral("1024x768")});
  options.addOption(
      {QStringLiteral("grab"), QStringLiteral("save a picture and quit"), QStringLiteral("png")});
  const QString defaultMedia =
      QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../../world"));
  options.addOption(
      {QStringLiteral("media"), QStringLiteral("world folder"), QStringLiteral("dir"), defaultMedia});
  options.process(app);
  if (options.positionalArguments().size() != 1) return listScreens();
  const auto found = screenRegistry().find(options.positionalArguments().front());
  if (found == screenRegistry().end()) return listScreens();

  const QStringList wh = options.value(QStringLiteral("size")).split(u'x');
  const QSize size(wh.value(0).toInt(), wh.value(1).toInt());
  QTemporaryDir saves;
  startHunt(QDir::cleanPath(options.value(QStringLiteral("media"))), saves.path(),
            options.value(QStringLiteral("world-num")).toInt(), options.isSet(QStringLiteral("permit")),
            size);

  // Screens place and size themselves from the shared screen size, as in the game.
  QWidget* screen = found->second();
  screen->show();
  const QString grab = options.value(QStringLiteral("grab"));
  if (!grab.isEmpty()) {
    // Let pictures, panoramas and first frames arrive before the picture is taken.
    QTimer::singleShot(1500, [screen, grab, size] {
      saveScreenPicture(*screen, size, grab);
      QApplication::quit();
    });
  }
  const int result = app.exec();
  unloadAllScreens();
  return result;
}
