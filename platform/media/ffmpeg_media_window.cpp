// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/media/ffmpeg_media_window.h"

#include "platform/files.h"
#include "platform/media/media_errors.h"
#include "platform/media/media_log.h"
#include "platform/media/playback_clock.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QThread>

#include <algorithm>

namespace platform {
namespace {

constexpr int kTickMs = 10;
// A play that waits gives up this long after its sound should have ended, so a clock that
// stands still can never hold the game.
constexpr int64_t kWaitGraceMs = 1000;

}  // namespace

FfmpegMediaWindow::FfmpegMediaWindow(QWidget* parent) : MCIWnd(parent) {
  ticker_.setInterval(kTickMs);
  ticker_.setTimerType(Qt::PreciseTimer);
  connect(&ticker_, &QTimer::timeout, this, &FfmpegMediaWindow::poll);
}

FfmpegMediaWindow::~FfmpegMediaWindow() {
  if (output_) output_->stop();
}

void FfmpegMediaWindow::setFileName(const QString& gamePath) {
  close();
  if (gamePath.trimmed().isEmpty()) return;
  file_ = files().resolve(gamePath);
  AvInput probe(file_);
  if (probe.error()) {
    qCDebug(mediaLog) << "cannot open" << gamePath << probe.error();
    fail(probe.error());
    return;
  }
  fileName_ = gamePath;
  length_ = probe.lengthMs();
  if (probe.video()) video_ = std::make_unique<VideoReader>(file_);
  if (video_ && video_->isOpen()) showPictureAt(0);
  rest_ = 0;
  setMode(kModeStopped);
}

int FfmpegMediaWindow::command(const QString& text) {
  const MediaCommand parsed = parseMediaCommand(text);
  if (parsed.verb == MediaCommand::Verb::Unknown) return fail(kMediaUnrecognizedCommand);
  if (!parsed.valid) return fail(kMediaMissingParameter);
  return run(parsed);
}

int FfmpegMediaWindow::run(const MediaCommand& command) {
  using Verb = MediaCommand::Verb;
  if (command.verb == Verb::Close) {
    close();
    return 0;
  }
  // Without an open file there is nothing to drive; the open already reported why.
  if (mode_ == kModeNotReady) return kMediaDeviceNotReady;
  switch (command.verb) {
    case Verb::Play: return play(command);
    case Verb::Pause: pause(); return 0;
    case Verb::Resume: resume(); return 0;
    case Verb::Stop: stop(); return 0;
    case Verb::Seek: return seek(command);
    default: return kMediaUnrecognizedCommand;
  }
}

int64_t FfmpegMediaWindow::position() const {
  if (mode_ != kModePlaying && mode_ != kModePaused) return rest_;
  return timeline_.position(playbackClock().nowMs());
}

int FfmpegMediaWindow::play(const MediaCommand& command) {
  const int64_t here = position() >= length_ ? 0 : position();
  const int64_t from = command.from.value_or(here);
  const int64_t to = std::min(command.to.value_or(length_), length_);
  if (from > length_) return fail(kMediaOutOfRange);
  if (output_) output_->stop();  // a new play cuts the old one off
  if (!track_) track_ = std::make_unique<AudioTrack>(file_);
  if (!output_) output_ = audioDevice().open();
  if (track_->hasSound()) {
    track_->setRange(from, to);
    output_->start(track_.get());
  }
  timeline_.start(from, to, playbackClock().nowMs());
  showPictureAt(from);
  setMode(kModePlaying);
  ticker_.start();
  if (command.wait) waitUntilDone();
  return 0;
}

void FfmpegMediaWindow::pause() {
  if (mode_ != kModePlaying) return;
  timeline_.pause(playbackClock().nowMs());
  output_->pause();
  ticker_.stop();
  setMode(kModePaused);
}

void FfmpegMediaWindow::resume() {
  if (mode_ != kModePaused) return;
  timeline_.resume(playbackClock().nowMs());
  output_->resume();
  ticker_.start();
  setMode(kModePlaying);
}

void FfmpegMediaWindow::stop() {
  if (mode_ == kModePlaying || mode_ == kModePaused) rest_ = position();
  if (output_) output_->stop();
  timeline_.stop();
  ticker_.stop();
  setMode(kModeStopped);
}

void FfmpegMediaWindow::close() {
  if (output_) output_->stop();
  timeline_.stop();
  ticker_.stop();
  output_.reset();
  track_.reset();
  video_.reset();
  shown_ = {};
  hasUpcoming_ = false;
  fileName_.clear();
  length_ = rest_ = 0;
  update();
  setMode(kModeNotReady);
}

int FfmpegMediaWindow::seek(const MediaCommand& command) {
  const int64_t to = command.to.value_or(0);
  if (to > length_) return fail(kMediaOutOfRange);
  stop();
  rest_ = to;
  showPictureAt(to);
  return 0;
}

void FfmpegMediaWindow::waitUntilDone() {
  QElapsedTimer guard;
  guard.start();
  const int64_t limit = timeline_.to() - timeline_.from() + kWaitGraceMs;
  while (mode_ == kModePlaying) {
    poll();
    if (mode_ != kModePlaying) break;
    if (guard.elapsed() > limit) finish();
    QThread::usleep(500);
  }
}

void FfmpegMediaWindow::poll() {
  if (mode_ != kModePlaying) return;
  const int64_t now = playbackClock().nowMs();
  catchUpPictures(timeline_.position(now));
  if (timeline_.reachedEnd(now)) finish();
}

void FfmpegMediaWindow::finish() {
  rest_ = timeline_.to();
  if (output_) output_->stop();
  timeline_.stop();
  ticker_.stop();
  setMode(kModeStopped);
}

void FfmpegMediaWindow::showPictureAt(int64_t ms) {
  if (!video_ || !video_->isOpen()) return;
  video_->seek(ms);
  hasUpcoming_ = video_->next(upcoming_);
  if (hasUpcoming_) {
    shown_ = upcoming_;
    upcoming_ = {};
    hasUpcoming_ = video_->next(upcoming_);
  }
  update();
}

void FfmpegMediaWindow::catchUpPictures(int64_t ms) {
  bool changed = false;
  while (hasUpcoming_ && upcoming_.ptsMs <= ms) {
    std::swap(shown_, upcoming_);
    hasUpcoming_ = video_->next(upcoming_);
    changed = true;
  }
  if (changed) update();
}

void FfmpegMediaWindow::paintEvent(QPaintEvent*) {
  if (shown_.image.isNull()) return;
  QPainter painter(this);
  painter.drawImage(rect(), shown_.image);
}

void FfmpegMediaWindow::setMode(int mode) {
  if (mode == mode_) return;
  mode_ = mode;
  emit ExtendedModeChange(mode);
}

int FfmpegMediaWindow::fail(int error) {
  emit Error(error, mediaErrorText(error));
  return error;
}

class FfmpegMediaWindows final : public MediaWindows {
 public:
  MCIWnd* create(QWidget* parent) override { return new FfmpegMediaWindow(parent); }
};

template <>
std::unique_ptr<MediaWindows> Service<MediaWindows>::makeDefault() {
  return std::make_unique<FfmpegMediaWindows>();
}

}  // namespace platform
