// SPDX-License-Identifier: GPL-2.0-or-later
// The order of the values in a saved game and a saved equipment set: one table that both
// the writer and the reader walk, so the two can never disagree.
#pragma once

#include "platform/text_file.h"

#include <QString>

#include <functional>
#include <vector>

// The kind letter of a save file.
inline constexpr char kGameKind = 'G';
inline constexpr char kEquipmentKind = 'E';

struct SaveField {
  const char* name;
  bool gameOnly;  // written and read only in a game file
  int lines;
  std::function<void(rt::PrintFile&)> write;
  std::function<void(rt::ListInput&)> read;  // stores each value as soon as it is read
};

// Every field of a game file in file order; the equipment set is the leading part.
const std::vector<SaveField>& saveFileLayout();

// Lines of a file of the given kind (161 for a game, 102 for an equipment set).
int saveFileLines(char kind);
