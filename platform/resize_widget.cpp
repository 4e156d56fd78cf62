// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/resize_widget.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace platform {

ReSize::ReSize(QWidget* screen, QSize design) : QObject(screen), screen_(screen), design_(design) {
  screen->installEventFilter(this);
}

void ReSize::place(QWidget* child, QRect designRect, int designPointSize) {
  placements_[child] = {designRect, designPointSize};
  QObject::connect(child, &QObject::destroyed, this, [this, child] { placements_.erase(child); });
  apply();
}

double ReSize::scaleX() const {
  return static_cast<double>(screen_->width()) / design_.width();
}
double ReSize::scaleY() const {
  return static_cast<double>(screen_->height()) / design_.height();
}

void ReSize::apply() {
  const double sx = scaleX();
  const double sy = scaleY();
  for (auto& [child, placement] : placements_) {
    const QRect& r = placement.rect;
    child->setGeometry(static_cast<int>(std::lround(r.x() * sx)), static_cast<int>(std::lround(r.y() * sy)),
                       static_cast<int>(std::lround(r.width() * sx)),
                       static_cast<int>(std::lround(r.height() * sy)));
    if (placement.pointSize > 0) {
      QFont font = child->font();
      font.setPointSizeF(std::max(6.0, placement.pointSize * std::min(sx, sy)));
      child->setFont(font);
    }
  }
}

bool ReSize::eventFilter(QObject* watched, QEvent* event) {
  if (watched == screen_ && event->type() == QEvent::Resize) apply();
  return QObject::eventFilter(watched, event);
}

}  // namespace platform
