// SPDX-License-Identifier: GPL-2.0-or-later
// One player per modal screen: each clicks through the screen's handlers as a player would
// and leaves by the screen's own way out.
#pragma once

#include "play_context.h"

class QWidget;

namespace robot {

// Lodge screens.
void playCatalog(QWidget& screen, PlayContext& play);
void playInventory(QWidget& screen, PlayContext& play);
void playWeapons(QWidget& screen, PlayContext& play);
void playLicence(QWidget& screen, PlayContext& play);
void playHunttest(QWidget& screen, PlayContext& play);
void playHguide(QWidget& screen, PlayContext& play);
void playTalkform(QWidget& screen, PlayContext& play);

// Shooting scenes.
void playVideoshot(QWidget& screen, PlayContext& play);
void playShotdata(QWidget& screen, PlayContext& play);
void playRecordBook(QWidget& screen, PlayContext& play);
void playTrange(QWidget& screen, PlayContext& play);

// Shell screens.
void playAviplay(QWidget& screen, PlayContext& play);
void playFiler(QWidget& screen, PlayContext& play);

}  // namespace robot
