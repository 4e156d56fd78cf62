// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/panorama/panorama_manifest.h"

#include "platform/files.h"

#include <QFile>
#include <QStringList>

#include <optional>

namespace platform {
namespace {

constexpr int kMinPolygonPoints = 3;

struct LineContext {
  QString source;
  int number = 0;
  ManifestError error(const QString& what) const {
    return {QStringLiteral("%1:%2: %3").arg(source).arg(number).arg(what)};
  }
};

std::optional<QPointF> parsePoint(const QString& word) {
  const QStringList parts = word.split(u',');
  if (parts.size() != 2) return std::nullopt;
  bool okX = false;
  bool okY = false;
  const double x = parts[0].toDouble(&okX);
  const double y = parts[1].toDouble(&okY);
  if (!okX || !okY) return std::nullopt;
  return QPointF(x, y);
}

// Twice the signed area; zero means the points enclose nothing.
double doubledArea(const std::vector<QPointF>& polygon) {
  double sum = 0;
  for (size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++)
    sum += polygon[j].x() * polygon[i].y() - polygon[i].x() * polygon[j].y();
  return sum;
}

std::variant<PanoramaHotspot, ManifestError> parseHotspot(const QStringList& words, const LineContext& at) {
  if (words.size() < 2) return at.error(QStringLiteral("hotspot without a name"));
  PanoramaHotspot hotspot{words[1], {}};
  for (qsizetype i = 2; i < words.size(); ++i) {
    const auto point = parsePoint(words[i]);
    if (!point)
      return at.error(QStringLiteral("hotspot %1: '%2' is not a point x,y").arg(words[1], words[i]));
    hotspot.polygon.push_back(*point);
  }
  if (hotspot.polygon.size() < kMinPolygonPoints)
    return at.error(QStringLiteral("hotspot %1: a polygon needs at least 3 points").arg(words[1]));
  if (doubledArea(hotspot.polygon) == 0)
    return at.error(QStringLiteral("hotspot %1: the polygon encloses no area").arg(words[1]));
  return hotspot;
}

std::optional<ManifestError> parseProjection(const QStringList& words, const LineContext& at,
                                             PanoramaManifest& manifest) {
  bool ok = false;
  const double fov = words.size() == 2 ? words[1].toDouble(&ok) : 0;
  if (!ok || !(fov > 0 && fov < 180))
    return at.error(QStringLiteral("cylindrical needs a vertical field of view between 0 and 180 degrees"));
  manifest.verticalFovDegrees = fov;
  return std::nullopt;
}

// One line of the body; returns an error or nothing.
std::optional<ManifestError> parseLine(const QString& line, const LineContext& at,
                                       const std::filesystem::path& folder, PanoramaManifest& manifest) {
  const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
  const QString& keyword = words[0];
  if (keyword == QLatin1String("image")) {
    const QString name = line.section(u' ', 1, -1, QString::SectionSkipEmpty);
    if (name.isEmpty()) return at.error(QStringLiteral("image without a file name"));
    if (!manifest.image.empty()) return at.error(QStringLiteral("a second image line"));
    // Only a file beside the manifest: a path could make an outside file read anything.
    const auto image = files().resolveIn(QString::fromStdString(folder.string()), name);
    if (!image) return at.error(QStringLiteral("the image '%1' is not a file beside the manifest").arg(name));
    manifest.image = *image;
    return std::nullopt;
  }
  if (keyword == QLatin1String("cylindrical")) return parseProjection(words, at, manifest);
  if (keyword == QLatin1String("hotspot")) {
    auto parsed = parseHotspot(words, at);
    if (auto* error = std::get_if<ManifestError>(&parsed)) return *error;
    manifest.hotspots.push_back(std::get<PanoramaHotspot>(std::move(parsed)));
    return std::nullopt;
  }
  return at.error(QStringLiteral("unknown line '%1'").arg(keyword));
}

}  // namespace

ManifestResult parseManifest(const QString& text, const std::filesystem::path& folder,
                             const QString& sourceName) {
  PanoramaManifest manifest;
  LineContext at{sourceName, 0};
  bool sawHeader = false;
  for (QString line : text.split(u'\n')) {
    ++at.number;
    line = line.trimmed().replace(u'\t', u' ');
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    if (!sawHeader) {
      if (line != QLatin1String("svh 1"))
        return at.error(QStringLiteral("not a panorama manifest (want 'svh 1')"));
      sawHeader = true;
      continue;
    }
    if (auto error = parseLine(line, at, folder, manifest)) return *error;
  }
  if (!sawHeader) return at.error(QStringLiteral("empty manifest"));
  if (manifest.image.empty()) return at.error(QStringLiteral("no image line"));
  if (manifest.verticalFovDegrees == 0) return at.error(QStringLiteral("no cylindrical line"));
  return manifest;
}

ManifestResult readManifest(const std::filesystem::path& file) {
  const QString name = QString::fromStdString(file.string());
  QFile in(name);
  if (!in.open(QIODevice::ReadOnly)) return ManifestError{QStringLiteral("%1: cannot open").arg(name)};
  const QByteArray bytes = in.read(1 << 20);
  if (bytes.contains('\0')) return ManifestError{QStringLiteral("%1: not a text file").arg(name)};
  return parseManifest(QString::fromUtf8(bytes), file.parent_path(), name);
}

QString checkHotspotBounds(const PanoramaManifest& manifest, int imageWidth, int imageHeight) {
  for (const auto& hotspot : manifest.hotspots) {
    for (const QPointF& p : hotspot.polygon) {
      if (p.x() < -imageWidth || p.x() > 2.0 * imageWidth || p.y() < 0 || p.y() > imageHeight)
        return QStringLiteral("hotspot %1: point %2,%3 lies outside the %4 x %5 image")
            .arg(hotspot.name)
            .arg(p.x())
            .arg(p.y())
            .arg(imageWidth)
            .arg(imageHeight);
    }
  }
  return {};
}

}  // namespace platform
