// SPDX-License-Identifier: GPL-2.0-or-later
// The panorama widget: draws a .svh panorama with our own renderer, turns with drag, edge,
// keys and wheel, and raises the hotspot and heading events of SVControl.
#pragma once

#include "platform/panorama/panorama_image.h"
#include "platform/panorama/panorama_manifest.h"
#include "platform/panorama/panorama_motion.h"
#include "platform/panorama/panorama_projection.h"
#include "platform/panorama/panorama_renderer.h"
#include "platform/panorama/sv_control.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace platform {

class PanoramaWidget final : public QWidget, public SVControl {
  Q_OBJECT
 public:
  explicit PanoramaWidget(QWidget* parent = nullptr);

  QWidget* widget() override { return this; }
  bool Load(const QString& gamePath) override;
  int ReadyState() const override { return ready_; }
  int32_t Heading() const override { return heading_; }
  void SetHeading(int32_t heading) override;
  double Zoom() const override;
  void SetZoom(double zoom) override;
  double BaseZoom() const override;
  QString HotspotName() const override;
  bool Tracking() const override { return tracking_; }
  void SetTracking(bool on) override { tracking_ = on; }

  // Why the last load failed, for authors; empty after a good load.
  QString errorString() const { return error_; }
  // The loaded manifest's hotspots, for outlining them.
  const std::vector<PanoramaHotspot>& hotspots() const;
  // Outlines every hotspot over the view, as an author's aid.
  void setOutlinesShown(bool shown);
  // The hotspot at a logical point of the widget, through the same projection that draws.
  QString hotspotAt(QPointF point) const;
  // The view's image row at the middle line; looking up or down moves it.
  double centreRow() const { return view().centreRow; }
  void setCentreRow(double row);
  // How the frame on screen was sampled: nearest while a drag turns the view, bilinear at rest.
  Sampling frameSampling() const { return frameSampling_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PanoramaView view() const;
  bool fail(const QString& message);
  void viewChanged();
  void turnBy(double change);
  void refreshHover();
  void refreshCursor();
  void drawOutlines(QPainter& painter) const;
  // Input helpers, in panorama_widget_input.cpp.
  void dragTo(QPointF position);
  void finishPress(QPointF position);
  void stepMotion();
  void updateEdgePanning();
  // Nearest while the view follows or glides on from a drag: those frames are replaced at once.
  Sampling wantedSampling() const;

  std::optional<PanoramaManifest> manifest_;
  std::shared_ptr<const PanoramaImage> image_;
  PanoramaGeometry geometry_;
  PanoramaRenderer renderer_;
  QImage frame_;
  bool frameStale_ = true;
  Sampling frameSampling_ = Sampling::Bilinear;
  bool outlines_ = false;
  int ready_ = 0;
  QString error_;

  int32_t heading_ = 0;
  double headingRemainder_ = 0;  // turns smaller than one unit, kept for smooth motion
  double zoomOverBase_ = 1;
  double centreRow_ = 0;

  bool tracking_ = true;
  QString hovered_;
  std::optional<QPointF> pointer_;

  struct Press {
    QPointF at;
    int32_t heading = 0;
    double centreRow = 0;
    QString hotspot;
    bool dragging = false;
    qint64 lastMs = 0;
    double velocity = 0;  // heading units per second
  };
  std::optional<Press> press_;
  double edgeSpeed_ = 0;
  Glide glide_;
  QTimer motionTimer_;
  QElapsedTimer motionClock_;
  QElapsedTimer dragClock_;
};

}  // namespace platform
