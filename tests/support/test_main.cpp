// SPDX-License-Identifier: GPL-2.0-or-later
// Runs a suite inside a QApplication, so widget tests work offscreen.
#include "shell/screen_instance.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  unloadAllScreens();
  return result;
}
