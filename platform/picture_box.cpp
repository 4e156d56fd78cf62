// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/picture_box.h"

#include "platform/pictures.h"

#include <QMouseEvent>
#include <QPainter>

namespace platform {

PictureBox::PictureBox(QWidget* parent) : QLabel(parent) {
  setScaledContents(true);
}

void PictureBox::setPicturePath(const QString& gamePath) {
  path_ = gamePath;
  setPixmap(LoadPicture(gamePath));
}

void PictureBox::setKeepShape(bool keep) {
  keepShape_ = keep;
  update();
}

QRect PictureBox::pictureRect() const {
  const QSize picture = pixmap().size();
  if (!keepShape_ || picture.isEmpty()) return rect();
  const QSize fitted = picture.scaled(size(), Qt::KeepAspectRatio);
  return {QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted};
}

void PictureBox::paintEvent(QPaintEvent* event) {
  if (!keepShape_) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  if (!pixmap().isNull()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(pictureRect(), pixmap());
  }
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && click_) {
    click_();
    return;
  }
  QLabel::mousePressEvent(event);
}

}  // namespace platform
