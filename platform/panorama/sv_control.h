// SPDX-License-Identifier: GPL-2.0-or-later
// The panorama widget as the game sees it: load a .svh, turn and zoom, ask what hotspot is
// under the pointer, and hear about entering, leaving and clicking hotspots and about turns.
// The game holds this interface so that screens run with a fake in tests.
#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>

namespace platform {

// The ready state once a panorama's image is in and drawn.
inline constexpr int kReadyComplete = 4;

class SVControl {
 public:
  virtual ~SVControl() = default;

  // The widget to place on a screen; show and hide it through this.
  virtual QWidget* widget() = 0;

  // Opens a panorama by its game path ("D:\surnd\13lodge.svh"). A missing or bad file leaves
  // the widget empty with ready state 0 and returns false; nothing is thrown.
  virtual bool Load(const QString& gamePath) = 0;
  virtual int ReadyState() const = 0;

  // In 1/3600 degree, 0 .. 1295999; any value is taken modulo a full turn.
  virtual int32_t Heading() const = 0;
  virtual void SetHeading(int32_t heading) = 0;

  // Bigger is closer. The base zoom is the one a panorama opens at for the widget's size.
  virtual double Zoom() const = 0;
  virtual void SetZoom(double zoom) = 0;
  virtual double BaseZoom() const = 0;

  // The hotspot under the pointer, or an empty name.
  virtual QString HotspotName() const = 0;

  // With tracking off, moving over hotspots raises neither enter nor leave.
  virtual bool Tracking() const = 0;
  virtual void SetTracking(bool on) = 0;

  // Events; each takes the hotspot's name, OnLocation the new heading. Unset ones are skipped.
  std::function<void(const QString&)> OnEnterHotspot;
  std::function<void(const QString&)> OnLeaveHotspot;
  std::function<void(const QString&)> OnSelectHotspot;
  std::function<void(int32_t)> OnLocation;

 protected:
  void raiseEnter(const QString& name) { raise(OnEnterHotspot, name); }
  void raiseLeave(const QString& name) { raise(OnLeaveHotspot, name); }
  void raiseSelect(const QString& name) { raise(OnSelectHotspot, name); }
  void raiseLocation(int32_t heading) { raise(OnLocation, heading); }

 private:
  // A copy, so a handler may replace or clear its own slot.
  template <class Handler, class Arg>
  static void raise(const Handler& handler, const Arg& arg) {
    if (const Handler call = handler) call(arg);
  }
};

}  // namespace platform
