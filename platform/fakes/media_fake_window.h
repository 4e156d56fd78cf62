// SPDX-License-Identifier: GPL-2.0-or-later
// A media window that plays nothing: it records the file names and commands it is given and
// raises the mode changes and errors a test asks for.
#pragma once

#include "platform/media/media_window.h"

#include <QList>
#include <QPointer>
#include <QStringList>

namespace platform {

class FakeMediaWindow final : public MCIWnd {
  Q_OBJECT

 public:
  using MCIWnd::MCIWnd;

  void setFileName(const QString& gamePath) override;
  QString fileName() const override { return fileName_; }
  int command(const QString& text) override;
  int64_t length() const override { return length_; }
  int64_t position() const override { return position_; }
  int mode() const override { return mode_; }

  // What the game sent, in order: "file <path>" for each file name, then each command as written.
  const QStringList& log() const { return log_; }
  QStringList commands() const;

  void setLength(int64_t ms) { length_ = ms; }
  void setPosition(int64_t ms) { position_ = ms; }
  // Takes the window into `mode` and raises ExtendedModeChange, as the device would.
  void raiseModeChange(int mode);
  void raiseError(int error);

 private:
  QString fileName_;
  QStringList log_;
  int64_t length_ = 0;
  int64_t position_ = 0;
  int mode_ = kModeNotReady;
};

// Makes fake windows and keeps track of them, so a test can reach the window a screen made.
class FakeMediaWindows final : public MediaWindows {
 public:
  MCIWnd* create(QWidget* parent) override;
  FakeMediaWindow* last() const { return made_.isEmpty() ? nullptr : made_.back().data(); }
  const QList<QPointer<FakeMediaWindow>>& made() const { return made_; }

 private:
  QList<QPointer<FakeMediaWindow>> made_;
};

}  // namespace platform
