// SPDX-License-Identifier: GPL-2.0-or-later
// The start, new-hunt, loading and menu screens in the viewer.
#include "shell/filer.h"
#include "shell/gamestart.h"
#include "shell/loadingsrn.h"
#include "shell/postcard.h"
#include "shell/screen_instance.h"
#include "tools/screenview/screen_registry.h"

#include <QPushButton>

namespace {

// The start screen as it stands behind the first question.
const RegisterScreen gamestart{"Gamestart", [] {
                                 auto& start = ScreenInstance<Gamestart>::get();
                                 start.Form_Load();
                                 return static_cast<QWidget*>(&start);
                               }};

const RegisterScreen postcard{"Postcard", [] {
                                auto& card = ScreenInstance<Postcard>::get();
                                card.Form_Load();
                                return static_cast<QWidget*>(&card);
                              }};

// The back of the card with the quick hunt switched on.
const RegisterScreen postcardBack{"PostcardBack", [] {
                                    auto& card = ScreenInstance<Postcard>::get();
                                    card.Form_Load();
                                    card.Nextbox_Click();
                                    card.qhunt->setChecked(true);
                                    return static_cast<QWidget*>(&card);
                                  }};

const RegisterScreen loading{"Loadingsrn", [] {
                               auto& screen = ScreenInstance<Loadingsrn>::get();
                               screen.Form_Load();
                               return static_cast<QWidget*>(&screen);
                             }};

// The main menu's save face.
const RegisterScreen filer{"FilerSave", [] {
                             auto& menu = ScreenInstance<Filer>::get();
                             menu.Form_Load();
                             menu.Savegamebut_Click();
                             return static_cast<QWidget*>(&menu);
                           }};

}  // namespace
