// SPDX-License-Identifier: GPL-2.0-or-later
#include "hunt/location_table.h"

#include "hunt/logging.h"
#include "platform/records/record_data.h"
#include "platform/runtime.h"
#include "shell/game_state.h"

namespace {

int16_t numberField(const platform::RecordData& record, const char* name) {
  try {
    return rt::to16(rt::parseNumber(record.Field(QString::fromLatin1(name))));
  } catch (const std::exception&) {
    return 0;  // a damaged field reads as 0, as an empty one does
  }
}

}  // namespace

std::optional<LocationRecord> findLocation(const QString& hotspot) {
  try {
    platform::RecordData table;
    table.SetDatabaseName(Game.MediaRoot + Game.DbaseDir + Game.AreaLetter + QStringLiteral("paths.isd"));
    table.SetCriteria(QStringLiteral("Field(\"Hypername\") = \"") + hotspot + QStringLiteral("\""));
    table.FindFirst();
    if (table.NoMatch()) return std::nullopt;
    LocationRecord place;
    place.hypername = table.Field(QStringLiteral("Hypername"));
    place.heading = numberField(table, "Location");
    place.loctype = numberField(table, "Loctype");
    place.filejump = table.Field(QStringLiteral("filejump")).trimmed();
    place.description = table.Field(QStringLiteral("Description"));
    place.range = numberField(table, "Range");
    place.yards = numberField(table, "Yards");
    place.terrain = numberField(table, "Terrain");
    return place;
  } catch (const platform::RecordError& error) {
    qCWarning(huntLog) << "location table:" << error.what();
    return std::nullopt;
  }
}
