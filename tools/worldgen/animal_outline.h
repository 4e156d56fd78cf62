// SPDX-License-Identifier: GPL-2.0-or-later
// Authored side-on outlines for the species that have no photograph (content's
// animal_outlines.csv): body, head, horns, tail and markings as shapes in the frames of the
// drawn figure's parts, so each reads at a glance: the moose's bell and palms, the bighorn's
// curl and white rump, the goat's shaggy white coat, beard and black horns, the pronghorn's
// white bands and hooked horns, the cougar's long thick tail, the coyote's narrow muzzle.
#pragma once

#include <QColor>
#include <QPointF>

#include <vector>

namespace worldgen {

// The frame a shape's points are given in: x from the rear (0) to the front (1) of the part,
// y from its top (0) to its bottom (1); points may reach past the frame.
enum class OutlinePart { Trunk, Neck, Head, Headgear, Tail };
enum class Tone { Coat, Belly, Rump, Shade, Horn, Dark };

struct OutlineShape {
  OutlinePart part;
  Tone tone;
  bool smooth;  // rounded through its points, or a hard-edged polygon for tines and fringes
  std::vector<QPointF> points;
};

struct SpeciesOutline {
  QColor horn = QColor(0x1c1a18);
  std::vector<OutlineShape> shapes;  // painted in order, body first
};

// The outline for animal 1..42, or nullptr where the plain figure serves.
const SpeciesOutline* outlineOf(int animal);

}  // namespace worldgen
