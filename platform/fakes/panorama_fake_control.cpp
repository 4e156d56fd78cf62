// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/fakes/panorama_fake_control.h"

#include "platform/panorama/panorama_projection.h"

#include <QWidget>

#include <utility>

namespace platform {

FakeSVControl::FakeSVControl(QWidget* parent) : widget_(new QWidget(parent)) {}

FakeSVControl::~FakeSVControl() {
  delete widget_.data();
}

bool FakeSVControl::Load(const QString& gamePath) {
  calls_ << QStringLiteral("Load %1").arg(gamePath);
  pointed_.clear();
  entered_.clear();
  zoom_ = baseZoom_;
  const bool ok = !missing_.contains(gamePath.toLower());
  loaded_ = ok ? gamePath : QString();
  ready_ = ok ? kReadyComplete : 0;
  return ok;
}

void FakeSVControl::SetHeading(int32_t heading) {
  calls_ << QStringLiteral("SetHeading %1").arg(heading);
  turnTo(heading);
}

void FakeSVControl::SetZoom(double zoom) {
  calls_ << QStringLiteral("SetZoom %1").arg(zoom);
  zoom_ = zoom;
}

void FakeSVControl::SetTracking(bool on) {
  calls_ << QStringLiteral("SetTracking %1").arg(on ? 1 : 0);
  tracking_ = on;
}

void FakeSVControl::pointAt(const QString& name) {
  pointed_ = name;
  if (!tracking_ || entered_ == name) return;
  const QString was = std::exchange(entered_, name);
  if (!was.isEmpty()) raiseLeave(was);
  if (!name.isEmpty() && entered_ == name) raiseEnter(name);
}

void FakeSVControl::click() {
  if (!pointed_.isEmpty()) raiseSelect(pointed_);
}

void FakeSVControl::turnTo(int32_t heading) {
  const int32_t next = normalizeHeading(heading);
  if (next == heading_) return;
  heading_ = next;
  raiseLocation(heading_);
}

}  // namespace platform
