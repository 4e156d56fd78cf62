// SPDX-License-Identifier: GPL-2.0-or-later
// Modal screens: the real host returns when the screen closes; the double runs the test's
// script for each screen and closes what the script left open.
#include "platform/screens_host.h"
#include "platform/fakes/scripted_screens.h"

#include <QDialog>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

class Catalog final : public QDialog {
  Q_OBJECT
 public:
  int bought = 0;
  void Buybutton_Click() { ++bought; }
  void Closebox_Click() { done(7); }
};

TEST(QtScreensHost, ReturnsTheDialogResultOnceTheScreenCloses) {
  Catalog screen;
  QTimer::singleShot(0, &screen, [&] { screen.Closebox_Click(); });
  EXPECT_EQ(platform::QtScreensHost().ShowModal(screen), 7);
  EXPECT_FALSE(screen.isVisible());
}

TEST(QtScreensHost, WaitsForAPlainWidgetToBeHidden) {
  QWidget screen;
  QTimer::singleShot(0, &screen, [&] { screen.close(); });
  EXPECT_EQ(platform::QtScreensHost().ShowModal(screen), 0);
  EXPECT_FALSE(screen.isVisible());
}

TEST(ScriptedScreens, RunsTheScriptForTheScreenAndClosesIt) {
  platform::ScriptedScreens host;
  host.on("Catalog", [](QWidget& widget) {
    auto& catalog = static_cast<Catalog&>(widget);
    catalog.Buybutton_Click();
    catalog.Buybutton_Click();
    return 1;
  });
  Catalog screen;
  screen.show();
  EXPECT_EQ(host.ShowModal(screen), 1);
  EXPECT_EQ(screen.bought, 2);
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(host.shown(), QStringList{"Catalog"});
}

TEST(ScriptedScreens, RefusesAScreenWithNoScript) {
  platform::ScriptedScreens host;
  QWidget screen;
  EXPECT_THROW(host.ShowModal(screen), std::logic_error);
}

TEST(ScriptedScreens, ToleratesAScriptThatUnloadsTheScreen) {
  platform::ScriptedScreens host;
  host.on("Catalog", [](QWidget& widget) {
    delete &widget;
    return 0;
  });
  EXPECT_EQ(host.ShowModal(*new Catalog), 0);
}

}  // namespace

#include "screens_host_test.moc"
