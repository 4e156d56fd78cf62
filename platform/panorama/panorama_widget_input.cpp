// SPDX-License-Identifier: GPL-2.0-or-later
// Mouse, wheel and keys of the panorama widget: drag to turn, rest near a side edge to turn,
// click a hotspot to select it.
#include "platform/panorama/panorama_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>

namespace platform {
namespace {

constexpr double kDragThreshold = 4;  // pixels a press may wander and still be a click
constexpr double kZoomStep = 1.1;
constexpr int32_t kKeyTurn = 2 * 3600;     // two degrees per arrow key press
constexpr double kKeyLookFraction = 0.05;  // of the view's height per up or down press
constexpr qint64 kGlideFreshMs = 60;       // a drag let go after resting this long does not glide

}  // namespace

void PanoramaWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  pointer_ = event->position();
  glide_.stop();
  edgeSpeed_ = 0;
  dragClock_.start();
  press_ = Press{event->position(), heading_, view().centreRow, HotspotName(), false, 0, 0};
}

void PanoramaWidget::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = event->position();
  if (press_ && (event->buttons() & Qt::LeftButton)) {
    dragTo(event->position());
    return;
  }
  updateEdgePanning();
  refreshHover();
  refreshCursor();
}

void PanoramaWidget::dragTo(QPointF position) {
  if (!press_->dragging && (position - press_->at).manhattanLength() < kDragThreshold) return;
  press_->dragging = true;
  const int32_t before = heading_;
  SetHeading(press_->heading + headingChangeForDrag(geometry_, view(), press_->at.x(), position.x()));
  if (!press_) return;  // a handler of the turn loaded another panorama
  setCentreRow(press_->centreRow - (position.y() - press_->at.y()) / view().zoom);
  const qint64 nowMs = dragClock_.elapsed();
  const double turned = normalizeHeading(int64_t{heading_} - before + kFullTurn / 2) - kFullTurn / 2.0;
  if (nowMs > press_->lastMs)
    press_->velocity = turned * 1000.0 / static_cast<double>(nowMs - press_->lastMs);
  press_->lastMs = nowMs;
  refreshCursor();
}

void PanoramaWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !press_) return QWidget::mouseReleaseEvent(event);
  pointer_ = event->position();
  finishPress(event->position());
}

// A drag let go while still moving glides on; a press that stayed put on one hotspot selects it.
void PanoramaWidget::finishPress(QPointF position) {
  const Press done = *std::exchange(press_, std::nullopt);
  refreshCursor();
  if (done.dragging) {
    if (dragClock_.elapsed() - done.lastMs < kGlideFreshMs) glide_.start(done.velocity);
    if (!glide_.moving()) update();  // at rest: the bilinear frame
    if (glide_.moving() && !motionTimer_.isActive()) {
      motionClock_.start();
      motionTimer_.start();
    }
    return;
  }
  if (!done.hotspot.isEmpty() && hotspotAt(position) == done.hotspot) raiseSelect(done.hotspot);
}

void PanoramaWidget::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  pointer_.reset();
  edgeSpeed_ = 0;
  refreshHover();
}

void PanoramaWidget::updateEdgePanning() {
  edgeSpeed_ = image_ && pointer_ ? edgePanSpeed(pointer_->x(), width()) : 0;
  if (edgeSpeed_ != 0 && !motionTimer_.isActive()) {
    motionClock_.start();
    motionTimer_.start();
  }
}

void PanoramaWidget::stepMotion() {
  static constexpr double kLongestStep = 0.1;  // seconds; a stalled event loop must not jump
  const double seconds = std::min(kLongestStep, motionClock_.restart() / 1000.0);
  const bool gliding = glide_.moving();
  const double turn = edgeSpeed_ * seconds + glide_.advance(seconds);
  if (edgeSpeed_ == 0 && !glide_.moving()) motionTimer_.stop();
  if (turn != 0) turnBy(turn);
  if (gliding && !glide_.moving()) update();  // the glide died away: a bilinear frame
}

Sampling PanoramaWidget::wantedSampling() const {
  return (press_ && press_->dragging) || glide_.moving() ? Sampling::Nearest : Sampling::Bilinear;
}

void PanoramaWidget::wheelEvent(QWheelEvent* event) {
  const double steps = event->angleDelta().y() / 120.0;
  if (steps != 0) SetZoom(Zoom() * std::pow(kZoomStep, steps));
  event->accept();
}

void PanoramaWidget::keyPressEvent(QKeyEvent* event) {
  const double look = height() * kKeyLookFraction / view().zoom;
  switch (event->key()) {
    case Qt::Key_Left: turnBy(-kKeyTurn); break;
    case Qt::Key_Right: turnBy(kKeyTurn); break;
    case Qt::Key_Up: setCentreRow(view().centreRow - look); break;
    case Qt::Key_Down: setCentreRow(view().centreRow + look); break;
    case Qt::Key_Plus:
    case Qt::Key_PageUp: SetZoom(Zoom() * kZoomStep); break;
    case Qt::Key_Minus:
    case Qt::Key_PageDown: SetZoom(Zoom() / kZoomStep); break;
    default: return QWidget::keyPressEvent(event);
  }
  event->accept();
}

}  // namespace platform
