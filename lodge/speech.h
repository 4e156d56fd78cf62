// SPDX-License-Identifier: GPL-2.0-or-later
// The game's one voice: every remark of the lodge host, the guide and the companions is a
// message key whose recorded lines are picked, played through the hunting screen's media
// window and, for Say, shown with the speaker in the conversation box. The hunting screen's
// members of the same names call these; lodge screens call them directly.
#pragma once

#include <QString>

#include <cstdint>

namespace talk {

// Fills the shared line list with the numbers of the key's lines, in order; returns how many.
int16_t FillConvArr(const QString& key);
// Speaks one of the key's lines at random; a key without lines is silent.
void Saynotext(const QString& key);
// As Saynotext, and shows the speaker and the line in the conversation box.
void Say(const QString& key);
// Opens the conversation box at the key's first line, with paging through the others.
void InitSaylist(const QString& key);
// Makes the line at `position` of the list the current one (text, picture and sound).
void Saylist(int16_t position);
// Plays the current line.
void Soundplay();
// Plays a snippet of the world's background recording instead of a line.
void AreaSound();

}  // namespace talk
