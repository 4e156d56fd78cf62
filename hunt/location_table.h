// SPDX-License-Identifier: GPL-2.0-or-later
// The world's table of places: for each hotspot name, where it leads, what kind of place that
// is, and what the hunter is told about it.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

struct LocationRecord {
  QString hypername;
  int32_t heading = 0;  // whole degrees the destination opens at
  int16_t loctype = 0;
  QString filejump;
  QString description;
  int16_t range = 0;
  int16_t yards = 0;
  int16_t terrain = 0;
};

// Reads the record of `hotspot` from the current world's paths.isd; none when it is not there
// or the table cannot be read.
std::optional<LocationRecord> findLocation(const QString& hotspot);
