// SPDX-License-Identifier: GPL-2.0-or-later
// Calls a mixer object's member by its name, as late-bound game code does
// (object.setPosition 10, 20, 3): the name is matched without regard to case, the overload
// by the number of arguments.
#pragma once

#include <QObject>
#include <QVariant>

namespace platform {

// The member's result (invalid for none); throws std::invalid_argument when the object has
// no such member or an argument does not convert.
QVariant callMember(QObject* object, const QString& member, const QVariantList& arguments = {});

}  // namespace platform
