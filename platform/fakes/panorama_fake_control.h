// SPDX-License-Identifier: GPL-2.0-or-later
// A panorama widget double: records what the game asks of it and lets a test move the
// pointer over hotspots, click and turn, raising the events as the real widget would.
#pragma once

#include "platform/panorama/sv_control.h"

#include <QPointer>
#include <QSet>
#include <QStringList>

namespace platform {

class FakeSVControl final : public SVControl {
 public:
  explicit FakeSVControl(QWidget* parent = nullptr);
  ~FakeSVControl() override;

  QWidget* widget() override { return widget_; }
  bool Load(const QString& gamePath) override;
  int ReadyState() const override { return ready_; }
  int32_t Heading() const override { return heading_; }
  void SetHeading(int32_t heading) override;
  double Zoom() const override { return zoom_; }
  void SetZoom(double zoom) override;
  double BaseZoom() const override { return baseZoom_; }
  QString HotspotName() const override { return pointed_; }
  bool Tracking() const override { return tracking_; }
  void SetTracking(bool on) override;

  // What the game did, one line per call: "Load D:\surnd\13lodge.svh", "SetHeading 648000",
  // "SetZoom 1.1", "SetTracking 0".
  const QStringList& calls() const { return calls_; }
  void clearCalls() { calls_.clear(); }
  QString loaded() const { return loaded_; }
  // Loads of these game paths fail, as a missing file would.
  void failLoadsOf(const QString& gamePath) { missing_.insert(gamePath.toLower()); }
  void setBaseZoom(double zoom) { baseZoom_ = zoom; }

  // The pointer moves onto `name` (empty: off every hotspot); leave and enter are raised as
  // tracking allows.
  void pointAt(const QString& name);
  // A click where the pointer is: selects its hotspot, if any.
  void click();
  // The player turns the view, raising OnLocation.
  void turnTo(int32_t heading);

 private:
  QPointer<QWidget> widget_;
  QStringList calls_;
  QSet<QString> missing_;
  QString loaded_;
  QString pointed_;
  QString entered_;
  int ready_ = 0;
  int32_t heading_ = 0;
  double zoom_ = 1;
  double baseZoom_ = 1;
  bool tracking_ = true;
};

}  // namespace platform
