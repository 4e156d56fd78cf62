// SPDX-License-Identifier: GPL-2.0-or-later
// The pictures behind the panoramas: the outdoor places of a world, the lodge interior, the
// range and the quick-hunt map, each with the things its hotspots name painted where they lie.
#pragma once

#include <QChar>
#include <QImage>
#include <QList>
#include <QRect>
#include <QString>

namespace worldgen {

inline constexpr int kPanoramaWidth = 2048;
inline constexpr int kPanoramaHeight = 384;

struct Spot {
  QString name;  // hotspot name; its first character says what is painted there
  QRect area;    // in image pixels
};

// Where the n hotspots of a place sit in an image of the given size.
QList<Spot> layoutSpots(const QStringList& names, int width, int height);

QImage paintOutdoorPlace(QChar world, const QString& variant, int width, int height,
                         const QList<Spot>& spots);
QImage paintLodge(const QList<Spot>& spots);
QImage paintRange(const QList<Spot>& spots);
QImage paintMap(QChar world, const QList<Spot>& spots);

}  // namespace worldgen
