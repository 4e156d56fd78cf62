// SPDX-License-Identifier: GPL-2.0-or-later
// What the player is shown when a handler throws, through the scripted dialogs.
#include "platform/error_box.h"

#include "platform/fakes/scripted_dialogs.h"
#include "platform/runtime.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

using platform::ScopedService;
using platform::ScriptedDialogs;

// A handler that stores a sum only after the checked arithmetic has succeeded.
struct Wallet {
  int16_t money = 32000;
  void Sellbutton_Click(int price) { money = rt::add16(money, price); }
};

void clickGuarded(Wallet& wallet, int price) {
  try {
    wallet.Sellbutton_Click(price);
  } catch (...) {
    platform::ReportEscapedError(std::current_exception(), QStringLiteral("Catalog SellButton (Click)"));
  }
}

TEST(ErrorBox, AnOverflowShowsTheRuntimeBoxAndStoresNothing) {
  ScopedService<platform::Dialogs, ScriptedDialogs> dialogs;
  Wallet wallet;
  clickGuarded(wallet, 1000);
  ASSERT_EQ(dialogs->shown().size(), 1u);
  EXPECT_EQ(dialogs->last().text, "Run-time error '6': Overflow");
  EXPECT_EQ(dialogs->last().buttons, platform::Buttons::Ok);
  EXPECT_EQ(dialogs->last().title, QCoreApplication::applicationName());
  EXPECT_EQ(wallet.money, 32000);
  clickGuarded(wallet, 700);
  EXPECT_EQ(wallet.money, 32700) << "the game goes on after the box";
  EXPECT_EQ(dialogs->shown().size(), 1u);
}

TEST(ErrorBox, AnyOtherErrorNamesWhereAndWhatFailed) {
  ScopedService<platform::Dialogs, ScriptedDialogs> dialogs;
  platform::ReportEscapedError(std::make_exception_ptr(std::runtime_error("No field \"Colour\"")),
                               QStringLiteral("Catalog Buybutton (MouseButtonRelease)"));
  EXPECT_EQ(
      dialogs->last().text,
      "An error stopped Catalog Buybutton (MouseButtonRelease):\n\rNo field \"Colour\"\n\rThe game goes on.");
  EXPECT_EQ(dialogs->last().icon, platform::Icon::Critical);
  platform::ReportEscapedError(std::make_exception_ptr(42), QString());
  EXPECT_EQ(dialogs->last().text, "An error stopped the game:\n\ran unknown error\n\rThe game goes on.");
}

}  // namespace
