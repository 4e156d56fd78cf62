// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/image_sequence.h"

namespace platform {

ImageSequence::ImageSequence(QObject* parent) : DataSprite(QStringLiteral("RDXCOM.ImageSequence"), parent) {
  Show(false);  // drawn by itself only when asked
  SetData(this);
}

void ImageSequence::Initialize(int count) {
  elements_.assign(std::max(count, 0), QImage());
  current_ = 0;
}

void ImageSequence::setElementAt(int index, QObject* image) {
  auto* source = qobject_cast<RdxSource*>(image);
  const QImage* picture = source ? source->picture() : nullptr;
  if (picture) setElementAt(index, image, 0, 0, picture->width(), picture->height());
}

void ImageSequence::setElementAt(int index, QObject* image, int x, int y, int width, int height) {
  auto* source = qobject_cast<RdxSource*>(image);
  if (index < 0 || !source || !source->picture()) return;
  if (size_t(index) >= elements_.size()) elements_.resize(index + 1);
  elements_[index] = source->picture()->copy(x, y, width, height);
}

void ImageSequence::setCurrentImageNumber(int index) {
  current_ = index;
}

const QImage* ImageSequence::picture() const {
  if (current_ < 0 || size_t(current_) >= elements_.size() || elements_[current_].isNull()) return nullptr;
  return &elements_[current_];
}

}  // namespace platform
