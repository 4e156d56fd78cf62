// SPDX-License-Identifier: GPL-2.0-or-later
// The people of the lodge, drawn standing: the host in his plaid shirt and felt hat, the guide
// in blaze orange with binoculars, the game warden in uniform and flat-brimmed hat.
#pragma once

#include <QPainter>
#include <QRectF>

namespace worldgen {

enum class Person { Host, Guide, Warden };

// Fills `area` from the boots to the hat's crown, facing the viewer.
void paintPerson(QPainter& p, Person who, const QRectF& area);

}  // namespace worldgen
