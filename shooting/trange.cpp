// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/trange.h"

#include "platform/media/media_window.h"
#include "platform/mixer/active_rdx.h"
#include "platform/mixer/data_sprite.h"
#include "platform/mixer/image_sequence.h"
#include "platform/mixer/single_image.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/hunt_media.h"
#include "shooting/scene_layout.h"
#include "shooting/scene_media.h"
#include "shooting/sight_picture.h"

#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kSightZ = 100;
constexpr int kHoleBaseZ = 25;

int16_t pixels(double twips) {
  return rt::to16(twips / std::max<int>(1, Game.TwipsPerPixel));
}

}  // namespace

Trange::Trange()
    : ActiveRDX1(new platform::ActiveRDX(this)),
      Sightlab(new QLabel(QStringLiteral("Sight Adjustment"), this)),
      Dup(new QPushButton(QString(QChar(0x25b2)), this)),
      ddown(new QPushButton(QString(QChar(0x25bc)), this)),
      Dleft(new QPushButton(QString(QChar(0x25c0)), this)),
      Dright(new QPushButton(QString(QChar(0x25b6)), this)),
      Reloadbut(new QPushButton(QStringLiteral("RELOAD"), this)),
      ebutton(new QPushButton(QStringLiteral("Exit"), this)) {
  setWindowTitle(QStringLiteral("Target Range"));
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  setStyleSheet(QStringLiteral(
      "QLabel { color: #f4e8c8; background: rgba(30, 24, 16, 190); padding: 2px; }"
      "QPushButton { background: #5a4630; color: #f4e8c8; border: 1px solid #c8b07a; border-radius: 3px; }"
      "QPushButton:pressed { background: #7a6040; }"));
  Sightlab->setAlignment(Qt::AlignCenter);
  Reloadbut->hide();
  connect(ActiveRDX1, &platform::ActiveRDX::BeforeDraw, this, &Trange::ActiveRDX1_BeforeDraw);
  connect(ActiveRDX1, &platform::ActiveRDX::MouseMove, this, &Trange::ActiveRDX1_MouseMove);
  connect(ActiveRDX1, &platform::ActiveRDX::MouseDown, this, &Trange::ActiveRDX1_MouseDown);
  connect(Dup, &QPushButton::clicked, this, &Trange::Dup_Click);
  connect(ddown, &QPushButton::clicked, this, &Trange::Ddown_Click);
  connect(Dleft, &QPushButton::clicked, this, &Trange::Dleft_Click);
  connect(Dright, &QPushButton::clicked, this, &Trange::Dright_Click);
  connect(Reloadbut, &QPushButton::clicked, this, &Trange::Reloadbut_Click);
  connect(ebutton, &QPushButton::clicked, this, &Trange::ebutton_Click);
  resize(1024, 768);
}

Trange::~Trange() {
  Form_Unload();
}

void Trange::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  placeControls();
}

void Trange::placeControls() {
  ActiveRDX1->setGeometry(0, 0, width(), height());
  // Every target of both sets starts right of x = 89 on the 640-pixel picture: the controls
  // stand in that strip, at the bottom.
  const int strip = static_cast<int>(89.0 * width() / kRangeDesignWidth);
  const int unit = std::max(20, std::min((strip - 16) / 4, height() / 24));
  const int left = (strip - 4 * unit) / 2;
  const int cross = left + unit / 2;
  const int exitTop = height() - 12 - unit;
  const int reloadTop = exitTop - unit - 8;
  const int downTop = reloadTop - 12 - unit;
  ebutton->setGeometry(left, exitTop, 4 * unit, unit);
  Reloadbut->setGeometry(left, reloadTop, 4 * unit, unit);
  ddown->setGeometry(cross + unit, downTop, unit, unit);
  Dleft->setGeometry(cross, downTop - unit, unit, unit);
  Dright->setGeometry(cross + 2 * unit, downTop - unit, unit, unit);
  Dup->setGeometry(cross + unit, downTop - 2 * unit, unit, unit);
  Sightlab->setGeometry(std::max(0, left - unit / 2), downTop - 3 * unit - 6, 5 * unit, unit);
}

void Trange::Form_Load() {
  RDXInit();
}

void Trange::RDXInit() {
  // The hunting screen builds the scene again before showing it; start from nothing, full
  // screen.
  Form_Unload();
  placeFullScreenScene(*this);
  placeControls();
  shotCount_ = 0;
  empty_ = false;
  Reloadbut->hide();
  const QSize screen = sharedScreenPixels();
  k_ = static_cast<double>(Game.ScreenWidth) / std::max<int>(1, Game.TwipsPerPixel) / kRangeDesignWidth;
  if (const auto layout = targetLayout(Game.XpackMode != 0, Game.CurWeapon)) {
    target_ = scaledTarget(layout->design, k_);
    holeOffset_ = layout->holeOffset;
  }
  ActiveRDX1->setColor(0);
  auto* range = ActiveRDX1->create<platform::SingleImage>(QStringLiteral("RDXCOM.SingleImage"));
  if (range->Load(rangePicturePath(Game.ScreenState.trimmed())))
    // The mixer blows pictures up by whole factors only; the range is stretched by k, as the
    // targets are.
    range->setImage(range->picture()->scaled(range->picture()->size() * k_, Qt::IgnoreAspectRatio,
                                             Qt::SmoothTransformation));
  auto* background = ActiveRDX1->create<platform::DataSprite>(QStringLiteral("RDXCOM.StaticDataSprite"));
  background->SetData(range);
  background->setPosition(0, 0, 0);
  background->setDestination(0, 0, screen.width(), screen.height());
  makeHoles();
  TSetweaponimg();
  // The sight is the pointer over the range.
  ActiveRDX1->setCursor(Qt::BlankCursor);
  ActiveRDX1->Start();
}

