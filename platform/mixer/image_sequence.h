// SPDX-License-Identifier: GPL-2.0-or-later
// "RDXCOM.ImageSequence": numbered pictures cut from images (a sight's recoil frames), one of
// them current; it can be shown through a sprite or placed and shown itself.
#pragma once

#include "platform/mixer/data_sprite.h"

#include <vector>

namespace platform {

class ImageSequence final : public DataSprite {
  Q_OBJECT

 public:
  explicit ImageSequence(QObject* parent = nullptr);

  Q_INVOKABLE void Initialize(int count);
  // Element `index` is the whole of `image`, or the part of it at (x, y) of the given size.
  Q_INVOKABLE void setElementAt(int index, QObject* image);
  Q_INVOKABLE void setElementAt(int index, QObject* image, int x, int y, int width, int height);
  Q_INVOKABLE void setCurrentImageNumber(int index);
  Q_INVOKABLE int getCurrentImageNumber() const { return current_; }

  const QImage* picture() const override;

 private:
  std::vector<QImage> elements_;
  int current_ = 0;
};

}  // namespace platform
