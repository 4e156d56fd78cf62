// SPDX-License-Identifier: GPL-2.0-or-later
// How each of the 42 animals looks from the side: its build, colouring and headgear, in units
// of its own body length, so one figure routine draws every species recognisably.
#pragma once

#include <QColor>

namespace worldgen {

struct SpeciesOutline;

enum class BodyPlan { Hoofed, Bear, Cat, Dog, Small, Bird, WaderBird };
// Markings a species is known by, beyond its coat, belly and rump.
enum class Marking { None, WhiteHead, BackStripes, Mask };
enum class Headgear { None, Antlers, Palmate, CaribouRack, Curl, Spikes, Prongs, ShortHorns };

struct AnimalLook {
  BodyPlan plan = BodyPlan::Hoofed;
  double metres = 2.0;  // nose to rump, for the size on screen
  double bodyHeight = 0.45;
  double legLength = 0.55;
  double neckLength = 0.3;
  double headLength = 0.28;
  double hump = 0;    // shoulder hump (bison, grizzly, moose)
  double tail = 0.1;  // tail length; long bushy for cats and foxes
  QColor coat;
  QColor belly;
  QColor rump;  // rump patch, or the coat colour when there is none
  QColor legs;
  Headgear headgear = Headgear::None;
  bool beard = false;  // turkey's beard, goat's and bison's chin hair
  Marking marking = Marking::None;
  const SpeciesOutline* outline = nullptr;  // authored shapes, where the plain figure would not read
};

// Animal 1..42.
const AnimalLook& lookOf(int animal);

}  // namespace worldgen
