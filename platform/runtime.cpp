// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/runtime.h"

#include <cmath>
#include <limits>

namespace rt {

double Int(double value) {
  return std::floor(value);
}

int16_t to16(double value) {
  if (!std::isfinite(value)) throw OverflowError();
  const double rounded = std::nearbyint(value);  // the default mode rounds halves to even
  if (rounded < std::numeric_limits<int16_t>::min() || rounded > std::numeric_limits<int16_t>::max())
    throw OverflowError();
  return static_cast<int16_t>(rounded);
}

int16_t to16(long long value) {
  if (value < std::numeric_limits<int16_t>::min() || value > std::numeric_limits<int16_t>::max())
    throw OverflowError();
  return static_cast<int16_t>(value);
}

QString plainNumber(double value) {
  if (value == 0) return QStringLiteral("0");  // also folds -0
  if (std::abs(value) < 1e15 && value == std::floor(value))
    return QString::number(static_cast<long long>(value));
  return QString::number(value, 'g', 15);
}

QString numberText(double value) {
  const QString text = plainNumber(value);
  return text.startsWith(u'-') ? text : QLatin1Char(' ') + text;
}

QString numberText(long long value) {
  return value < 0 ? QString::number(value) : QLatin1Char(' ') + QString::number(value);
}

QString formatFixed2(double value) {
  return QString::number(value, 'f', 2);
}

double parseNumber(const QString& text) {
  const QString trimmed = text.trimmed();
  if (trimmed.isEmpty()) return 0;
  bool ok = false;
  const double value = trimmed.toDouble(&ok);
  if (!ok) throw TypeMismatch();
  return value;
}

}  // namespace rt
