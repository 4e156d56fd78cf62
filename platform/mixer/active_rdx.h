// SPDX-License-Identifier: GPL-2.0-or-later
// The sprite and clip mixer widget (ActiveRDX): makes objects by class name, runs a frame loop
// on the interface thread that raises BeforeDraw and AfterDraw around each composited frame,
// and reports the mouse in twips.
#pragma once

#include "platform/mixer/rdx_object.h"

#include <QImage>
#include <QList>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace platform {

class ActiveRDX : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kTwipsPerPixel = 15;

  explicit ActiveRDX(QWidget* parent = nullptr);

  // A new object of class "RDXCOM.SingleImage", "RDXCOM.AVSource" and so on, owned by the
  // mixer; null for a class it does not know.
  RdxObject* CreateObject(const QString& className);
  template <class T>
  T* create(const QString& className) {
    return qobject_cast<T*>(CreateObject(className));
  }
  // Releases one object, or all of them.
  void release(RdxObject* object);
  void releaseAll();

  // The colour behind every sprite, as 0x00BBGGRR.
  Q_INVOKABLE void setColor(int colorRef);
  // Composites a frame now and puts it on screen at once.
  Q_INVOKABLE void draw();
  // The frame loop runs while the mixer is shown and started.
  Q_INVOKABLE void Start();
  Q_INVOKABLE void Stop();

  // One frame of the loop: BeforeDraw, clips catch up with the clock, composite, AfterDraw.
  void frame();
  const QImage& surface() const { return surface_; }

 signals:
  void BeforeDraw();
  void AfterDraw();
  // Button 1 left, 2 right, 4 middle; shift 1 Shift, 2 Ctrl, 4 Alt; x and y in twips.
  void MouseDown(int button, int shift, double x, double y);
  void MouseMove(int button, int shift, double x, double y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void composeSurface();
  void updateLoop();

  QList<QPointer<RdxObject>> objects_;
  QImage surface_;
  QRgb background_ = qRgb(0, 0, 0);
  QTimer loop_;
  bool started_ = true;
};

}  // namespace platform