void Trange::makeHoles() {
  for (int i = 0; i < kHoleCount; ++i) {
    auto* picture = ActiveRDX1->create<platform::SingleImage>(QStringLiteral("RDXCOM.SingleImage"));
    picture->Load(holePicturePath(i));
    picture->setTransparencyColor(kHoleKeyColour);
    holes_[i] = ActiveRDX1->create<platform::DataSprite>(QStringLiteral("RDXCOM.StaticDataSprite"));
    holes_[i]->SetData(picture);
    holes_[i]->Show(false);
  }
}

void Trange::TSetweaponimg() {
  sightFrames_ = ActiveRDX1->create<platform::ImageSequence>(QStringLiteral("RDXCOM.ImageSequence"));
  loadSightFrames(*ActiveRDX1, *sightFrames_);
  sightSprite_ = ActiveRDX1->create<platform::DataSprite>(QStringLiteral("RDXCOM.StaticDataSprite"));
  sightSprite_->SetData(sightFrames_);
  const QImage* frame = sightFrames_->picture();
  sightSprite_->setDestination(-1000, -1000, frame ? frame->width() : 0, frame ? frame->height() : 0);
  sightSprite_->setPosition(-1000, -1000, kSightZ);
  sightSprite_->Prepare();
}

void Trange::ActiveRDX1_MouseMove(int, int, double x, double y) {
  cursor_ = {pixels(x), pixels(y)};
}

void Trange::ActiveRDX1_BeforeDraw() {
  if (sightSprite_) sightSprite_->setPosition(sightCorner(cursor_).x(), sightCorner(cursor_).y(), kSightZ);
}

void Trange::ActiveRDX1_MouseDown(int, int, double x, double y) {
  if (empty_) return;
  click_ = {pixels(x), pixels(y)};
  platform::MCIWnd& media = huntMediaWindow();
  media.setFileName(shotSoundPath());
  media.command(QStringLiteral("Play "));
  if (sightFrames_) playRecoil(*ActiveRDX1, *sightFrames_);
  if (onTarget(target_, click_)) markHole(click_);
  shotCount_ = rt::add16(shotCount_, 1);
  if (shotCount_ == Game.SightZ) {
    Reloadbut->show();
    if (sightSprite_) sightSprite_->Show(false);
    ActiveRDX1->unsetCursor();
    empty_ = true;
  }
}

void Trange::markHole(QPoint click) {
  const int index = shotCount_;
  if (index < 0 || index >= kHoleCount || !holes_[index]) return;
  const int weapon = Game.CurWeapon;
  const QPoint at = holePosition(click, Game.SightElev.at(weapon), Game.SightWind.at(weapon), holeOffset_);
  holes_[index]->setPosition(at.x(), at.y(), kHoleBaseZ + index);
  holes_[index]->Show(true);
}

void Trange::adjust(std::array<int16_t, 11>& sights, int step) {
  const int weapon = Game.CurWeapon;
  if (weapon < 0 || weapon >= kSightCount) return;
  sights[weapon] = adjustedSight(sights[weapon], step);
}

void Trange::Dup_Click() {
  adjust(Game.SightElev, -1);
}

void Trange::Ddown_Click() {
  adjust(Game.SightElev, +1);
}

void Trange::Dleft_Click() {
  adjust(Game.SightWind, -1);
}

void Trange::Dright_Click() {
  adjust(Game.SightWind, +1);
}

void Trange::Reloadbut_Click() {
  for (platform::DataSprite* hole : holes_)
    if (hole) hole->Show(false);
  shotCount_ = 0;
  empty_ = false;
  Reloadbut->hide();
  platform::MCIWnd& media = huntMediaWindow();
  media.setFileName(reloadSoundPath());
  media.command(QStringLiteral("Play wait"));
  media.command(QStringLiteral("Close"));
  if (sightSprite_) sightSprite_->Show(true);
  ActiveRDX1->setCursor(Qt::BlankCursor);
}

void Trange::ebutton_Click() {
  close();
}

void Trange::Form_Unload() {
  ActiveRDX1->Stop();
  ActiveRDX1->releaseAll();
  holes_.fill(nullptr);
  sightFrames_ = nullptr;
  sightSprite_ = nullptr;
}
