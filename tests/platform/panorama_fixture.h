// SPDX-License-Identifier: GPL-2.0-or-later
// Small synthetic panoramas for the panorama tests: an image whose pixels say where they are,
// written with a manifest into a temporary folder.
#pragma once

#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <cmath>
#include <ostream>
#include <vector>

// Lets test failures show names as text.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace panorama_test {

// Smooth in both directions and periodic across the seam, so bilinear samples are predictable.
inline QRgb smoothPixel(double x, double y, int width) {
  const double turn = 2 * 3.14159265358979 * x / width;
  const int r = static_cast<int>(std::lround(127.5 + 120 * std::sin(turn)));
  const int g = static_cast<int>(std::lround(127.5 + 120 * std::cos(3 * turn)));
  const int b = static_cast<int>(std::lround(127.5 + 100 * std::sin(y * 0.05)));
  return qRgb(r, g, b);
}

inline QImage smoothImage(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  std::vector<QRgb> top(static_cast<size_t>(width));  // red and green depend on x alone
  for (int x = 0; x < width; ++x) top[x] = smoothPixel(x + 0.5, 0, width) & 0xffffff00;
  for (int y = 0; y < height; ++y) {
    const QRgb blue = qBlue(smoothPixel(0, y + 0.5, width));
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x) line[x] = top[x] | blue;
  }
  return image;
}

// Writes `manifest` as Surnd/<name> and `image` as Surnd/<imageName> under `root`.
inline void writePanorama(const QTemporaryDir& root, const QString& name, const QString& manifest,
                          const QImage& image = {}, const QString& imageName = QStringLiteral("Pano.PNG")) {
  QDir(root.path()).mkpath(QStringLiteral("Surnd"));
  QFile out(root.filePath(QStringLiteral("Surnd/") + name));
  out.open(QIODevice::WriteOnly);
  out.write(manifest.toUtf8());
  if (!image.isNull()) image.save(root.filePath(QStringLiteral("Surnd/") + imageName));
}

}  // namespace panorama_test
