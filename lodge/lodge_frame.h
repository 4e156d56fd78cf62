// SPDX-License-Identifier: GPL-2.0-or-later
// What every lodge screen shares: where it sits over the hunting screen, the world's own
// picture behind it and the way it shows the wallet.
#pragma once

#include <QSize>
#include <QString>

#include <cstdint>

class QWidget;

namespace lodge {

// The size every lodge screen's widgets are laid out in; ReSize scales it to the real one.
inline constexpr QSize kLodgeDesign{1014, 607};

// Frameless over the hunting screen, with the lodge's look for text panels and buttons.
void prepareLodgeScreen(QWidget& screen, const QString& title);
// Marks a label as text on a paper panel, readable over any painted background.
void onPaper(QWidget& label);

// "$" and the wallet as number-to-text writes it, blank included: "$ 2500".
QString moneyText(int16_t money);

// The world's picture `name` behind a lodge screen: art\ + area letter + name.
QString lodgeArtPath(const QString& name);

// Centred over the hunting screen at its top plus 60 twips, at the shared width and height,
// grown with its shape kept on a display larger than the layout was made for.
void placeOverHuntingScreen(QWidget& screen);

}  // namespace lodge
