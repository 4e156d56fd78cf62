// SPDX-License-Identifier: GPL-2.0-or-later
// The video shot: the animal's clip full screen with the weapon's sight over it, one shot,
// the hit test against the clip's hit zones, the follow-up clip, and the result codes left
// for the aftermath.
#pragma once

#include "shooting/hit_zone_file.h"

#include <QDialog>
#include <QPoint>

#include <array>

namespace platform {
class ActiveRDX;
class AVSource;
class DataSprite;
class ImageSequence;
class ScaleEffect;
}  // namespace platform

class Videoshot : public QDialog {
  Q_OBJECT

 public:
  enum SceneState { kNotStarted = 0, kMainClip = 1, kMissClip = 2, kHitClip = 3 };

  Videoshot();
  ~Videoshot() override;

  void Form_Load();
  void Vrdxinit();
  void vstart();
  void Setweaponimg();
  void ActiveRDX1_BeforeDraw();
  void ActiveRDX1_AfterDraw();
  void ActiveRDX1_MouseMove(int button, int shift, double x, double y);
  void ActiveRDX1_MouseDown(int button, int shift, double x, double y);
  void Checkhit();
  void Assignvaltoarr();
  void GetOut();
  void Form_Unload();

  platform::ActiveRDX* ActiveRDX1;

  int state() const { return state_; }
  int displayScale() const { return scale_; }
  QPoint displayOrigin() const { return origin_; }
  int recordNumber() const { return recordNumber_; }
  bool shotFired() const { return shotFired_; }
  bool purging() const { return !purgeStopped_; }
  const HitZoneRecord& zones() const { return zones_; }

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Clip {
    platform::AVSource* source = nullptr;  // null when the clip is not loaded
    platform::DataSprite* sprite = nullptr;
    platform::ScaleEffect* effect = nullptr;
  };

  void layOut();
  Clip makeClip(const QString& folder, const QString& name, bool shown);
  void playFollowUp(Clip& clip, SceneState next);
  static bool ended(const Clip& clip);
  void takeShot(QPoint click);
  void releaseScene();

  Clip main_, miss_, hit_;
  platform::ImageSequence* sight_ = nullptr;
  HitZoneRecord zones_{};
  int recordNumber_ = 0;
  QPoint click_;
  QPoint cursor_;
  QPoint origin_;
  QSize display_;
  int scale_ = 1;
  bool shotFired_ = false;
  int state_ = kNotStarted;
  bool purgeStopped_ = false;
};
