// SPDX-License-Identifier: GPL-2.0-or-later
// A small outfitter's catalogue for the catalogue and inventory tests: three hats and a
// coat, two glasses, a knife, a tent and a first-aid kit, with prices that make the edges.
#pragma once

#include "lodge/catalog_items.h"
#include "lodge/catalog_rules.h"
#include "lodge_fixture.h"

namespace lodge_testing {

enum Item : int16_t {
  kWatchCap = 7,     // Clothing, Hat (slot 1), 15 dollars, second in its category
  kBallCap = 8,      // Clothing, Hat, 1 dollar, first
  kTrapperHat = 9,   // Clothing, Hat, 45 dollars, third
  kParka = 12,       // Clothing, Coat (slot 2), 210 dollars, last
  kPocketGlass = 2,  // Optics (slot 7), 45 dollars, first
  kFieldGlass = 1,   // Optics, 90 dollars, second
  kKnife = 30,       // Tools, Knife (slot 12), 40 dollars
  kTent = 40,        // Camping, Tent (slot 13), 150 dollars
  kFirstAid = 50,    // Safety (slot 16), 100 dollars
  kPatch = 60,       // Safety, no slot (0), 5 dollars
};

inline void writeCatalog() {
  const auto row = [](int id, const char* name, int cost, const char* category, int catNumber, int slot,
                      int sequence) {
    return QStringList{QString::number(id),
                       QString::fromLatin1(name),
                       QStringLiteral("All about the ") + QString::fromLatin1(name),
                       QString::number(cost),
                       QString::fromLatin1(category),
                       QString::number(catNumber),
                       QStringLiteral("sub"),
                       QString::number(slot),
                       QString::number(sequence)};
  };
  writeRecords(QStringLiteral("D:\\Dbase\\catalog.isd"),
               {"ID", "Item", "Item Description", "Cost", "Category", "CatNumber", "Sub-Category",
                "Sub-CatNumber", "sequence"},
               {row(kFieldGlass, "Field Glass", 90, "Optics", 2, 7, 2),
                row(kPocketGlass, "Pocket Glass", 45, "Optics", 2, 7, 1),
                row(kWatchCap, "Wool Watch Cap", 15, "Clothing", 1, 1, 2),
                row(kBallCap, "Ball Cap", 1, "Clothing", 1, 1, 1),
                row(kTrapperHat, "Trapper Hat", 45, "Clothing", 1, 1, 3),
                row(kParka, "Insulated Parka", 210, "Clothing", 1, 2, 4),
                row(kKnife, "Skinning Knife", 40, "Tools", 3, 12, 1),
                row(kTent, "Dome Tent", 150, "Camping", 4, 13, 1),
                row(kFirstAid, "First-Aid Kit", 100, "Safety", 5, 16, 1),
                row(kPatch, "Blaze Patch", 5, "Safety", 5, 0, 2)});
  lodge::LoadItemTables();
}

}  // namespace lodge_testing
