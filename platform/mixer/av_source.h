// SPDX-License-Identifier: GPL-2.0-or-later
// "RDXCOM.AVSource": a clip whose pictures a sprite shows and whose sound plays along, timed
// by the playback clock and moved on by the mixer at each frame.
#pragma once

#include "platform/media/audio_output.h"
#include "platform/media/audio_track.h"
#include "platform/media/playback_timeline.h"
#include "platform/mixer/frame_prefetcher.h"
#include "platform/mixer/rdx_object.h"

#include <filesystem>
#include <memory>

namespace platform {

class AVSource final : public RdxSource {
  Q_OBJECT

 public:
  enum State { kIdle = 0, kFinished = 1, kPlaying = 2, kPaused = 3 };

  explicit AVSource(QObject* parent = nullptr);
  ~AVSource() override;

  // Opens a clip by game path and shows its first picture; false when it will not open.
  Q_INVOKABLE bool Load(const QString& gamePath);
  // Plays [fromMs, toMs); -1 for from resumes a paused clip or starts at the beginning, -1 for
  // to plays to the end.
  Q_INVOKABLE void Play(int fromMs = -1, int toMs = -1);
  Q_INVOKABLE void Pause();
  Q_INVOKABLE void Stop();
  // The time of the picture on screen, in milliseconds.
  Q_INVOKABLE int GetCurrentTime() const { return int(shown_.ptsMs); }
  // 1 once the clip has played to its end; see State.
  Q_INVOKABLE int getstate() const { return state_; }
  Q_INVOKABLE int GetLength() const { return int(length_); }

  // Catches up with the clock reading `now`; the mixer calls it before each frame.
  void advance(int64_t now);
  const QImage* picture() const override { return shown_.image.isNull() ? nullptr : &shown_.image; }

 private:
  void startSound(int64_t from, int64_t to);

  std::filesystem::path file_;
  std::unique_ptr<FramePrefetcher> frames_;
  std::unique_ptr<AudioTrack> track_;
  std::unique_ptr<AudioOutput> output_;
  PlaybackTimeline timeline_;
  VideoFrame shown_;
  int64_t length_ = 0;
  State state_ = kIdle;
};

}  // namespace platform
