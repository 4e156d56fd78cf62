// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/videoshot.h"

#include "platform/media/media_window.h"
#include "platform/mixer/active_rdx.h"
#include "platform/mixer/av_source.h"
#include "platform/mixer/data_sprite.h"
#include "platform/mixer/image_sequence.h"
#include "platform/mixer/scale_effect.h"
#include "platform/random.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "shooting/hit_test.h"
#include "shooting/logging.h"
#include "shooting/scene_layout.h"
#include "shooting/scene_media.h"
#include "shooting/shot_outcome.h"
#include "shooting/sight_picture.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

constexpr int kSightZ = 100;

bool isMouseEvent(const QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: return true;
    default: return false;
  }
}

int16_t pixels(double twips, int twipsPerPixel) {
  return rt::to16(twips / twipsPerPixel);
}

}  // namespace

Videoshot::Videoshot() : ActiveRDX1(new platform::ActiveRDX(this)) {
  setWindowTitle(QStringLiteral("Video Shot"));
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  ActiveRDX1->installEventFilter(this);
  connect(ActiveRDX1, &platform::ActiveRDX::BeforeDraw, this, &Videoshot::ActiveRDX1_BeforeDraw);
  connect(ActiveRDX1, &platform::ActiveRDX::AfterDraw, this, &Videoshot::ActiveRDX1_AfterDraw);
  connect(ActiveRDX1, &platform::ActiveRDX::MouseMove, this, &Videoshot::ActiveRDX1_MouseMove);
  connect(ActiveRDX1, &platform::ActiveRDX::MouseDown, this, &Videoshot::ActiveRDX1_MouseDown);
}

Videoshot::~Videoshot() {
  Form_Unload();
}

void Videoshot::layOut() {
  placeFullScreenScene(*this);
  ActiveRDX1->setGeometry(0, 0, width(), height());
}

void Videoshot::Form_Load() {
  Vrdxinit();
}

Videoshot::Clip Videoshot::makeClip(const QString& folder, const QString& name, bool shown) {
  Clip clip;
  clip.source = ActiveRDX1->create<platform::AVSource>(QStringLiteral("RDXCOM.AVSource"));
  if (!clip.source->Load(clipPath(folder, name))) {
    qCInfo(shootingLog) << "clip missing:" << folder + name;
    ActiveRDX1->release(clip.source);
    return {};
  }
  clip.sprite = ActiveRDX1->create<platform::DataSprite>(QStringLiteral("RDXCOM.DynamicDataSprite"));
  clip.sprite->SetData(clip.source);
  clip.sprite->setDestination(origin_.x(), origin_.y(), display_.width(), display_.height());
  clip.sprite->Show(shown);
  if (scale_ > 1) {
    clip.effect = ActiveRDX1->create<platform::ScaleEffect>(QStringLiteral("RDXCOM.ScaleEffect"));
    clip.effect->setParams(scale_);
    clip.effect->ApplyEffect(clip.sprite);
  }
  return clip;
}

void Videoshot::Vrdxinit() {
  Game.ShotOutcome = 0;
  releaseScene();
  layOut();
  state_ = kNotStarted;
  shotFired_ = false;
  purgeStopped_ = false;
  const QSize screen = sharedScreenPixels();
  scale_ = clipDisplayScale(screen.height(), smallVideoSetting());
  display_ = kClipFrame * scale_;
  origin_ = clipDisplayOrigin(screen, scale_);
  ActiveRDX1->setColor(0);
  // Animals beyond the game species are filmed for their own folder and have no follow-ups.
  if (Game.CurAnimal >= kFirstNonGameAnimal) {
    main_ = makeClip(QStringLiteral("VProt\\"), Game.VideoName, true);
  } else {
    main_ = makeClip(QStringLiteral("Vmain\\"), Game.VideoName, true);
    miss_ = makeClip(QStringLiteral("VEscapes\\"), Game.EscapeVideoName, false);
    hit_ = makeClip(QStringLiteral("VHits\\"), Game.HitVideoName, false);
  }
  Setweaponimg();
}

void Videoshot::Setweaponimg() {
  sight_ = ActiveRDX1->create<platform::ImageSequence>(QStringLiteral("RDXCOM.ImageSequence"));
  loadSightFrames(*ActiveRDX1, *sight_);
  sight_->setPosition(-1000, -1000, kSightZ);
  sight_->Show(true);
}

void Videoshot::vstart() {
  if (main_.source) main_.source->Play();
  state_ = kMainClip;
  ActiveRDX1->setCursor(Qt::BlankCursor);
  ActiveRDX1->Start();
}

void Videoshot::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (state_ == kNotStarted) vstart();
}

