// SPDX-License-Identifier: GPL-2.0-or-later
// "RDXCOM.ScaleEffect": blows a sprite's picture up by a whole factor, each pixel a square.
#pragma once

#include "platform/mixer/rdx_object.h"

namespace platform {

class ScaleEffect final : public RdxObject {
  Q_OBJECT

 public:
  explicit ScaleEffect(QObject* parent = nullptr);

  // Factors below 1 count as 1.
  Q_INVOKABLE void setParams(int factor);
  Q_INVOKABLE void ApplyEffect(QObject* sprite);
  int factor() const { return factor_; }

 private:
  int factor_ = 1;
};

}  // namespace platform
