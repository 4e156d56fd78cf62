// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a panorama manifest (.svh): the image it shows, its cylindrical projection and its
// named hotspots as polygons in image pixels.
#pragma once

#include <QPointF>
#include <QString>

#include <filesystem>
#include <variant>
#include <vector>

namespace platform {

struct PanoramaHotspot {
  QString name;
  std::vector<QPointF> polygon;  // image pixels; x may run past either edge to cross the seam
};

struct PanoramaManifest {
  std::filesystem::path image;  // host path, resolved beside the manifest
  double verticalFovDegrees = 0;
  std::vector<PanoramaHotspot> hotspots;  // in file order; the first listed wins an overlap
};

// "file:line: what is wrong", ready to show an author.
struct ManifestError {
  QString message;
};

using ManifestResult = std::variant<PanoramaManifest, ManifestError>;

// Parses manifest text; `folder` is where the image name is looked up, case ignored.
ManifestResult parseManifest(const QString& text, const std::filesystem::path& folder,
                             const QString& sourceName);

// Reads and parses a manifest file on the host.
ManifestResult readManifest(const std::filesystem::path& file);

// Checks the hotspots against the image size once it is known; empty when all fit.
QString checkHotspotBounds(const PanoramaManifest& manifest, int imageWidth, int imageHeight);

}  // namespace platform
