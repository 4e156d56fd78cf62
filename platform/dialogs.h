// SPDX-License-Identifier: GPL-2.0-or-later
// Modal message boxes: a title, a text, a set of buttons and an icon, answered by the player.
#pragma once

#include "platform/service.h"

#include <QString>

namespace platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Icon { None, Information, Exclamation, Critical, Question };
enum class Answer { Ok, Cancel, Yes, No };

struct MessageBox {
  QString text;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  QString title;
  bool operator==(const MessageBox&) const = default;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Shows the box modally and returns the button pressed. Texts are shown exactly as given,
  // line joins included.
  virtual Answer MsgBox(const MessageBox& box) = 0;
};

// QMessageBox over the active window.
class QtDialogs final : public Dialogs {
 public:
  Answer MsgBox(const MessageBox& box) override;
};

template <>
std::unique_ptr<Dialogs> Service<Dialogs>::makeDefault();

inline Dialogs& dialogs() {
  return Service<Dialogs>::get();
}

inline Answer MsgBox(const QString& text, Buttons buttons = Buttons::Ok, Icon icon = Icon::None,
                     const QString& title = {}) {
  return dialogs().MsgBox({text, buttons, icon, title});
}

}  // namespace platform
