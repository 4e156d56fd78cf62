// SPDX-License-Identifier: GPL-2.0-or-later
// The about text of the main menu: version, rights, credits and dedication.
#pragma once

#include <QString>

QString aboutText();
