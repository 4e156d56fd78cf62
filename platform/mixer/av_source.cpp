// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mixer/av_source.h"

#include "platform/files.h"
#include "platform/media/media_log.h"
#include "platform/media/playback_clock.h"

#include <algorithm>

namespace platform {

AVSource::AVSource(QObject* parent) : RdxSource(QStringLiteral("RDXCOM.AVSource"), parent) {}

AVSource::~AVSource() {
  if (output_) output_->stop();
}

bool AVSource::Load(const QString& gamePath) {
  Stop();
  frames_.reset();
  track_.reset();
  shown_ = {};
  file_ = files().resolve(gamePath);
  auto reader = std::make_unique<VideoReader>(file_);
  if (!reader->isOpen()) {
    qCDebug(mediaLog) << "clip will not open:" << gamePath;
    return false;
  }
  length_ = reader->lengthMs();
  frames_ = std::make_unique<FramePrefetcher>(std::move(reader));
  frames_->start(0);
  frames_->take(0, shown_);
  return true;
}

void AVSource::Play(int fromMs, int toMs) {
  if (!frames_) return;
  const int64_t now = playbackClock().nowMs();
  if (fromMs < 0 && state_ == kPaused) {
    timeline_.resume(now);
    if (output_) output_->resume();
    state_ = kPlaying;
    return;
  }
  const int64_t from = fromMs < 0 ? 0 : fromMs;
  const int64_t to = toMs < 0 ? length_ : std::min<int64_t>(toMs, length_);
  frames_->start(from);
  frames_->take(from, shown_);
  timeline_.start(from, to, now);
  startSound(from, to);
  state_ = kPlaying;
}

void AVSource::startSound(int64_t from, int64_t to) {
  if (!track_) track_ = std::make_unique<AudioTrack>(file_);
  if (!track_->hasSound()) return;
  if (!output_) output_ = audioDevice().open();
  track_->setRange(from, to);
  output_->start(track_.get());
}

void AVSource::Pause() {
  if (state_ != kPlaying) return;
  // The picture stays the one last drawn: that is what the player saw when pausing.
  timeline_.pause(playbackClock().nowMs());
  if (output_) output_->pause();
  state_ = kPaused;
}

void AVSource::Stop() {
  if (output_) output_->stop();
  timeline_.stop();
  state_ = kIdle;
}

void AVSource::advance(int64_t now) {
  if (state_ != kPlaying) return;
  // The range ends before `to`: a picture due exactly then belongs to what follows.
  frames_->take(std::min(timeline_.position(now), timeline_.to() - 1), shown_);
  if (!timeline_.reachedEnd(now)) return;
  if (output_) output_->stop();
  state_ = kFinished;
}

}  // namespace platform
