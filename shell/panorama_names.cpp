// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/panorama_names.h"

#include "shell/game_state.h"

namespace {

bool specialPermit() {
  return Game.XpackMode != 0;
}
QString standWord() {
  return specialPermit() ? QStringLiteral("2snd") : QStringLiteral("stnd");
}

}  // namespace

QString lodgeLocation() {
  return QStringLiteral("3lodge");
}
QString rangeLocation() {
  return QStringLiteral("3range");
}

QString campLocation() {
  return Game.AreaLetter + (specialPermit() ? QStringLiteral("2camp") : QStringLiteral("camp"));
}

QString standLocation(int n) {
  return QStringLiteral("3") + Game.AreaLetter + standWord() + QString::number(n);
}

QString quickHuntLocation() {
  return (specialPermit() ? QStringLiteral("2map") : QStringLiteral("map")) + Game.AreaLetter;
}

QString loadedPlaceLocation(int placeMode) {
  switch (placeMode) {
    case 3: return standLocation(Game.StandNum);
    case 1:
    case 2: return campLocation();
    default: return lodgeLocation();
  }
}

QString panoramaPath(const QString& location) {
  return Game.MediaRoot + QStringLiteral("surnd\\") + Game.ResCode2 + location + QStringLiteral(".svh");
}

QString opticsPanoramaPath(int n) {
  return Game.MediaRoot + QStringLiteral("surnd\\63") + Game.AreaLetter + standWord() + QString::number(n) +
         QStringLiteral(".svh");
}
