// SPDX-License-Identifier: GPL-2.0-or-later
// Loading, state, drawing and the events of the panorama widget; input is in panorama_widget_input.cpp.
#include "platform/panorama/panorama_widget.h"

#include "platform/files.h"
#include "platform/panorama/panorama_hit_test.h"
#include "platform/panorama/panorama_image_cache.h"
#include "platform/panorama/panorama_log.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <utility>

namespace platform {

PanoramaWidget::PanoramaWidget(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  motionTimer_.setInterval(16);
  connect(&motionTimer_, &QTimer::timeout, this, &PanoramaWidget::stepMotion);
}

bool PanoramaWidget::Load(const QString& gamePath) {
  manifest_.reset();
  image_.reset();
  ready_ = 0;
  hovered_.clear();
  press_.reset();
  error_.clear();
  frameStale_ = true;
  update();

  auto read = readManifest(files().resolve(gamePath));
  if (const auto* error = std::get_if<ManifestError>(&read)) return fail(error->message);
  auto manifest = std::get<PanoramaManifest>(std::move(read));
  QString imageError;
  auto image = loadPanoramaImage(manifest.image, imageError);
  if (!image) return fail(QStringLiteral("%1: %2").arg(gamePath, imageError));
  if (const QString bad = checkHotspotBounds(manifest, image->width(), image->height()); !bad.isEmpty())
    return fail(QStringLiteral("%1: %2").arg(gamePath, bad));

  geometry_ = PanoramaGeometry::cylindrical(image->width(), image->height(), manifest.verticalFovDegrees);
  manifest_ = std::move(manifest);
  image_ = std::move(image);
  zoomOverBase_ = 1;
  centreRow_ = geometry_.height / 2.0;
  ready_ = kReadyComplete;
  return true;
}

bool PanoramaWidget::fail(const QString& message) {
  error_ = message;
  qCWarning(panoramaLog).noquote() << message;
  return false;
}

const std::vector<PanoramaHotspot>& PanoramaWidget::hotspots() const {
  static const std::vector<PanoramaHotspot> none;
  return manifest_ ? manifest_->hotspots : none;
}

PanoramaView PanoramaWidget::view() const {
  if (!image_) return {QSizeF(size()), heading_, 1, 0};
  const double height = this->height();
  const double zoom = clampZoom(geometry_, height, zoomOverBase_ * baseZoom(geometry_, height));
  return {QSizeF(size()), heading_, zoom, clampCentreRow(geometry_, height, zoom, centreRow_)};
}

void PanoramaWidget::SetHeading(int32_t heading) {
  headingRemainder_ = 0;
  turnBy(static_cast<double>(heading) - heading_);
}

void PanoramaWidget::turnBy(double change) {
  const double exact = heading_ + headingRemainder_ + change;
  const double whole = std::floor(exact);
  headingRemainder_ = exact - whole;
  const int32_t next = normalizeHeading(static_cast<int64_t>(whole));
  if (next == heading_) return;
  heading_ = next;
  raiseLocation(heading_);
  viewChanged();
}

double PanoramaWidget::Zoom() const {
  return image_ ? view().zoom : 1.0;
}

double PanoramaWidget::BaseZoom() const {
  return image_ ? baseZoom(geometry_, height()) : 1.0;
}

void PanoramaWidget::SetZoom(double zoom) {
  if (!image_ || !(zoom > 0)) return;
  const double clamped = clampZoom(geometry_, height(), zoom);
  zoomOverBase_ = clamped / baseZoom(geometry_, height());
  viewChanged();
}

void PanoramaWidget::setCentreRow(double row) {
  if (!image_) return;
  const PanoramaView now = view();
  centreRow_ = clampCentreRow(geometry_, height(), now.zoom, row);
  viewChanged();
}

QString PanoramaWidget::hotspotAt(QPointF point) const {
  if (!image_) return {};
  return platform::hotspotAt(manifest_->hotspots, imagePointAt(geometry_, view(), point), geometry_.width);
}

QString PanoramaWidget::HotspotName() const {
  return pointer_ ? hotspotAt(*pointer_) : QString();
}

void PanoramaWidget::setOutlinesShown(bool shown) {
  outlines_ = shown;
  update();
}

void PanoramaWidget::viewChanged() {
  frameStale_ = true;
  update();
  refreshHover();
  refreshCursor();
}

// Raises leave for the hotspot left and enter for the one entered, in that order. A handler
// may load another panorama meanwhile; the enter is then no longer true and is dropped.
void PanoramaWidget::refreshHover() {
  if (!tracking_) return;
  const QString now = HotspotName();
  if (now == hovered_) return;
  const QString was = std::exchange(hovered_, now);
  if (!was.isEmpty()) raiseLeave(was);
  if (!now.isEmpty() && hovered_ == now && HotspotName() == now) raiseEnter(now);
}

void PanoramaWidget::refreshCursor() {
  if (press_ && press_->dragging)
    setCursor(Qt::ClosedHandCursor);
  else if (!HotspotName().isEmpty())
    setCursor(Qt::PointingHandCursor);
  else
    unsetCursor();
}

void PanoramaWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  frameStale_ = true;
}

void PanoramaWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!image_) {
    painter.fillRect(rect(), Qt::black);
    return;
  }
  const qreal ratio = devicePixelRatioF();
  const QSize device(std::lround(width() * ratio), std::lround(height() * ratio));
  if (frame_.size() != device || frame_.devicePixelRatio() != ratio) {
    frame_ = QImage(device, QImage::Format_RGB32);
    frame_.setDevicePixelRatio(ratio);
    frameStale_ = true;
  }
  const Sampling sampling = wantedSampling();
  if (frameStale_ || sampling != frameSampling_)
    renderer_.render(*image_, geometry_, view(), frame_, sampling);
  frameStale_ = false;
  frameSampling_ = sampling;
  painter.drawImage(QPointF(0, 0), frame_);
  if (outlines_) drawOutlines(painter);
}

// Traces each outline through the view's projection, a few image pixels at a time, so that
// it bends as the drawing does; the trace breaks where an edge passes behind the viewer.
void PanoramaWidget::drawOutlines(QPainter& painter) const {
  constexpr double kStep = 4.0;  // image pixels between traced points
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(255, 220, 0), 1.5));
  const PanoramaView now = view();
  for (const auto& hotspot : manifest_->hotspots) {
    const auto& polygon = hotspot.polygon;
    for (size_t i = 0; i < polygon.size(); ++i) {
      const QPointF a = polygon[i];
      const QPointF b = polygon[(i + 1) % polygon.size()];
      const int steps = std::max(1, static_cast<int>(QLineF(a, b).length() / kStep));
      std::optional<QPointF> previous;
      for (int k = 0; k <= steps; ++k) {
        const auto point = viewPointAt(geometry_, now, a + (b - a) * (static_cast<double>(k) / steps));
        if (point && previous) painter.drawLine(*previous, *point);
        previous = point;
      }
    }
  }
}

}  // namespace platform
