// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/resize_widget.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace platform {

ReSize::ReSize(QWidget* screen, QSize design, Fit fit)
    : QObject(screen), screen_(screen), design_(design), fit_(fit) {
  screen->installEventFilter(this);
}

void ReSize::place(QWidget* child, QRect designRect, int designPointSize) {
  placements_[child] = {designRect, designPointSize};
  QObject::connect(child, &QObject::destroyed, this, [this, child] { placements_.erase(child); });
  apply();
}

double ReSize::scaleX() const {
  const double sx = static_cast<double>(screen_->width()) / design_.width();
  return fit_ == Fit::KeepShape ? std::min(sx, static_cast<double>(screen_->height()) / design_.height())
                                : sx;
}
double ReSize::scaleY() const {
  const double sy = static_cast<double>(screen_->height()) / design_.height();
  return fit_ == Fit::KeepShape ? std::min(sy, static_cast<double>(screen_->width()) / design_.width()) : sy;
}

QPoint ReSize::origin() const {
  return {static_cast<int>(std::lround((screen_->width() - design_.width() * scaleX()) / 2)),
          static_cast<int>(std::lround((screen_->height() - design_.height() * scaleY()) / 2))};
}

void ReSize::apply() {
  const double sx = scaleX();
  const double sy = scaleY();
  const QPoint at = origin();
  for (auto& [child, placement] : placements_) {
    const QRect& r = placement.rect;
    child->setGeometry(at.x() + static_cast<int>(std::lround(r.x() * sx)),
                       at.y() + static_cast<int>(std::lround(r.y() * sy)),
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
