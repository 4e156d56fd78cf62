// SPDX-License-Identifier: GPL-2.0-or-later
// Shows a screen modally and gives control back when it closes, as the lodge screens are
// shown over the hunting screen.
#pragma once

#include "platform/service.h"

class QWidget;

namespace platform {

class ScreensHost {
 public:
  virtual ~ScreensHost() = default;
  // Returns when `screen` has closed, with a dialog's result code (0 for a plain widget).
  virtual int ShowModal(QWidget& screen) = 0;
};

// A dialog runs its own exec(); any other widget is made application-modal and waited for
// in a local event loop until it is hidden.
class QtScreensHost final : public ScreensHost {
 public:
  int ShowModal(QWidget& screen) override;
};

template <>
std::unique_ptr<ScreensHost> Service<ScreensHost>::makeDefault();

inline ScreensHost& screensHost() {
  return Service<ScreensHost>::get();
}

}  // namespace platform
