// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/picture_box.h"

#include "platform/pictures.h"

#include <QMouseEvent>

namespace platform {

PictureBox::PictureBox(QWidget* parent) : QLabel(parent) {
  setScaledContents(true);
}

void PictureBox::setPicturePath(const QString& gamePath) {
  path_ = gamePath;
  setPixmap(LoadPicture(gamePath));
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && click_) {
    click_();
    return;
  }
  QLabel::mousePressEvent(event);
}

}  // namespace platform
