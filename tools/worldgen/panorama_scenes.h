// SPDX-License-Identifier: GPL-2.0-or-later
// The pictures behind the panoramas: the outdoor places of a world, the lodge interior, the
// range and the quick-hunt map, each with the things its hotspots name painted where they lie.
// The lodge, camp, range and map each have a file of their own beside this one.
#pragma once

#include <QChar>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QRect>
#include <QString>

namespace worldgen {

inline constexpr int kPanoramaWidth = 2048;
inline constexpr int kPanoramaHeight = 384;

struct Spot {
  QString name;     // hotspot name; its first character says what is painted there
  QRect area;       // in image pixels
  int terrain = 0;  // for trail points: what lies there (1 open .. 6 snow)
};

// Where the n hotspots of a place sit in an image of the given size.
QList<Spot> layoutSpots(const QStringList& names, int width, int height);

// A camp, the fork of the trails or a stand; `description` is the place's own words.
QImage paintOutdoorPlace(QChar world, const QString& variant, const QString& description, int width,
                         int height, const QList<Spot>& spots);
// The tents or cabin, the fire and the truck of a world's camp; the truck is the way back.
void paintCamp(QPainter& p, QChar world, int width, int height, const QList<Spot>& spots);
QImage paintLodge(const QList<Spot>& spots, int width = kPanoramaWidth, int height = kPanoramaHeight);
// Where the counters, doors and people of the lodge stand.
QList<Spot> lodgeLayout(const QStringList& names, int width, int height);
QImage paintRange(const QList<Spot>& spots, int width = kPanoramaWidth, int height = kPanoramaHeight);
QList<Spot> rangeLayout(const QStringList& names, int width, int height);
QImage paintMap(QChar world, const QList<Spot>& spots, int width = kPanoramaWidth,
                int height = kPanoramaHeight);
QList<Spot> mapLayout(const QStringList& names, int width, int height);

}  // namespace worldgen
