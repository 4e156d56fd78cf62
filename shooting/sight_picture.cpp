// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/sight_picture.h"

#include "platform/mixer/active_rdx.h"
#include "platform/mixer/image_sequence.h"
#include "platform/mixer/single_image.h"
#include "shell/game_state.h"
#include "shooting/scene_media.h"

#include <QThread>

namespace {

// Long enough for each recoil frame to reach the screen; the whole kick takes a tenth of a
// second.
constexpr int kRecoilFrameMs = 15;

void showRecoilFrame(platform::ActiveRDX& mixer, platform::ImageSequence& sequence, int frame) {
  sequence.setCurrentImageNumber(frame);
  mixer.draw();
  // Only a frame on screen needs time to be seen.
  if (mixer.isVisible()) QThread::msleep(kRecoilFrameMs);
}

}  // namespace

void loadSightFrames(platform::ActiveRDX& mixer, platform::ImageSequence& sequence) {
  auto* strip = mixer.create<platform::SingleImage>(QStringLiteral("RDXCOM.SingleImage"));
  sequence.Initialize(kSightFrames);
  if (!strip || !strip->Load(sightPicturePath())) return;
  strip->setTransparencyColor(kSightKeyColour);
  const int width = strip->picture()->width() / kSightFrames;
  const int height = strip->picture()->height();
  for (int frame = 0; frame < kSightFrames; ++frame)
    sequence.setElementAt(frame, strip, frame * width, 0, width, height);
}

void playRecoil(platform::ActiveRDX& mixer, platform::ImageSequence& sequence) {
  for (int frame = 0; frame < kSightFrames; ++frame) showRecoilFrame(mixer, sequence, frame);
  sequence.setCurrentImageNumber(0);
  mixer.draw();
}

QPoint sightCorner(QPoint cursor) {
  return cursor - QPoint(Game.SightX, Game.SightY);
}
