// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/about_text.h"

#include <QStringList>

QString aboutText() {
  return QStringList{
      QStringLiteral("Ver 1.43"),
      QStringLiteral("Copyright Varnholt. All rights reserved."),
      QStringLiteral("Developed by Tamsin. Published by Varnholt."),
      QStringLiteral(
          "Photography and video: the Tamsin field crew. Landscapes painted with our own panorama tools."),
      QStringLiteral("Dedicated to every hunter who takes only the clean, lawful shot."),
  }
      .join(u'\n');
}
