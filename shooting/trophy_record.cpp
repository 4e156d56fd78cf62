// SPDX-License-Identifier: GPL-2.0-or-later
#include "shooting/trophy_record.h"

#include "platform/datetime.h"
#include "platform/records/record_data.h"
#include "platform/runtime.h"
#include "shell/game_state.h"
#include "shell/names.h"

QString trophySizeText(double size) {
  return rt::formatFixed2(size) + u' ' + Game.TrophyUnit;
}

QString trophyWeightText(double weight) {
  return rt::formatFixed2(weight) + QStringLiteral(" lbs");
}

QString trophyRangeText(int yards) {
  return QString::number(yards) + QStringLiteral(" yards");
}

QString trophyTimeText(double gameDate) {
  return rt::formatDate(gameDate, QStringLiteral("dddd h:mm AMPM"));
}

QList<QPair<QString, QString>> newTrophyRecord() {
  const QString species = SpeciesName(Game.CurAnimal);
  return {
      {QStringLiteral("Animaltype"), species},
      {QStringLiteral("Hunter"), Game.HunterName},
      {QStringLiteral("Size"), trophySizeText(Game.TrophySize)},
      {QStringLiteral("Weight"), trophyWeightText(Game.TrophyWeight)},
      {QStringLiteral("Area"), WorldName(Game.WorldNum)},
      {QStringLiteral("Weapon"), WeaponName(Game.CurWeapon)},
      {QStringLiteral("Range"), trophyRangeText(Game.ShotYards)},
      {QStringLiteral("Time"), trophyTimeText(Game.GameDate)},
      {QStringLiteral("Skill"), SkillName()},
  };
}

QStringList trophyHeadings() {
  return {QStringLiteral("Type"),   QStringLiteral("Hunter"),   QStringLiteral("Size"),
          QStringLiteral("Weight"), QStringLiteral("Location"), QStringLiteral("Weapon"),
          QStringLiteral("Range"),  QStringLiteral("Time"),     QStringLiteral("Skill")};
}

QString trophyBookPath() {
  return Game.Fileloc + Game.DbaseDir + QStringLiteral("trophy.isd");
}

QString trophyRowLine(const platform::RecordData& data) {
  QString line;
  for (int field = 1; field <= data.FieldCount(); ++field) line += data.Field(field) + u'\t';
  // Only blanks are trimmed: the tab after the last field stays.
  while (line.startsWith(u' ')) line.remove(0, 1);
  while (line.endsWith(u' ')) line.chop(1);
  return line;
}

QStringList trophyRowCells(const QString& line) {
  QStringList cells = line.split(u'\t');
  while (cells.size() > kTrophyColumns) cells.removeLast();
  return cells;
}

int16_t previousTrophyPage(int16_t page) {
  return page <= 1 ? static_cast<int16_t>(16) : static_cast<int16_t>(page - 1);
}

int16_t nextTrophyPage(int16_t page) {
  return page >= 16 ? static_cast<int16_t>(1) : static_cast<int16_t>(page + 1);
}
