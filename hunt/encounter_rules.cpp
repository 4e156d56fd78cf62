// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/encounter_rules.h"

TickEvent eventWithAnimalInPlay(int draw) {
  if (draw <= 10) return TickEvent::AnimalCall;
  if (draw <= 20) return TickEvent::TerrainRemark;
  return TickEvent::AmbientSound;
}

TickEvent eventWithNoAnimal(int draw) {
  if (draw <= 10) return TickEvent::AnimalCall;
  if (draw <= 20) return TickEvent::StandRemark;
  if (draw <= 40) return TickEvent::WindShift;
  if (draw <= 50) return TickEvent::Nothing;
  if (draw <= 80) return TickEvent::Encounter;
  if (draw <= 100) return TickEvent::AmbientSound;
  return TickEvent::Nothing;
}

double encounterNumber(int16_t toolsScore, int16_t callEffect, int16_t opticsBonus) {
  return 50 + toolsScore / 3.0 + callEffect + opticsBonus;
}

QString trailPointKey(const QString& areaLetter, int stand, int point) {
  return (QStringLiteral("~") + areaLetter + QStringLiteral("poi") + QString::number(stand) +
          QString::number(point))
      .toUpper();
}

int animalSoundRecord(int species, int draw) {
  return draw < 25 ? 2 * species - 1 : 2 * species;
}
