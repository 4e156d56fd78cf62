// SPDX-License-Identifier: GPL-2.0-or-later
// The real media window: FFmpeg decodes, the sound device (or silence) plays, the playback
// clock keeps time, and a clip's pictures are painted into the widget.
#pragma once

#include "platform/media/audio_output.h"
#include "platform/media/audio_track.h"
#include "platform/media/media_command.h"
#include "platform/media/media_window.h"
#include "platform/media/playback_timeline.h"
#include "platform/media/video_reader.h"

#include <QTimer>

#include <filesystem>
#include <memory>

namespace platform {

class FfmpegMediaWindow final : public MCIWnd {
  Q_OBJECT

 public:
  explicit FfmpegMediaWindow(QWidget* parent = nullptr);
  ~FfmpegMediaWindow() override;

  void setFileName(const QString& gamePath) override;
  QString fileName() const override { return fileName_; }
  int command(const QString& text) override;
  int64_t length() const override { return length_; }
  int64_t position() const override;
  int mode() const override { return mode_; }

  // Catches up with the clock: shows the picture due and ends a play that reached its end.
  // The window's own timer calls it; tests call it after moving the clock.
  void poll();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int run(const MediaCommand& command);
  int play(const MediaCommand& command);
  void pause();
  void resume();
  void stop();
  void close();
  int seek(const MediaCommand& command);
  void waitUntilDone();
  void finish();
  void showPictureAt(int64_t ms);
  void catchUpPictures(int64_t ms);
  void setMode(int mode);
  int fail(int error);

  QString fileName_;
  std::filesystem::path file_;
  int64_t length_ = 0;
  int mode_ = kModeNotReady;
  int64_t rest_ = 0;  // the position while not playing
  PlaybackTimeline timeline_;
  std::unique_ptr<AudioOutput> output_;
  std::unique_ptr<AudioTrack> track_;  // opened on the first play
  std::unique_ptr<VideoReader> video_;
  VideoFrame shown_;
  VideoFrame upcoming_;
  bool hasUpcoming_ = false;
  QTimer ticker_;
};

}  // namespace platform
