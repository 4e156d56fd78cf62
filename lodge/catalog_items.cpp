// SPDX-License-Identifier: GPL-2.0-or-later
#include "lodge/catalog_items.h"

#include "lodge/logging.h"
#include "platform/records/record_data.h"
#include "platform/runtime.h"

namespace lodge {
namespace {

ItemTables& tables() {
  static ItemTables t;
  return t;
}

// A field the file lacks reads as empty, so an item shows what its record does have.
QString textField(const platform::RecordData& data, const char* field) {
  try {
    return data.Field(QString::fromLatin1(field)).trimmed();
  } catch (const platform::RecordError&) {
    return QString();
  }
}

// A number field that will not read counts as 0, as an empty one does.
int16_t numberField(const platform::RecordData& data, const char* field) {
  try {
    return rt::to16(rt::parseNumber(textField(data, field)));
  } catch (const std::exception&) {
    return 0;
  }
}

}  // namespace

QString catalogPath() {
  return Game.MediaRoot + Game.DbaseDir + QStringLiteral("catalog.isd");
}

CatalogItem itemFromRecord(const platform::RecordData& data) {
  CatalogItem item;
  item.id = numberField(data, "ID");
  item.name = textField(data, "Item");
  item.description = textField(data, "Item Description");
  item.cost = numberField(data, "Cost");
  item.catNumber = numberField(data, "CatNumber");
  item.subCatNumber = numberField(data, "Sub-CatNumber");
  return item;
}

std::optional<CatalogItem> Lookupitem(int item) {
  try {
    platform::RecordData data;
    data.SetDatabaseName(catalogPath());
    data.SetCriteria(QStringLiteral("Field(\"ID\") = ") + rt::numberText(item));
    data.FindFirst();
    if (data.NoMatch()) return std::nullopt;
    return itemFromRecord(data);
  } catch (const platform::RecordError& e) {
    qCWarning(lodgeLog) << "catalogue unreadable:" << e.what();
    return std::nullopt;
  }
}

void LoadItemTables() {
  ItemTables fresh;
  fresh.tabs.fill(-1);
  fresh.source = catalogPath();
  try {
    platform::RecordData data;
    data.SetDatabaseName(catalogPath());
    data.SetCriteria(QString());
    for (data.FindFirst(); !data.NoMatch(); data.FindNext()) {
      const CatalogItem item = itemFromRecord(data);
      if (item.id <= 0 || item.id >= kOwnedItemCount) continue;
      fresh.names[item.id] = item.name;
      fresh.tabs[item.id] = static_cast<int16_t>(item.catNumber - 1);
    }
  } catch (const platform::RecordError& e) {
    qCWarning(lodgeLog) << "catalogue unreadable:" << e.what();
  }
  tables() = std::move(fresh);
}

const ItemTables& itemTables() {
  if (tables().source != catalogPath()) LoadItemTables();
  return tables();
}

}  // namespace lodge
