// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/worldgen/fine_detail.h"
// Hashed value noise stretched by surface: round clusters for leaves, long streaks for bark,
// short upright strokes for grass, a fine even crust with glints for snow. The noise is made
// once into tiles that repeat seamlessly; each picture reads them from its own offset.

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <mutex>
#include <vector>

namespace worldgen {
namespace {

constexpr int kTileSize = 512;
constexpr int kSurfaces = 6;

// How the grain of one surface looks: the size of its cells across and down, in pixels, how
// strongly it lightens and darkens, and how often a pixel catches the light.
struct Grain {
  double across;
  double down;
  double strength;   // share of the pixel's brightness, each way
  double glintRate;  // share of pixels lit as a leaf edge or snow crystal
};

Grain grainOf(Surface s) {
  switch (s) {
    case Surface::Foliage: return {2.6, 2.2, 0.24, 0.012};
    case Surface::Bark: return {1.4, 11.0, 0.22, 0.0};
    case Surface::Grass: return {1.1, 4.5, 0.15, 0.004};
    case Surface::Snow: return {5.0, 1.8, 0.045, 0.006};
    case Surface::Stone: return {2.0, 1.6, 0.12, 0.0};
    case Surface::Sky: break;
  }
  return {1, 1, 0, 0};
}

uint32_t hash(uint32_t x, uint32_t y, uint32_t seed) {
  uint32_t h = x * 0x8da6b343u ^ y * 0xd8163841u ^ seed * 0xcb1ab31fu;
  h ^= h >> 15;
  h *= 0x2c1b3c6du;
  h ^= h >> 12;
  h *= 0x297a2d39u;
  return h ^ h >> 15;
}

double unitOf(uint32_t h) {
  return (h >> 8) * (1.0 / 16777216.0);
}

// Smooth noise in [-1, 1] over a lattice that repeats every `columns` x `rows` cells.
double valueNoise(double x, double y, uint32_t columns, uint32_t rows, uint32_t seed) {
  const double fx = std::floor(x), fy = std::floor(y);
  const auto cx = static_cast<uint32_t>(fx) % columns, cy = static_cast<uint32_t>(fy) % rows;
  const uint32_t nx = (cx + 1) % columns, ny = (cy + 1) % rows;
  const double u = x - fx, v = y - fy;
  const double su = u * u * (3 - 2 * u), sv = v * v * (3 - 2 * v);
  const double top = unitOf(hash(cx, cy, seed)) * (1 - su) + unitOf(hash(nx, cy, seed)) * su;
  const double bottom = unitOf(hash(cx, ny, seed)) * (1 - su) + unitOf(hash(nx, ny, seed)) * su;
  return 2 * (top * (1 - sv) + bottom * sv) - 1;
}

// One surface's grain over a tile: the factor on each pixel in 256ths, and its glint.
struct Tile {
  int width = 0;
  std::array<std::vector<int16_t>, kSurfaces> factor;
  std::array<std::vector<uint8_t>, kSurfaces> lift;
};

// One octave, with whole cells to the tile each way so the tile repeats without a seam.
double octave(int x, int y, int width, double across, double down, uint32_t seed) {
  const auto columns = std::max<uint32_t>(1, static_cast<uint32_t>(std::lround(width / across)));
  const auto rows = std::max<uint32_t>(1, static_cast<uint32_t>(std::lround(kTileSize / down)));
  return valueNoise(x * (static_cast<double>(columns) / width), y * (static_cast<double>(rows) / kTileSize),
                    columns, rows, seed);
}

Tile makeTile(int width) {
  Tile tile;
  tile.width = width;
  for (int s = 0; s < kSurfaces; ++s) {
    const Grain g = grainOf(static_cast<Surface>(s));
    auto& factor = tile.factor[s];
    auto& lift = tile.lift[s];
    factor.assign(static_cast<size_t>(width) * kTileSize, 256);
    lift.assign(factor.size(), 0);
    if (g.strength == 0) continue;
    const auto salt = static_cast<uint32_t>(s) * 7919u;
    for (int y = 0; y < kTileSize; ++y)
      for (int x = 0; x < width; ++x) {
        const double coarse = octave(x, y, width, g.across * 2.3, g.down * 2.3, salt);
        const double fine = octave(x, y, width, g.across, g.down, salt + 1);
        const size_t i = static_cast<size_t>(y) * width + x;
        factor[i] = static_cast<int16_t>(std::lround(256 * (1 + g.strength * (0.55 * coarse + 0.45 * fine))));
        lift[i] =
            unitOf(hash(static_cast<uint32_t>(x), static_cast<uint32_t>(y), salt + 2)) < g.glintRate ? 34 : 0;
      }
  }
  return tile;
}

// Pictures whose width is a multiple of the tile share one; any other width repeats once.
const Tile& tileFor(int pictureWidth) {
  static std::mutex guard;
  static std::map<int, Tile> tiles;
  const int width = pictureWidth % kTileSize == 0 ? kTileSize : pictureWidth;
  const std::lock_guard lock(guard);
  auto it = tiles.find(width);
  if (it == tiles.end()) it = tiles.emplace(width, makeTile(width)).first;
  return it->second;
}

uint8_t channel(int value) {
  return static_cast<uint8_t>(std::clamp(value, 0, 255));
}

QRgb grained(QRgb pixel, int factor, int lift) {
  return qRgb(channel((qRed(pixel) * factor >> 8) + lift), channel((qGreen(pixel) * factor >> 8) + lift),
              channel((qBlue(pixel) * factor >> 8) + lift));
}

}  // namespace

Surface surfaceOf(QRgb pixel, double depthShare) {
  const int r = qRed(pixel), g = qGreen(pixel), b = qBlue(pixel);
  const int high = std::max({r, g, b}), low = std::min({r, g, b});
  const int light = (r * 3 + g * 6 + b) / 10;
  const bool ground = depthShare > 0.5;
  const bool green = g >= r - 4 && g > b + 6 && light < 190;
  const bool warm = r > b + 14;
  if (b > r + 12 && b >= g - 4) return Surface::Sky;  // sky, haze and open water
  if (low >= 180 && high - low <= 45) return ground ? Surface::Snow : Surface::Sky;
  if (ground) {
    if (green) return g > r + 24 ? Surface::Grass : Surface::Foliage;
    if (warm) return Surface::Grass;  // dry grass and leaf litter
    return high - low < 24 && light > 40 ? Surface::Stone : Surface::Sky;
  }
  // Above the horizon: leaves green or turned, trunks dark, and grey or pale haze and cloud.
  if (green || (warm && high - low > 70)) return Surface::Foliage;
  return warm && light < 130 ? Surface::Bark : Surface::Sky;
}

void paintFineDetail(QImage& picture, uint64_t seed) {
  const Tile& tile = tileFor(picture.width());
  const auto shiftX = static_cast<int>(seed % static_cast<uint64_t>(tile.width));
  // Reduced before the cast: a seed's high half may not fit an int, and a negative shift
  // would read rows before the tile.
  const auto shiftY = static_cast<int>((seed >> 32) % kTileSize);
  const int height = picture.height();
  for (int y = 0; y < height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    const double depthShare = (y + 0.5) / height;
    const size_t row = static_cast<size_t>((y + shiftY) % kTileSize) * tile.width;
    for (int x = 0, t = shiftX; x < picture.width(); ++x, t = t + 1 == tile.width ? 0 : t + 1) {
      const auto s = static_cast<size_t>(surfaceOf(line[x], depthShare));
      line[x] = grained(line[x], tile.factor[s][row + t], tile.lift[s][row + t]);
    }
  }
}

}  // namespace worldgen
