// SPDX-License-Identifier: GPL-2.0-or-later
// The conversation box, opened on the lodge host's greeting.
#include "tools/screenview/screen_registry.h"

#include "lodge/speech.h"
#include "lodge/talkform.h"
#include "shell/screen_instance.h"

namespace {

const RegisterScreen talkform{"Talkform", [] {
                                talk::Say(QStringLiteral("Entry"));
                                return static_cast<QWidget*>(&ScreenInstance<Talkform>::get());
                              }};

}  // namespace