bool Videoshot::eventFilter(QObject* watched, QEvent* event) {
  // Clicks made while the clip was being readied are dropped, not fired late.
  if (watched == ActiveRDX1 && !purgeStopped_ && isMouseEvent(event)) return true;
  return QDialog::eventFilter(watched, event);
}

void Videoshot::ActiveRDX1_BeforeDraw() {
  if (!purgeStopped_) {
    // Let every mouse message already queued reach the filter, which drops it.
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    if (state_ >= kMainClip) purgeStopped_ = true;
  }
  if (sight_) sight_->setPosition(sightCorner(cursor_).x(), sightCorner(cursor_).y(), kSightZ);
}

bool Videoshot::ended(const Clip& clip) {
  // A clip that would not load counts as over, so that the scene never waits for it.
  return !clip.source || clip.source->getstate() == platform::AVSource::kFinished;
}

void Videoshot::playFollowUp(Clip& clip, SceneState next) {
  state_ = next;
  if (!clip.source) return;
  clip.sprite->Show(true);
  clip.source->Play();
}

void Videoshot::ActiveRDX1_AfterDraw() {
  if (state_ == kMainClip && ended(main_)) {
    if (Game.EscapeVideoName != QStringLiteral("EMPTY"))
      playFollowUp(miss_, kMissClip);
    else
      GetOut();
  } else if ((state_ == kMissClip && ended(miss_)) || (state_ == kHitClip && ended(hit_))) {
    GetOut();
  }
}

void Videoshot::ActiveRDX1_MouseMove(int, int, double x, double y) {
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  cursor_ = {pixels(x, twips), pixels(y, twips)};
}

void Videoshot::ActiveRDX1_MouseDown(int, int, double x, double y) {
  if (shotFired_ || state_ < kMainClip) return;
  shotFired_ = true;
  if (main_.source) main_.source->Pause();
  recordNumber_ = hitZoneRecordNumber(main_.source ? main_.source->GetCurrentTime() : 0);
  const int twips = std::max<int>(1, Game.TwipsPerPixel);
  takeShot({pixels(x, twips), pixels(y, twips)});
}

void Videoshot::takeShot(QPoint click) {
  click_ = click;
  platform::MCIWnd& media = huntMediaWindow();
  media.setFileName(shotSoundPath());
  media.command(QStringLiteral("Play "));
  if (sight_) {
    playRecoil(*ActiveRDX1, *sight_);
    sight_->Show(false);
  }
  if (main_.source) {
    main_.sprite->Show(false);
    main_.source->Stop();
  }
  if (Game.CurAnimal <= 16) Checkhit();
  if (Game.HitZoneResult <= 15)
    playFollowUp(miss_, kMissClip);
  else
    playFollowUp(hit_, kHitClip);
  const int16_t tag = Game.CurAnimal >= 0 && Game.CurAnimal < kTagCount ? Game.TagsOwned[Game.CurAnimal] : 0;
  Game.ShotOutcome = shotOutcome(Game.ShotOutcome, Game.CurAnimal, tag, Game.HitZoneResult,
                                 {[] { platform::random().Randomize(); }, [] { return platform::Rnd(); }});
}

void Videoshot::Checkhit() {
  ShotMarks marks{Game.HitZoneResult, Game.ZoneValue, Game.ShotQuality};
  try {
    readHitZoneRecord(hitZoneFilePath(), recordNumber_, LastHitZoneRecord);
    Assignvaltoarr();
    const ShotFactors factors{Game.ClothesScore, Game.WeaponRating, Game.SkillLevel};
    scoreShot(zones_, click_ - origin_, scale_, factors, marks, [] { return platform::Rnd(); });
  } catch (const std::exception& error) {
    // The shot keeps what was settled before the failure.
    qCInfo(shootingLog) << "hit test stopped:" << error.what();
  }
  Game.HitZoneResult = marks.hitZoneResult;
  Game.ZoneValue = marks.zoneValue;
  Game.ShotQuality = marks.shotQuality;
}

void Videoshot::Assignvaltoarr() {
  zones_ = LastHitZoneRecord;
}

void Videoshot::GetOut() {
  ActiveRDX1->unsetCursor();
  if (main_.source) main_.source->Stop();
  if (scale_ > 1)
    for (Clip* clip : {&main_, &miss_, &hit_})
      if (clip->sprite) clip->sprite->removeEffect(clip->effect);
  ActiveRDX1->Stop();
  releaseScene();
  done(0);
}

void Videoshot::releaseScene() {
  ActiveRDX1->releaseAll();
  main_ = miss_ = hit_ = {};
  sight_ = nullptr;
}

void Videoshot::Form_Unload() {
  ActiveRDX1->Stop();
  releaseScene();
}
