// SPDX-License-Identifier: GPL-2.0-or-later
// The target range: the selected weapon fired at a paper target, its holes shown, its sight
// turned with four arrow buttons and the magazine reloaded; the sight settings stay with the
// weapon for the hunt.
#pragma once

#include "shooting/range_rules.h"

#include <QDialog>
#include <QPoint>

#include <array>

class QLabel;
class QPushButton;
namespace platform {
class ActiveRDX;
class DataSprite;
class ImageSequence;
}  // namespace platform

class Trange : public QDialog {
  Q_OBJECT

 public:
  Trange();
  ~Trange() override;

  void Form_Load();
  void RDXInit();
  void TSetweaponimg();
  void ActiveRDX1_MouseMove(int button, int shift, double x, double y);
  void ActiveRDX1_BeforeDraw();
  void ActiveRDX1_MouseDown(int button, int shift, double x, double y);
  void Dup_Click();
  void Ddown_Click();
  void Dleft_Click();
  void Dright_Click();
  void Reloadbut_Click();
  void ebutton_Click();
  void Form_Unload();

  platform::ActiveRDX* ActiveRDX1;
  QLabel* Sightlab;
  QPushButton* Dup;
  QPushButton* ddown;
  QPushButton* Dleft;
  QPushButton* Dright;
  QPushButton* Reloadbut;
  QPushButton* ebutton;

  double sceneScale() const { return k_; }
  const TargetRect& target() const { return target_; }
  QPoint holeOffset() const { return holeOffset_; }
  int shotCount() const { return shotCount_; }
  bool magazineEmpty() const { return empty_; }
  platform::DataSprite* hole(int index) const { return holes_[index]; }
  platform::DataSprite* sightSprite() const { return sightSprite_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void placeControls();
  void makeHoles();
  void adjust(std::array<int16_t, 11>& sights, int step);
  void markHole(QPoint click);

  double k_ = 1;
  TargetRect target_;
  QPoint holeOffset_;
  QPoint click_;
  QPoint cursor_;
  int16_t shotCount_ = 0;
  bool empty_ = false;
  std::array<platform::DataSprite*, kHoleCount> holes_{};
  platform::ImageSequence* sightFrames_ = nullptr;
  platform::DataSprite* sightSprite_ = nullptr;
};
