// SPDX-License-Identifier: GPL-2.0-or-later
// Cut-out animal photographs from Debian's stamp collection, with the anatomy authored for each
// (where the legs begin, the neck bends, the heart and head lie), turned to face right.
#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>

#include <filesystem>

namespace worldgen {

struct AnimalPhoto {
  QImage image;         // premultiplied ARGB, facing right, tinted for its species
  double metres = 2;    // what the photograph's width spans in the field
  double legTop = 0.6;  // fractions of the picture from here on
  double legSplit = 0.5;
  QPointF neck;                       // the head bends about this point
  QRectF vital, head, gut, headgear;  // headgear is empty when the animal has none
  QRectF body, legs;                  // where the cut-out is opaque above and below the leg line
};

// The folder the photographs are looked for in; by default where the package puts them.
std::filesystem::path animalPhotoFolder();
// Looks in `folder` from now on (an empty or missing folder draws every animal).
void setAnimalPhotoFolder(const std::filesystem::path& folder);
// Animal 1..42's photograph, or null when it has none or the package is absent.
const AnimalPhoto* photoOf(int animal);
// Whether any photograph was found; the generator says so once when none was.
bool animalPhotosFound();

}  // namespace worldgen
