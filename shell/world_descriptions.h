// SPDX-License-Identifier: GPL-2.0-or-later
// The short description of each hunting world shown on the new-hunt postcard.
#pragma once

#include <QString>

// World 0..3 of the base or the special-permit group; "" for any other number.
QString worldDescription(bool specialPermit, int world);
