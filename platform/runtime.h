// SPDX-License-Identifier: GPL-2.0-or-later
// The numeric semantics the game relies on: 16-bit integers that overflow loudly,
// Int toward minus infinity, banker's rounding on conversion and the number-to-text form.
#pragma once

#include <QString>

#include <cstdint>
#include <stdexcept>

namespace rt {

// Raised when a value does not fit a 16-bit integer; the value is never stored.
class OverflowError : public std::runtime_error {
 public:
  OverflowError() : std::runtime_error("Overflow") {}
};

// Raised when an index lies outside its array; nothing is stored.
class SubscriptOutOfRange : public std::runtime_error {
 public:
  SubscriptOutOfRange() : std::runtime_error("Subscript out of range") {}
};

// Raised when a text cannot be read as the number a reader asked for.
class TypeMismatch : public std::runtime_error {
 public:
  TypeMismatch() : std::runtime_error("Type mismatch") {}
};

// The integer part toward minus infinity: Int(-2.5) is -3.
double Int(double value);

// Converts to a 16-bit integer, rounding halves to even; throws OverflowError when out of range.
int16_t to16(double value);
int16_t to16(long long value);
inline int16_t to16(int value) {
  return to16(static_cast<long long>(value));
}
inline int16_t to16(int16_t value) {
  return value;
}

// Checked arithmetic on 16-bit integers: the result is range-checked before it is returned.
inline int16_t add16(int a, int b) {
  return to16(static_cast<long long>(a) + b);
}
inline int16_t sub16(int a, int b) {
  return to16(static_cast<long long>(a) - b);
}
inline int16_t mul16(int a, int b) {
  return to16(static_cast<long long>(a) * b);
}

// Number-to-text: a blank stands where the sign would be for a non-negative number
// (" 5", "-1", " 12.5"). Doubles keep up to 15 significant digits.
QString numberText(double value);
QString numberText(long long value);
inline QString numberText(int value) {
  return numberText(static_cast<long long>(value));
}
inline QString numberText(int16_t value) {
  return numberText(static_cast<long long>(value));
}

// Decimal text without the sign blank, as a number joined to a message reads.
QString plainNumber(double value);

// The "#0.00" format: at least one integer digit and exactly two decimals.
QString formatFixed2(double value);

// Reads the text of a number as the runtime does: leading and trailing blanks allowed, an
// empty text is 0, anything else throws TypeMismatch.
double parseNumber(const QString& text);

}  // namespace rt
