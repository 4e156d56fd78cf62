// SPDX-License-Identifier: GPL-2.0-or-later
// The game's command line: help and version, and the few choices a player or a world author
// makes for one run (a media folder, a window, a screen size) without touching stored settings.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

struct CommandLine {
  QString media;  // the folder the media drive stands for this run; empty = the stored one
  bool windowed = false;
  QSize size;  // pixels; invalid = the screen's own
};

// What reading the command line came to: options to run with, or an exit code and the text to
// print before leaving (help and version on standard output, mistakes on standard error).
struct CommandLineReading {
  std::optional<CommandLine> run;
  int exitCode = 0;
  QString text;
};

// Reads the arguments (the program's name first). Needs no window system, so that help and
// version answer on any terminal.
CommandLineReading readCommandLine(const QStringList& arguments);

// Help and version, answered before the window system starts so that they work on any
// terminal: the exit code when one of them was asked for. Anything else waits for the
// application, which first takes its own options (such as -platform) out.
std::optional<int> answerHelpOrVersion(int argc, char** argv);

// Reads the options of a run into `options`, or prints the mistake: an exit code when the game
// is not to start.
std::optional<int> readRunOptions(const QStringList& arguments, CommandLine& options);

// Puts this run's choices in front of the stored settings and remembers the window mode.
void applyCommandLine(const CommandLine& options);

// Shows a screen the way the player asked for: full screen, or a window.
void showGameScreen(QWidget& screen);
