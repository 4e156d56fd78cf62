// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/optics_overlay.h"

#include "platform/pictures.h"

#include <QBitmap>
#include <QPainter>

OpticsOverlay::OpticsOverlay(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void OpticsOverlay::setPicturePath(const QString& gamePath) {
  if (gamePath == path_) return;
  path_ = gamePath;
  frame_ = platform::LoadPicture(gamePath);
  if (!frame_.isNull()) {
    const QImage image = frame_.toImage();
    const QColor glass = image.pixelColor(image.width() / 2, image.height() / 2);
    frame_.setMask(QBitmap::fromImage(image.createMaskFromColor(glass.rgb(), Qt::MaskInColor)));
  }
  update();
}

void OpticsOverlay::paintEvent(QPaintEvent*) {
  if (frame_.isNull()) return;
  QPainter painter(this);
  painter.drawPixmap(rect(), frame_);
}
