// SPDX-License-Identifier: GPL-2.0-or-later
// The keyed record files of the sample world, built as tables whose fields carry exactly the
// names the game looks up.
#pragma once

#include "tools/worldgen/content.h"
#include "tools/worldgen/voices.h"
#include "tools/worldgen/world_layout.h"

namespace worldgen {

inline constexpr char kNoClip[] = "EMPTY";
inline constexpr int kCallSlotMs = 4000;  // each call of animals.wav has its own slot

RecordTable catalogRecords(const Content& c);
RecordTable weaponRecords(const Content& c, bool permit);
RecordTable pathRecords(const World& w, const Content& c);
RecordTable videoRecords(const World& w, const Content& c);
RecordTable animalSoundRecords(const Content& c);
RecordTable conversationLinks(const Content& c);
RecordTable spokenLineRecords(const World& w, const Content& c, const WorldVoices& voices);

// Clip names of animal n's k-th encounter in world `w`, by kind: 'c' the encounter,
// 'e' the escape, 'h' a hit by a firearm, 'a' a hit by an arrow, 'p' an encounter with an
// animal that may not be shot.
QString clipName(const World& w, const Content& c, int animal, char kind, int k);
// How many encounter clips animal n has in a world it lives in.
int clipsPerAnimal(int animal);

}  // namespace worldgen
