// SPDX-License-Identifier: GPL-2.0-or-later
// The robot player's command line: hunts, seed and world; prints the summary and fails when
// an invariant broke.
#include "hunt_robot.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Hunting"));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Plays hunts headless and checks the game's invariants."));
  parser.addHelpOption();
  const QCommandLineOption hunts(QStringLiteral("hunts"), QStringLiteral("Hunts to play."),
                                 QStringLiteral("n"), QStringLiteral("20"));
  const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Seed of the dice."),
                                QStringLiteral("n"), QStringLiteral("1"));
  const QCommandLineOption world(
      QStringLiteral("world"), QStringLiteral("The sample world's folder."), QStringLiteral("folder"),
      QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../world")));
  const QCommandLineOption steps(QStringLiteral("steps"),
                                 QStringLiteral("Steps after which a hunt is given up."), QStringLiteral("n"),
                                 QStringLiteral("6000"));
  const QCommandLineOption trace(QStringLiteral("trace"), QStringLiteral("Print every step."));
  parser.addOptions({hunts, seed, world, steps, trace});
  parser.process(app);

  robot::RobotOptions options;
  options.hunts = parser.value(hunts).toInt();
  options.seed = parser.value(seed).toULongLong();
  options.world = QDir::cleanPath(parser.value(world)).toStdString();
  options.stepsPerHunt = parser.value(steps).toInt();
  options.trace = parser.isSet(trace);
  if (!QDir(QString::fromStdString(options.world.string())).exists(QStringLiteral("data"))) {
    std::fprintf(stderr, "no world at %s\n", options.world.string().c_str());
    return 2;
  }
  robot::HuntRobot robot(options);
  const robot::Tally& tally = robot.run();
  std::fputs(qPrintable(tally.summary()), stdout);
  return tally.invariantBreaks == 0 ? 0 : 1;
}
