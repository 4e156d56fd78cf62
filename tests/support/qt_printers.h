// SPDX-License-Identifier: GPL-2.0-or-later
// Lets GoogleTest print Qt strings and byte arrays readably in failure messages.
#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* os) {
  *os << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& bytes, std::ostream* os) {
  *os << '"' << bytes.toStdString() << '"';
}
