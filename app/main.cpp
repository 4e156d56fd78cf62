// SPDX-License-Identifier: GPL-2.0-or-later
// The game's entry point.
#include "app/error_handler.h"

int main(int argc, char** argv) {
  GameApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Hunting"));
  return 0;
}
