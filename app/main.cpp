// SPDX-License-Identifier: GPL-2.0-or-later
// The game's entry point.
#include <QApplication>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Hunting"));
  return 0;
}
