// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/data_sprite.h"

namespace platform {

DataSprite::DataSprite(const QString& className, QObject* parent) : RdxSource(className, parent) {}

void DataSprite::SetData(QObject* source) {
  source_ = qobject_cast<RdxSource*>(source);
}

void DataSprite::setDestination(int x, int y, int width, int height) {
  position_ = {x, y};
  size_ = {width, height};
}

void DataSprite::setPosition(int x, int y) {
  position_ = {x, y};
}

void DataSprite::setPosition(int x, int y, int z) {
  position_ = {x, y};
  z_ = z;
}

void DataSprite::Show(bool visible) {
  visible_ = visible;
}

void DataSprite::removeEffect(QObject*) {
  scale_ = 1;
}

const QImage* DataSprite::picture() const {
  return source_ ? source_->picture() : nullptr;
}

std::optional<Layer> DataSprite::layer() const {
  const QImage* image = picture();
  if (!visible_ || !image) return std::nullopt;
  const QSize size = size_.isEmpty() ? image->size() * scale_ : size_;
  return Layer{image, QRect(position_, size), scale_, z_};
}

}  // namespace platform
