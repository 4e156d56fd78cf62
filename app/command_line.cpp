// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/command_line.h"

#include "app/run_overrides.h"
#include "platform/settings.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QWidget>

#include <cstdio>

namespace {

// The game lays its screens out in twips at fifteen to the pixel.
constexpr int kTwipsPerPixel = 15;
constexpr QSize kSmallestScreen(640, 480);
constexpr QSize kLargestScreen(7680, 4320);

bool playInWindow = false;

const QCommandLineOption kHelp(QStringList{QStringLiteral("h"), QStringLiteral("help")},
                               QStringLiteral("Show this help and leave."));
const QCommandLineOption kVersion(QStringList{QStringLiteral("v"), QStringLiteral("version")},
                                  QStringLiteral("Show the game's version and leave."));
const QCommandLineOption kMedia(QStringList{QStringLiteral("m"), QStringLiteral("media")},
                                QStringLiteral("Play with the media (a world) in <folder> for this run."),
                                QStringLiteral("folder"));
const QCommandLineOption kWindow(QStringList{QStringLiteral("w"), QStringLiteral("window")},
                                 QStringLiteral("Play in a window instead of full screen."));
const QCommandLineOption kSize(
    QStringList{QStringLiteral("s"), QStringLiteral("size")},
    QStringLiteral("Lay the screens out for <width>x<height> pixels, e.g. 1280x720."),
    QStringLiteral("size"));

void describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("A hunting game: outfit your hunter at the lodge, then hunt a week of late December\n"
                     "in five worlds of 360-degree panoramas."));
  parser.addOptions({kHelp, kVersion, kMedia, kWindow, kSize});
}

std::optional<QSize> screenSize(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
  const QRegularExpressionMatch m = form.match(text);
  if (!m.hasMatch()) return std::nullopt;
  const QSize size(m.captured(1).toInt(), m.captured(2).toInt());
  if (size.width() < kSmallestScreen.width() || size.height() < kSmallestScreen.height()) return std::nullopt;
  if (size.width() > kLargestScreen.width() || size.height() > kLargestScreen.height()) return std::nullopt;
  return size;
}

// Qt names the program by its whole path, or not at all before the application exists.
QString helpText(const QCommandLineParser& parser, const QString& program) {
  static const QRegularExpression usage(QStringLiteral("^Usage: \\S+"));
  return parser.helpText().replace(usage, QStringLiteral("Usage: ") + program);
}

CommandLineReading mistake(const QString& program, const QString& what) {
  return {std::nullopt, 2,
          QStringLiteral("%1: %2\nTry '%1 --help' for more information.\n").arg(program, what)};
}

}  // namespace

CommandLineReading readCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  describe(parser);
  const QString program = QFileInfo(arguments.value(0, QStringLiteral("hunt"))).fileName();
  const bool understood = parser.parse(arguments);
  if (parser.isSet(kHelp)) return {std::nullopt, 0, helpText(parser, program)};
  if (parser.isSet(kVersion))
    return {std::nullopt, 0, program + u' ' + QCoreApplication::applicationVersion() + u'\n'};
  if (!understood) return mistake(program, parser.errorText());
  if (!parser.positionalArguments().isEmpty())
    return mistake(program,
                   QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().first()));
  CommandLine options;
  options.windowed = parser.isSet(kWindow);
  if (parser.isSet(kMedia)) {
    const QFileInfo folder(parser.value(kMedia));
    if (!folder.isDir())
      return mistake(program, QStringLiteral("no media folder '%1'").arg(parser.value(kMedia)));
    options.media = folder.absoluteFilePath();
  }
  if (parser.isSet(kSize)) {
    const std::optional<QSize> size = screenSize(parser.value(kSize));
    if (!size)
      return mistake(program,
                     QStringLiteral("the size '%1' is not <width>x<height> between 640x480 and 7680x4320")
                         .arg(parser.value(kSize)));
    options.size = *size;
  }
  return {options, 0, {}};
}

std::optional<int> answerHelpOrVersion(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const CommandLineReading reading = readCommandLine(arguments);
  if (reading.run || reading.exitCode != 0) return std::nullopt;
  std::fputs(qPrintable(reading.text), stdout);
  return 0;
}

std::optional<int> readRunOptions(const QStringList& arguments, CommandLine& options) {
  const CommandLineReading reading = readCommandLine(arguments);
  std::fputs(qPrintable(reading.text), reading.exitCode == 0 ? stdout : stderr);
  if (!reading.run) return reading.exitCode;
  options = *reading.run;
  return std::nullopt;
}

void applyCommandLine(const CommandLine& options) {
  playInWindow = options.windowed;
  platform::settings();  // the stored settings exist before this run's are laid over them
  auto overrides =
      std::make_unique<RunOverrides>(platform::Service<platform::SettingsStore>::replace(nullptr));
  if (!options.media.isEmpty()) {
    // The media drive is the one the stored media root names, D: unless the player moved it.
    const QString root =
        overrides->GetSetting(platform::kSettingsSection, QStringLiteral("CDloc"), QStringLiteral("d:\\"));
    overrides->set(platform::kDriveSection, root.left(1).toUpper(), options.media);
  }
  if (options.size.isValid()) {
    overrides->set(platform::kSettingsSection, QStringLiteral("SW"),
                   QString::number(options.size.width() * kTwipsPerPixel));
    overrides->set(platform::kSettingsSection, QStringLiteral("SH"),
                   QString::number(options.size.height() * kTwipsPerPixel));
  }
  platform::Service<platform::SettingsStore>::replace(std::move(overrides));
}

void showGameScreen(QWidget& screen) {
  if (playInWindow)
    screen.show();
  else
    screen.showFullScreen();
}
