// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/scale_effect.h"

#include "platform/mixer/data_sprite.h"

#include <algorithm>

namespace platform {

ScaleEffect::ScaleEffect(QObject* parent) : RdxObject(QStringLiteral("RDXCOM.ScaleEffect"), parent) {}

void ScaleEffect::setParams(int factor) {
  factor_ = std::max(factor, 1);
}

void ScaleEffect::ApplyEffect(QObject* sprite) {
  if (auto* target = qobject_cast<DataSprite*>(sprite)) target->setScale(factor_);
}

}  // namespace platform
