// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/active_rdx.h"

#include "platform/media/playback_clock.h"
#include "platform/mixer/av_source.h"
#include "platform/mixer/compositor.h"
#include "platform/mixer/data_sprite.h"
#include "platform/mixer/image_sequence.h"
#include "platform/mixer/scale_effect.h"
#include "platform/mixer/single_image.h"

#include <QMouseEvent>
#include <QPainter>

#include <functional>

namespace platform {
namespace {

constexpr int kFrameMs = 15;

RdxObject* makeObject(const QString& className, QObject* owner) {
  static const std::pair<const char*, std::function<RdxObject*(QObject*)>> makers[] = {
      {"RDXCOM.SingleImage", [](QObject* o) { return new SingleImage(o); }},
      {"RDXCOM.StaticDataSprite", [](QObject* o) { return new DataSprite("RDXCOM.StaticDataSprite", o); }},
      {"RDXCOM.DynamicDataSprite", [](QObject* o) { return new DataSprite("RDXCOM.DynamicDataSprite", o); }},
      {"RDXCOM.ImageSequence", [](QObject* o) { return new ImageSequence(o); }},
      {"RDXCOM.AVSource", [](QObject* o) { return new AVSource(o); }},
      {"RDXCOM.ScaleEffect", [](QObject* o) { return new ScaleEffect(o); }},
  };
  for (const auto& [name, make] : makers)
    if (className.trimmed().compare(QLatin1String(name), Qt::CaseInsensitive) == 0) return make(owner);
  return nullptr;
}

int buttonsCode(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
         (buttons & Qt::MiddleButton ? 4 : 0);
}

int shiftCode(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
         (modifiers & Qt::AltModifier ? 4 : 0);
}

}  // namespace

ActiveRDX::ActiveRDX(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  loop_.setInterval(kFrameMs);
  loop_.setTimerType(Qt::PreciseTimer);
  connect(&loop_, &QTimer::timeout, this, &ActiveRDX::frame);
}

RdxObject* ActiveRDX::CreateObject(const QString& className) {
  RdxObject* object = makeObject(className, this);
  if (object) objects_ << object;
  return object;
}

void ActiveRDX::release(RdxObject* object) {
  objects_.removeAll(object);
  delete object;
}

void ActiveRDX::releaseAll() {
  for (const QPointer<RdxObject>& object : std::as_const(objects_)) delete object.data();
  objects_.clear();
}

void ActiveRDX::setColor(int colorRef) {
  background_ = rgbFromColorRef(colorRef);
}

void ActiveRDX::composeSurface() {
  if (surface_.size() != size()) surface_ = QImage(size(), QImage::Format_RGB32);
  std::vector<Layer> layers;
  for (const QPointer<RdxObject>& object : std::as_const(objects_)) {
    const auto* sprite = qobject_cast<const DataSprite*>(object.data());
    if (!sprite) continue;
    if (auto layer = sprite->layer()) layers.push_back(*layer);
  }
  composite(surface_, background_, std::move(layers));
}

void ActiveRDX::draw() {
  composeSurface();
  repaint();
}

void ActiveRDX::frame() {
  emit BeforeDraw();
  const int64_t now = playbackClock().nowMs();
  for (const QPointer<RdxObject>& object : std::as_const(objects_))
    if (auto* clip = qobject_cast<AVSource*>(object.data())) clip->advance(now);
  composeSurface();
  update();
  emit AfterDraw();
}

void ActiveRDX::Start() {
  started_ = true;
  updateLoop();
}

void ActiveRDX::Stop() {
  started_ = false;
  updateLoop();
}

void ActiveRDX::updateLoop() {
  if (started_ && isVisible())
    loop_.start();
  else
    loop_.stop();
}

void ActiveRDX::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (surface_.size() == size())
    painter.drawImage(0, 0, surface_);
  else
    painter.fillRect(rect(), QColor(background_));
}

void ActiveRDX::resizeEvent(QResizeEvent*) {
  composeSurface();
}
void ActiveRDX::showEvent(QShowEvent*) {
  updateLoop();
}
void ActiveRDX::hideEvent(QHideEvent*) {
  updateLoop();
}

void ActiveRDX::mousePressEvent(QMouseEvent* event) {
  const QPointF at = event->position() * kTwipsPerPixel;
  emit MouseDown(buttonsCode(event->button()), shiftCode(event->modifiers()), at.x(), at.y());
}

void ActiveRDX::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position() * kTwipsPerPixel;
  emit MouseMove(buttonsCode(event->buttons()), shiftCode(event->modifiers()), at.x(), at.y());
}

}  // namespace platform
