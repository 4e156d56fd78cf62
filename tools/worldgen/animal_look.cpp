// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/animal_look.h"

#include "tools/worldgen/animal_outline.h"

#include <array>
#include <stdexcept>

namespace worldgen {

namespace {

using P = BodyPlan;
using H = Headgear;

AnimalLook look(P plan, double metres, double bodyH, double legs, double neck, double head, double hump,
                double tail, QRgb coat, QRgb belly, QRgb rump, QRgb legColour, H gear = H::None,
                bool beard = false) {
  return {plan, metres, bodyH,        legs,          neck,         head,
          hump, tail,   QColor(coat), QColor(belly), QColor(rump), QColor(legColour),
          gear, beard};
}

std::array<AnimalLook, 42> authoredLooks() {
  std::array<AnimalLook, 42> table = {
      look(P::Hoofed, 1.6, 0.45, 0.55, 0.25, 0.24, 0, 0.06, 0x8a7560, 0xcfc2ac, 0xf0ece0, 0x6e5c4a, H::Curl),
      look(P::Hoofed, 3.2, 0.55, 0.38, 0.08, 0.26, 0.32, 0.14, 0x4a3222, 0x3a271a, 0x4a3222, 0x2e1f15,
           H::ShortHorns, true),
      look(P::Bear, 1.6, 0.5, 0.4, 0.1, 0.26, 0.05, 0.03, 0x161412, 0x1e1a17, 0x161412, 0x0e0c0b),
      look(P::Bear, 2.2, 0.55, 0.42, 0.1, 0.27, 0.12, 0.03, 0x5a3a22, 0x4e321d, 0x5a3a22, 0x3a2514),
      look(P::Hoofed, 2.0, 0.48, 0.6, 0.3, 0.26, 0.05, 0.06, 0x6e5a44, 0xe8e0d0, 0xe8e0d0, 0x4a3a2c,
           H::CaribouRack),
      look(P::Cat, 1.4, 0.32, 0.42, 0.12, 0.2, 0, 0.6, 0xa8845c, 0xe0cdb0, 0xa8845c, 0x93724e),
      look(P::Hoofed, 1.5, 0.42, 0.6, 0.3, 0.25, 0, 0.12, 0x6a5846, 0xd8cfc0, 0x6a5846, 0x5a4a3a, H::Antlers),
      look(P::Dog, 1.0, 0.35, 0.55, 0.15, 0.25, 0, 0.4, 0x9a8466, 0xd9ccb4, 0x9a8466, 0x8a7458),
      look(P::Hoofed, 2.4, 0.46, 0.62, 0.4, 0.28, 0.04, 0.05, 0x8f6a45, 0x4a3322, 0xe0c890, 0x3d2a1a,
           H::Antlers),
      look(P::Bear, 2.2, 0.55, 0.42, 0.1, 0.27, 0.22, 0.03, 0x7a5a3a, 0x5c4029, 0x7a5a3a, 0x40291a),
      look(P::Hoofed, 3.0, 0.5, 0.78, 0.2, 0.36, 0.2, 0.04, 0x2e2118, 0x241a12, 0x2e2118, 0x8a7a66,
           H::Palmate, true),
      look(P::Hoofed, 1.5, 0.5, 0.45, 0.2, 0.24, 0.12, 0.06, 0xf2f0e8, 0xe4e0d4, 0xf2f0e8, 0xe0dcd0,
           H::Spikes, true),
      look(P::Hoofed, 1.7, 0.44, 0.6, 0.3, 0.27, 0, 0.08, 0x7c7264, 0xd8d0c4, 0xefe9dc, 0x655c50, H::Antlers),
      look(P::Hoofed, 1.4, 0.42, 0.62, 0.3, 0.23, 0, 0.05, 0xc08850, 0xf6f0e6, 0xf6f0e6, 0xcfa070, H::Prongs),
      look(P::Bird, 1.0, 0.55, 0.45, 0.35, 0.12, 0, 0.35, 0x3a2c22, 0x2a201a, 0x6a4a2a, 0x9a7060, H::None,
           true),
      look(P::Hoofed, 1.6, 0.42, 0.6, 0.3, 0.25, 0, 0.16, 0x8a6a4a, 0xf0ebe0, 0xf0ebe0, 0x7a5c40, H::Antlers),
      look(P::Small, 0.6, 0.45, 0.3, 0.08, 0.28, 0, 0.4, 0x6e6a64, 0x9a948a, 0x6e6a64, 0x3c3a36),
      look(P::Small, 0.6, 0.45, 0.3, 0.08, 0.3, 0, 0.5, 0xcfcac0, 0xe4e0d8, 0xcfcac0, 0x2a2624),
      look(P::Small, 0.7, 0.6, 0.22, 0.05, 0.24, 0.15, 0.2, 0x3a342c, 0x2c2822, 0xd8d0c0, 0x2a2622),
      look(P::Small, 0.5, 0.45, 0.25, 0.06, 0.25, 0, 0.6, 0x111111, 0x181818, 0xf4f4f0, 0x0c0c0c),
      look(P::Dog, 0.8, 0.32, 0.45, 0.15, 0.25, 0, 0.55, 0xb85a22, 0xf0e8e0, 0xb85a22, 0x2a1a12),
      look(P::Small, 0.45, 0.5, 0.35, 0.05, 0.25, 0, 0.08, 0xeeeeea, 0xf6f6f2, 0xeeeeea, 0xe2e2de),
      look(P::Small, 0.55, 0.45, 0.45, 0.06, 0.26, 0, 0.1, 0x9a8466, 0xddd0bc, 0x9a8466, 0x8a7458),
      look(P::Small, 0.55, 0.55, 0.22, 0.05, 0.25, 0, 0.25, 0x7a5a3a, 0xc8a050, 0x7a5a3a, 0x5a4028),
      look(P::Small, 0.8, 0.5, 0.18, 0.05, 0.22, 0, 0.3, 0x5a3e26, 0x4e361f, 0x5a3e26, 0x3a281a),
      look(P::Small, 0.3, 0.5, 0.3, 0.06, 0.26, 0, 0.8, 0x8a8a88, 0xe6e4e0, 0x8a8a88, 0x6a6a68),
      look(P::Bird, 0.9, 0.5, 0.3, 0.15, 0.18, 0, 0.3, 0x3a2a1e, 0x3a2a1e, 0xf4f4f0, 0xe0b030),
      look(P::Bird, 0.9, 0.5, 0.3, 0.15, 0.18, 0, 0.3, 0x4a3322, 0x4a3322, 0x8a6a3a, 0xe0b030),
      look(P::Bird, 0.6, 0.75, 0.15, 0.05, 0.3, 0, 0.2, 0x7a6448, 0xb8a888, 0x7a6448, 0x5a4a34),
      look(P::Bird, 0.6, 0.55, 0.25, 0.12, 0.18, 0, 0.25, 0x6a4a30, 0xe8dcc8, 0xb85a2a, 0xe0b030),
      look(P::WaderBird, 1.1, 0.45, 0.9, 0.6, 0.2, 0, 0.15, 0x9a9a9a, 0xb0aeaa, 0x9a9a9a, 0x2a2a2a),
      look(P::WaderBird, 1.5, 0.45, 0.3, 0.7, 0.2, 0, 0.1, 0xf4f4f2, 0xeaeae6, 0xf4f4f2, 0x1a1a1a),
      look(P::Dog, 1.4, 0.36, 0.58, 0.15, 0.26, 0, 0.45, 0x7c7670, 0xcac4bc, 0x7c7670, 0x6c6660),
      look(P::Small, 0.9, 0.45, 0.28, 0.08, 0.24, 0.08, 0.3, 0x3a2a1e, 0x2a1e16, 0xa08050, 0x1e1610),
      look(P::Cat, 0.9, 0.4, 0.55, 0.12, 0.2, 0, 0.1, 0xa8a090, 0xdcd6ca, 0xa8a090, 0x9a9282),
      look(P::Small, 1.0, 0.3, 0.18, 0.1, 0.2, 0, 0.4, 0x4a3424, 0x8a6a4a, 0x4a3424, 0x3a281c),
      look(P::Bird, 0.45, 0.5, 0.2, 0.1, 0.18, 0, 0.3, 0x4a5058, 0xe8e4dc, 0x4a5058, 0xe0b030),
      look(P::WaderBird, 1.1, 0.35, 0.95, 0.7, 0.25, 0, 0.1, 0x7a8a9a, 0x9aa8b4, 0x7a8a9a, 0x3a3a3a),
      look(P::Small, 0.5, 0.3, 0.18, 0.1, 0.2, 0, 0.3, 0xd8c098, 0xe8dcc0, 0xd8c098, 0x2a2018),
      look(P::Hoofed, 2.2, 0.5, 0.6, 0.35, 0.32, 0, 0.35, 0x6a4226, 0x5a381e, 0x6a4226, 0x2a1a10),
      look(P::WaderBird, 1.4, 0.45, 0.95, 0.6, 0.2, 0, 0.12, 0xfafaf8, 0xf0f0ec, 0xfafaf8, 0x1a1a1a),
      look(P::Small, 0.9, 0.3, 0.2, 0.1, 0.2, 0, 0.45, 0x2e241c, 0x241c16, 0x2e241c, 0x1e1812),
  };
  table[19].marking = Marking::BackStripes;  // striped skunk
  table[26].marking = Marking::WhiteHead;    // bald eagle
  table[16].marking = Marking::Mask;         // raccoon
  for (size_t i = 0; i < table.size(); ++i) table[i].outline = outlineOf(int(i) + 1);
  return table;
}

const std::array<AnimalLook, 42>& looks() {
  static const std::array<AnimalLook, 42> table = authoredLooks();
  return table;
}

}  // namespace

const AnimalLook& lookOf(int animal) {
  if (animal < 1 || animal > int(looks().size())) throw std::out_of_range("no such animal");
  return looks()[size_t(animal - 1)];
}

}  // namespace worldgen
