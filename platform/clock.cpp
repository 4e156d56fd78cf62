// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/clock.h"

#include <QDateTime>

namespace platform {

rt::DateTime SystemClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate d = now.date();
  const QTime t = now.time();
  return rt::dateSerial(d.year(), d.month(), d.day()) + t.msecsSinceStartOfDay() / 86400000.0;
}

template <>
std::unique_ptr<Clock> Service<Clock>::makeDefault() {
  return std::make_unique<SystemClock>();
}

}  // namespace platform
