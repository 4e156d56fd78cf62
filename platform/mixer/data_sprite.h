// SPDX-License-Identifier: GPL-2.0-or-later
// "RDXCOM.StaticDataSprite" and "RDXCOM.DynamicDataSprite": a placed, ordered, possibly
// scaled view of a picture source on the mixer's surface.
#pragma once

#include "platform/mixer/compositor.h"
#include "platform/mixer/rdx_object.h"

#include <QPointer>
#include <QRect>

namespace platform {

class DataSprite : public RdxSource {
  Q_OBJECT

 public:
  DataSprite(const QString& className, QObject* parent);

  // The source whose picture is shown: an image, an image sequence or a clip source.
  Q_INVOKABLE void SetData(QObject* source);
  // Where the sprite goes and how much of the surface it may cover.
  Q_INVOKABLE void setDestination(int x, int y, int width, int height);
  // Moves the sprite's corner; a higher z is drawn over a lower one.
  Q_INVOKABLE void setPosition(int x, int y);
  Q_INVOKABLE void setPosition(int x, int y, int z);
  Q_INVOKABLE void Show(bool visible);
  // Pictures are read afresh at every frame, so a sprite is always ready to draw.
  Q_INVOKABLE void Prepare() {}
  Q_INVOKABLE void removeEffect(QObject* effect);

  void setScale(int scale) { scale_ = scale; }
  int scale() const { return scale_; }
  bool visible() const { return visible_; }
  int z() const { return z_; }
  QPoint position() const { return position_; }

  const QImage* picture() const override;
  // The layer this sprite puts on the surface, or nothing while hidden or empty.
  std::optional<Layer> layer() const;

 private:
  QPointer<RdxSource> source_;
  QPoint position_;
  QSize size_;  // empty: as big as the scaled picture
  int z_ = 0;
  int scale_ = 1;
  bool visible_ = true;
};

}  // namespace platform
