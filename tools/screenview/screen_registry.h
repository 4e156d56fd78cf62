// SPDX-License-Identifier: GPL-2.0-or-later
// The screens the viewer can open. Each folder's file registers its screens with one
// `RegisterScreen` object per screen:
//
//   const RegisterScreen catalog{"Catalog", [] {
//     auto& screen = ScreenInstance<Catalog>::get();
//     screen.Form_Load();
//     return static_cast<QWidget*>(&screen);
//   }};
//
// The opener runs after the world is mapped and a new hunt's state is set (world, skill,
// money from the command line); it may set shared values first, as the screen's opener in the
// game would. The viewer shows the widget it returns and, with --grab, saves a picture of it.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <map>

using ScreenOpener = std::function<QWidget*()>;

std::map<QString, ScreenOpener>& screenRegistry();

struct RegisterScreen {
  RegisterScreen(const char* name, ScreenOpener open) {
    screenRegistry().emplace(QString::fromLatin1(name), std::move(open));
  }
};
