// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the criterion text `Field("Name") = value` that selects records: a value in double
// quotes is text, anything else must be a number.
#pragma once

#include <QString>

namespace platform {

struct Criterion {
  enum class Kind { Text, Number };
  QString field;
  Kind kind = Kind::Text;
  QString text;
  double number = 0;
};

// Throws CriterionError, naming what is wrong, for any other shape. The text of a quoted
// value runs from the first to the last double quote, so a quote inside it is kept.
Criterion parseCriterion(const QString& text);

}  // namespace platform
