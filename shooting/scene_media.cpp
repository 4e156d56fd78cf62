// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/scene_media.h"

#include "shell/game_state.h"

namespace {

QString media(const QString& relative) {
  return Game.MediaRoot + relative;
}

QString weaponNumber() {
  return QString::number(Game.CurWeapon);
}

}  // namespace

QString sightPicturePath() {
  return media(QStringLiteral("pict\\") + Game.CurWeaponPic + weaponNumber() + QStringLiteral(".bmp"));
}

QString shotSoundPath() {
  return media(QStringLiteral("sound\\wepsnd") + weaponNumber() + QStringLiteral(".wav"));
}

QString reloadSoundPath() {
  return media(QStringLiteral("sound\\reload") + weaponNumber() + QStringLiteral(".wav"));
}

QString clipPath(const QString& folder, const QString& name) {
  return media(folder + name + QStringLiteral(".avi"));
}

QString hitZoneFilePath() {
  return media(QStringLiteral("Vmain\\") + Game.VideoName + QStringLiteral(".dat"));
}

QString holePicturePath(int index) {
  return media(QStringLiteral("pict\\bullet") + QString::number(index) + QStringLiteral(".bmp"));
}

QString rangePicturePath(const QString& suffix) {
  return media(QStringLiteral("pict\\") + Game.AreaLetter + QStringLiteral("range") + suffix +
               QStringLiteral(".bmp"));
}
