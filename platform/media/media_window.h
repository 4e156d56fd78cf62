// SPDX-License-Identifier: GPL-2.0-or-later
// The media window (MCIWnd): a widget that plays one WAV or AVI file at a time, driven by
// command strings, reporting its mode changes and errors as events on the interface thread.
#pragma once

#include "platform/service.h"

#include <QWidget>

#include <cstdint>

namespace platform {

// The mode numbers of the classic multimedia command layer; screens compare against them.
enum MediaMode : int {
  kModeNotReady = 524,
  kModeStopped = 525,
  kModePlaying = 526,
  kModePaused = 529,
};

class MCIWnd : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Opens a game path ("D:\sound\shot1.wav"); an empty name closes. A file that is missing
  // or will not decode raises Error and leaves the window closed. A good file reports the
  // stopped mode at once, before any play, as the device does while a clip opens.
  virtual void setFileName(const QString& gamePath) = 0;
  virtual QString fileName() const = 0;
  // Carries out a command string; returns 0 or a media error number. Positions are in
  // milliseconds. "wait" returns only when the command is done.
  virtual int command(const QString& text) = 0;
  virtual int64_t length() const = 0;
  virtual int64_t position() const = 0;
  virtual int mode() const = 0;

 signals:
  void Error(int error, const QString& text);
  void ExtendedModeChange(int mode);
};

// Makes media windows; tests put a maker of fakes in its place.
class MediaWindows {
 public:
  virtual ~MediaWindows() = default;
  virtual MCIWnd* create(QWidget* parent) = 0;
};

template <>
std::unique_ptr<MediaWindows> Service<MediaWindows>::makeDefault();

inline MCIWnd* createMediaWindow(QWidget* parent) {
  return Service<MediaWindows>::get().create(parent);
}

}  // namespace platform
